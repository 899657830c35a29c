#pragma once

#include <QHash>
#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

namespace kestrel {

class DesktopBus;

/// What the desktop and the system do for running jobs, asked over D-Bus: logind on the system bus, notifications and
/// the task bar on the session's. Nothing here waits: buses are connected in the background, answers come later, and a
/// service that is missing or does not answer is left out. Main thread only.
class DesktopServices : public QObject {
    Q_OBJECT
public:
    /// `desktopName` is what the desktop knows the program by: the name of its desktop file without its ending.
    explicit DesktopServices(const QString &desktopName, QObject *parent = nullptr);
    ~DesktopServices() override;

    /// From now on, or until it is called with false, the machine does not go to sleep by itself. `why` is for the
    /// user.
    void setAwake(bool awake, const QString &why);
    /// As setAwake, and the screen stays on.
    void setScreenOn(bool on, const QString &why);
    /// 0 to 1, or nothing.
    void showProgress(std::optional<double> fraction);
    /// `notificationChosen` with that `tag` follows where the user asks to see it. Both texts are plain; `body` must
    /// hold nothing from outside, as some desktops take it for markup.
    void notify(const QString &tag, const QString &summary, const QString &body);
    /// Whether the user may shut the machine down without further questions; no answer where nobody knows.
    void askCanPowerOff(std::function<void(bool)> answer);
    void powerOff(std::function<void()> failed);

signals:
    void notificationChosen(const QString &tag);

private slots:
    void notificationActionInvoked(uint id, const QString &action);
    void notificationClosed(uint id);

private:
    struct Inhibition;
    struct ScreenInhibition;

    void listenToNotifications();

    QString m_desktopName;
    std::unique_ptr<DesktopBus> m_system;
    std::unique_ptr<DesktopBus> m_session;
    std::shared_ptr<Inhibition> m_inhibition;              ///< while the machine is to stay awake
    std::shared_ptr<ScreenInhibition> m_screenInhibition;  ///< while the screen is to stay on
    QHash<uint, QString> m_notifications;                  ///< tags of those that are shown
    bool m_listensToNotifications = false;
};

}  // namespace kestrel
