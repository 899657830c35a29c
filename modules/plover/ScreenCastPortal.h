#pragma once

#include "tarnwell/TextKey.h"

#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <QVariantMap>

#include <functional>
#include <memory>

namespace kestrel {

class DesktopBus;

/// A screen or window that the user lets be recorded, in a dialog of the desktop's (org.freedesktop.portal.ScreenCast):
/// asked for with `open`, shared until the object goes or the desktop ends it. Nothing here waits. Main thread only.
class ScreenCastPortal : public QObject {
    Q_OBJECT
public:
    struct Wishes {
        bool pointer = true;        ///< is in the pictures
        QString restoreToken = {};  ///< of an earlier choice, which the desktop may then repeat without asking
    };
    /// What is shared.
    struct Screen {
        quint32 node = 0;           ///< PipeWire's number
        QString restoreToken = {};  ///< of this choice; good for once. Empty where the desktop keeps none.
    };
    enum class End {
        Refused,  ///< by the user
        Closed,   ///< by the desktop, after it had been opened: "stop sharing", or the window has gone
        Failed,   ///< the sentence says why
    };

    explicit ScreenCastPortal(QObject *parent = nullptr);
    ~ScreenCastPortal() override;

    /// Whether there is a portal: `found` is called, or `ended` says that there is none. Opens nothing.
    void look(std::function<void()> found);
    /// Once. `opened` or `ended` follows, as late as the user likes.
    void open(const Wishes &wishes);
    /// A connection to PipeWire that sees what is shared, of the caller's own; an invalid one where there is none.
    void openRemote(std::function<void(const QDBusUnixFileDescriptor &remote)> opened);

signals:
    void opened(const kestrel::ScreenCastPortal::Screen &screen);
    /// Once, and nothing after it.
    void ended(kestrel::ScreenCastPortal::End end, const tarnwell::Sentence &sentence);

private slots:
    void responded(uint code, const QVariantMap &results, const QDBusMessage &signal);
    void sessionClosed();
    void ownerChanged(const QString &name, const QString &oldOwner, const QString &newOwner);

private:
    using Results = std::function<void(const QVariantMap &results)>;

    void createSession();
    void selectSources();
    void start();
    void takeStreams(const QVariantMap &results);
    void request(const QString &method, const QVariantList &arguments, QVariantMap options, bool isAsking,
                 Results then);
    void listenTo(const QString &handle);
    void end(End end, const tarnwell::Sentence &sentence = {});

    Wishes m_wishes;
    QVariantMap m_abilities;  ///< the portal's properties
    QString m_portal;         ///< the unique name of who answers
    QString m_handle;         ///< of the request that is open; empty for none
    QString m_session;
    Results m_then;
    bool m_isOpen = false;
    bool m_hasEnded = false;
    std::unique_ptr<DesktopBus> m_bus;
};

}  // namespace kestrel
