#pragma once

#include "JobRecord.h"

#include <QObject>

#include <functional>

namespace kestrel {

class JobQueue;

/// What the program does around runs of jobs: keeps the machine from sleeping while any job runs; shows the progress of
/// all in the task bar; when a module has become idle: opens its folder, tells the desktop (with "Show"), shuts the
/// machine down, each where the settings say so at that moment. One object for the program.
///
/// Shutting down is announced first and can be stopped for a minute; nothing shuts down where a job failed, was
/// cancelled or waits. Every service is asked over D-Bus (org.freedesktop.login1 on the system bus,
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

    /// `wishes` is asked when a module has become idle.
    AfterRun(JobQueue &queue, std::function<Wishes(const QString &module)> wishes, QObject *parent = nullptr);
    ~AfterRun() override;

    void stopShutdown();

signals:
    /// The machine will be shut down in so many seconds: from 60 down, each second; -1 when it was stopped.
    void shutdownIn(int seconds);
    /// The notification's "Show" was clicked.
    void showRequested(const QString &module);
};

}  // namespace kestrel
