#pragma once

#include "Command.h"
#include "jobs/JobRecord.h"

#include <QElapsedTimer>

namespace kestrel::cli {

/// A text from outside as one line of a terminal: control characters do nothing there.
QString shown(QString text);

/// Tells about jobs on standard output: an object a line for programs, in English, or sentences in the interface's
/// language, with a line on a terminal that tells how far they are.
class JobReporter {
public:
    JobReporter(const Surroundings &surroundings, qsizetype jobs);

    /// `number` counts the jobs of this run from 1.
    void progress(qsizetype number, const JobRecord &record);
    void result(qsizetype number, const JobRecord &record);
    /// Of all results so far.
    ExitStatus status() const { return m_status; }

private:
    void showLine(const QString &text);
    void clearLine();

    Surroundings m_surroundings;
    qsizetype m_jobs;
    bool m_hasTerminal;
    bool m_isLineShown = false;
    QString m_toldBlocked;
    ExitStatus m_status = AllDone;
};

}  // namespace kestrel::cli
