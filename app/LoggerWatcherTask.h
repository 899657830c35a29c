#pragma once

#include <QMutex>
#include <QString>
#include <QStringList>

#include <atomic>

class QProcess;

namespace kestrel {

/// One run of the log viewer, from the click to the viewer's end. It ends with the application, also with one that is
/// killed. Any thread.
class LoggerWatcherTask {
public:
    /// Starts the viewer and waits until it exits. For a background queue, once an object. A viewer that cannot be
    /// started is logged.
    void run(const QString &program, const QStringList &arguments);

    /// Asks the viewer to come to the front; nothing where none runs.
    void raise();

    /// Ends the viewer, or keeps it from starting; one that does not heed this is killed a second later.
    void terminate();

    /// `run` has waited, or could not start the viewer.
    bool hasEnded() const { return m_hasEnded; }

private:
    QMutex m_mutex;
    QProcess *m_process = nullptr;  ///< while it runs; its thread is that of `run`
    bool m_isTerminated = false;
    std::atomic<bool> m_hasEnded = false;
};

}  // namespace kestrel
