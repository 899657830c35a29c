#pragma once

#include "JobRecord.h"

#include <QHash>
#include <QObject>

#include <chrono>
#include <functional>
#include <map>
#include <optional>

namespace kestrel {

class DesktopServices;
class JobQueue;

/// What the program does around runs of jobs: keeps the machine from sleeping while any job runs; shows the progress of
/// all in the task bar; when a module has become idle: opens its folder, tells the desktop (with "Show"), shuts the
/// machine down, each where the settings say so at that moment. One object for the program.
///
/// Shutting down is announced first and can be stopped for a minute; nothing shuts down where a job failed, has
/// problems, was cancelled or waits. Every service is asked over D-Bus (org.freedesktop.login1 on the system bus,
/// org.freedesktop.Notifications and com.canonical.Unity.LauncherEntry on the session bus); one that is missing is left
/// out, without delay.
class AfterRun : public QObject {
    Q_OBJECT
public:
    struct Wishes {
        bool openFolder = false;
        bool notify = false;
        bool shutDown = false;
    };

    /// `wishes` is asked when a module has become idle. `second` is what the countdown counts.
    AfterRun(JobQueue &queue, std::function<Wishes(const QString &module)> wishes, QObject *parent = nullptr,
             std::chrono::milliseconds second = std::chrono::seconds(1));
    ~AfterRun() override;

    void stopShutdown();

signals:
    /// The machine will be shut down in so many seconds: from 60 down, each second; -1 when it was stopped.
    void shutdownIn(int seconds);
    /// The notification's "Show" was clicked.
    void showRequested(const QString &module);

private:
    /// What ended since the module was last idle.
    struct Run {
        std::map<JobState, int> ended;
        JobId last = 0;
        QString folder;  ///< of the last one that is done

        int count(JobState state) const;
        int count() const;
    };

    void jobChanged();
    void jobEnded(JobId id);
    void showState();
    void moduleIsIdle(const QString &module);
    void notify(const QString &module, const Run &run);
    void offerShutdown();
    void countDown(int seconds, int countdown);

    JobQueue &m_queue;
    std::function<Wishes(const QString &module)> m_wishes;
    std::chrono::milliseconds m_second;
    DesktopServices *m_services;
    QHash<QString, Run> m_runs;
    bool m_hasAllDone = true;  ///< of what ended since all modules were last idle
    bool m_isShowingSoon = false;
    std::optional<double> m_shownFraction;
    int m_countdown = 0;  ///< the number of the present one; none where it is not counting
    bool m_isCountingDown = false;
};

}  // namespace kestrel
