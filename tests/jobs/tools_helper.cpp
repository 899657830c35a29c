// What the tests need another process for, to be killed in the midst of it. The first argument names the task.

#include "jobs/OutputFile.h"
#include "jobs/ToolGuardian.h"
#include "jobs/ToolProcess.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <cerrno>
#include <cstddef>
#include <iterator>

using namespace Qt::StringLiterals;
using namespace kestrel;

namespace {

/// <guardian> <script>: runs it as a tool and passes its lines on.
int runTool(const QStringList &arguments)
{
    ToolGuardian::main().setProgram(arguments.at(2));
    ToolProcess tool({.program = u"/bin/sh"_s, .arguments = {u"-c"_s, arguments.at(3)}});
    QObject::connect(&tool, &ToolProcess::outputLine, &tool,
                     [](const QByteArray &line) { QTextStream(stdout) << line << Qt::endl; });
    QObject::connect(&tool, &ToolProcess::ended, qApp, &QCoreApplication::quit);
    tool.start();
    return QCoreApplication::exec();
}

/// <folder>: begins a file and a folder with something in it, and waits.
int begin(const QStringList &arguments)
{
    const OutputFile file(arguments.at(2), u"film"_s, u"mkv"_s);
    const OutputFile folder(arguments.at(2), u"disc"_s, {}, OutputFile::Kind::Folder);
    QFile inside(folder.partPath() + u"/VIDEO_TS.IFO"_s);
    if (!file.isValid() || !folder.isValid() || !inside.open(QIODevice::WriteOnly))
        return 1;
    QTextStream(stdout) << "begun" << Qt::endl;
    return QCoreApplication::exec();
}

/// From now on that call of the system fails in this process.
bool refuse(quint32 call, quint32 error)
{
    sock_filter rules[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, call, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | error),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog program = {std::size(rules), rules};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

/// <folder>: places a file and a folder where the system cannot refuse to write over; then one where it does not rename
/// at all.
int placeOldStyle(const QStringList &arguments)
{
    if (!refuse(SYS_renameat2, EINVAL))
        return 2;
    for (const auto kind : {OutputFile::Kind::File, OutputFile::Kind::Folder}) {
        OutputFile output(arguments.at(2), u"film"_s, u"mkv"_s, kind);
        if (!output.publish())
            return 1;
    }
    if (!refuse(SYS_rename, EIO))
        return 2;
    OutputFile lost(arguments.at(2), u"lost"_s, u"mkv"_s);
    return lost.publish() ? 1 : 0;
}

}  // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString task = arguments.at(1);
    return task == "tool"_L1 ? runTool(arguments) : task == "begin"_L1 ? begin(arguments) : placeOldStyle(arguments);
}
