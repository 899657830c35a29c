#pragma once

#include <QStringList>

#include <span>

namespace kestrel::cli {

/// What the shell sees of a run.
enum ExitStatus {
    AllDone = 0,
    SomeFailed = 1,
    WrongUsage = 2,
    SomeWithProblems = 3,
    InterruptedBySignal = 130,
};

/// What holds for every command.
struct Surroundings {
    bool json = false;  ///< results for programs: one object a line on standard output
};

/// One command of `kestrel-cli`: its arguments are what follows its name.
struct Command {
    const char *name;
    const char *synopsis;  ///< of its arguments
    const char *summary;   ///< one line, in English
    ExitStatus (*run)(const Surroundings &surroundings, const QStringList &arguments);
};

std::span<const Command> commands();

/// Where the arguments ask for help: prints how the command is used, as it stands in the table. False where they do
/// not. For commands without a table of options.
bool tellUsage(const char *command, const QStringList &arguments);
/// One sentence on standard error.
ExitStatus wrongUsage(const QString &sentence);
/// A line on standard output, at once. Where that cannot be written, the program says so once on standard error and
/// ends with SomeFailed.
void printLine(const QByteArray &line);

}  // namespace kestrel::cli
