#pragma once

#include <QObject>
#include <QTimer>

#include <memory>

namespace kestrel::foundation {
class UserDefaults;
}

namespace kestrel {

class LoggerWatcherTask;

/// What the user and the support learn of a run that went wrong: the log viewer, the report with the log of the run
/// before, and the mark in the user's defaults by which a run knows that the one before did not end in order. Main
/// thread only.
class ProblemReports : public QObject {
    Q_OBJECT
public:
    /// `defaults` outlives it.
    explicit ProblemReports(foundation::UserDefaults &defaults);
    ~ProblemReports() override;

    /// Shows this run's log in the log viewer, unless one is open already or the run has ended.
    void showLog();
    /// Null unless the log viewer runs, or is being started.
    std::shared_ptr<LoggerWatcherTask> viewer() const;
    /// Opens a message to the support with a copy of the previous run's log.
    void sendPreviousLog();
    /// Offers that after a run that did not end in order, and marks this one as under way.
    void checkAtLaunch();

    /// The end of the session counts as the end of the run until it is known that it goes on.
    void sessionWillEnd();
    /// The run has ended in order; what may come later marks it anew.
    void markEnded();
    /// Ends the viewer as well, for good.
    void runWillEnd();

private:
    void setNotSafeTerminate(bool isNotSafe);

    foundation::UserDefaults &m_defaults;
    std::shared_ptr<LoggerWatcherTask> m_viewer;  ///< the latest
    bool m_hasRunEnded = false;
    QTimer m_sessionEnd;  ///< active from the announcement of the session's end until that is overdue
};

}  // namespace kestrel
