#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include <memory>

class QDBusMessage;

namespace kestrel {

/// A drive with a disc in it.
struct DiscDrive {
    QString device;  ///< "/dev/sr0"
    QString label;   ///< the disc's name; may be empty
    bool operator==(const DiscDrive &) const = default;
};

/// The drives with discs of this machine, as UDisks2 tells them; none where that does not run. Nothing is asked or
/// watched before `start`, and nothing waits for an answer. Main thread.
class DiscDrives : public QObject {
    Q_OBJECT
public:
    explicit DiscDrives(QObject *parent = nullptr);
    ~DiscDrives() override;

    void start();
    void stop();
    const QList<DiscDrive> &drives() const { return m_drives; }

signals:
    void changed();

private slots:
    void askLater();

private:
    class Bus;

    void ask();
    void take(const QDBusMessage &reply);

    std::unique_ptr<Bus> m_bus;
    QList<DiscDrive> m_drives;
    bool m_isStarting = false, m_isToAsk = false;
};

}  // namespace kestrel
