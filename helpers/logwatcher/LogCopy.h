#pragma once

#include <QObject>

#include <atomic>
#include <memory>

namespace kestrel {

class LogBytes;

/// Saves a log as it is now under another name, in the background and block by block; the copy appears once it is
/// whole. One at a time; one that is under way when the object goes is given up.
class LogCopy : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;
    ~LogCopy() override;

    void start(std::shared_ptr<const LogBytes> bytes, qint64 size, const QString &destination);
    bool isRunning() const { return m_isGivenUp != nullptr; }
    void giveUp();

signals:
    void progressed(int percent);
    void finished(const QString &error);  ///< the reason where it failed; not sent for one that was given up

private:
    std::shared_ptr<std::atomic<bool>> m_isGivenUp;  ///< null while none is under way
};

}  // namespace kestrel
