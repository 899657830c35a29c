#pragma once

#include <QMutex>
#include <QString>

#include <sys/types.h>
#include <set>

namespace kestrel {

/// The small program of the bundle that kills the process groups of tools where this process is killed. It is started
/// with the first tool and once more where it has ended; where that cannot be done, tools run without it and the log
/// says so. Any thread.
class ToolGuardian {
public:
    static ToolGuardian &main();

    /// The program; that of the bundle by default. Before the first tool.
    void setProgram(const QString &path);

    /// Starts the program where it does not run. What a child tells of itself between its start and its program goes
    /// to the answer, so that it is known from its first instruction on; -1 where there is no guardian.
    int channel();
    static void announce(int channel, pid_t group);  ///< safe between fork and exec

    void add(pid_t group);
    void remove(pid_t group);  ///< after the last of the group has ended or was killed

private:
    bool start();
    bool send(char sign, pid_t group);

    QMutex m_mutex;
    QString m_program;
    int m_channel = -1;
    bool m_isMissing = false;
    std::set<pid_t> m_groups;
};

}  // namespace kestrel
