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

    /// Shows this run's log in the log viewer, unless the run has ended; one that is open already comes to the front.
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
    /// Whether the settings could be saved at the end; the next run tells where not.
    void noteSaved(bool isSaved);
    /// Ends the viewer as well, for good.
    void runWillEnd();

private:
    /// Tells that the previous run could not save at its end; true where it was so. That is no unclean end.
    bool tellUnsavedEnd() const;
    void setNotSafeTerminate(bool isNotSafe);

    foundation::UserDefaults &m_defaults;
    std::shared_ptr<LoggerWatcherTask> m_viewer;  ///< the latest
    bool m_hasRunEnded = false;
    QTimer m_sessionEnd;  ///< active from the announcement of the session's end until that is overdue
};

}  // namespace kestrel
