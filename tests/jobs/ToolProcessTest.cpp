#include "jobs/LineCutter.h"
#include "jobs/ToolGuardian.h"
#include "jobs/ToolJob.h"
#include "jobs/ToolProcess.h"
#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QSignalSpy>

#include <sys/resource.h>
#include <algorithm>
#include <csignal>
#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kestrel {

namespace {

using Cause = ToolEnding::Cause;

ToolCommand shell(const QString &script)
{
    ToolGuardian::main().setProgram(QStringLiteral(KESTREL_TOOL_GUARDIAN));
    return {.program = u"/bin/sh"_s, .arguments = {u"-c"_s, script}};
}

/// The fields of /proc/PID/stat behind the name; none where the process has ended or waits to be taken note of.
QList<QByteArray> statusOf(qint64 process)
{
    QFile file(u"/proc/%1/stat"_s.arg(process));
    const QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    const QList<QByteArray> fields = text.mid(text.lastIndexOf(')') + 2).split(' ');
    return fields.value(0) == "Z" || fields.size() < 20 ? QList<QByteArray>() : fields;
}

bool isGone(qint64 process)
{
    return statusOf(process).isEmpty();
}

qint64 ticksOf(qint64 process)
{
    const QList<QByteArray> fields = statusOf(process);
    return fields.value(11).toLongLong() + fields.value(12).toLongLong();
}

/// A tool with what came of it.
class ToolRun {
public:
    explicit ToolRun(const ToolCommand &command) : tool(std::make_unique<ToolProcess>(command))
    {
        QObject::connect(tool.get(), &ToolProcess::outputLine, tool.get(),
                         [this](const QByteArray &line) { lines.append(line); });
        QObject::connect(tool.get(), &ToolProcess::errorLine, tool.get(),
                         [this](const QByteArray &line) { errors.append(line); });
        QObject::connect(tool.get(), &ToolProcess::ended, tool.get(), [this](const ToolEnding &how) {
            ending = how;
            ++ends;
        });
        tool->start();
        EXPECT_FALSE(ending);
    }

    /// Waits for so many lines, the numbers of processes, and answers them.
    QList<qint64> processes(qsizetype count)
    {
        EXPECT_TRUE(test::waitUntil([&] { return lines.size() >= count; }));
        QList<qint64> numbers;
        for (const QByteArray &line : lines)
            numbers.append(line.toLongLong());
        return numbers;
    }

    Cause end()
    {
        EXPECT_TRUE(test::waitUntil([&] { return ending.has_value(); }, 20'000));
        test::waitUntil([&] { return ends > 1; }, 1);
        EXPECT_EQ(ends, 1);
        return ending.value_or(ToolEnding()).cause;
    }

    std::unique_ptr<ToolProcess> tool;
    QByteArrayList lines, errors;
    std::optional<ToolEnding> ending;
    int ends = 0;
};

/// A job of tools given one after another.
class Chain : public ToolJob {
public:
    explicit Chain(QStringList scripts) : m_scripts(std::move(scripts)) {}

    void start() override { next(); }
    QStringList begun;
    int discards = 0;

protected:
    void discard() override { ++discards; }

private:
    void next()
    {
        if (m_scripts.isEmpty()) {
            finish({.state = JobState::Done});
            finish({.state = JobState::Failed});
            return;
        }
        const QString script = m_scripts.takeFirst();
        ToolProcess &tool = run(shell(script), [this](const ToolEnding &) { next(); });
        connect(&tool, &ToolProcess::outputLine, this,
                [this](const QByteArray &line) { begun.append(QString::fromUtf8(line)); });
    }

    QStringList m_scripts;
};

}  // namespace

TEST(ToolProcessTest, TellsHowAToolEnded)
{
    const auto with = [](const QString &script, auto change) {
        ToolCommand command = shell(script);
        change(command);
        return command;
    };
    const auto nothing = [](ToolCommand &) {};
    const struct {
        const char *name;
        ToolCommand command;
        Cause cause;
        int exitCode;
    } rows[] = {
        {"nothing said", with(u"exit 0"_s, nothing), Cause::Exited, 0},
        {"status", with(u"exit 3"_s, nothing), Cause::Exited, 3},
        {"signal", with(u"kill -SEGV $$"_s, nothing), Cause::Crashed, 128 + SIGSEGV},
        {"no program", with({}, [](ToolCommand &c) { c.program = u"/nowhere/tool"_s; }), Cause::CouldNotStart, 0},
        {"no folder", with({}, [](ToolCommand &c) { c.workingFolder = u"/nowhere"_s; }), Cause::CouldNotStart, 0},
        {"time", with(u"while :; do echo; sleep 0.01; done"_s, [](ToolCommand &c) { c.timeLimit = 150ms; }),
         Cause::TimeLimit, 128 + SIGKILL},
        {"busy silence",
         with(u"n=0; while [ $n -lt 600000 ]; do n=$((n+1)); done"_s, [](ToolCommand &c) { c.silenceLimit = 200ms; }),
         Cause::Exited, 0},
        {"busy for ever", with(u"while :; do :; done"_s, [](ToolCommand &c) { c.silenceLimit = 40ms; }), Cause::Silence,
         128 + SIGKILL},
        {"the same words",
         with(u"while sleep 0.02; do echo frame=0; done"_s,
              [](ToolCommand &c) { c.silenceLimit = 40ms, c.saysItLives = true; }),
         Cause::Silence, 128 + SIGKILL},
        {"silence", with(u"trap '' TERM INT; echo; sleep 100"_s, [](ToolCommand &c) { c.silenceLimit = 150ms; }),
         Cause::Silence, 128 + SIGKILL},
        {"output", with(u"yes"_s, [](ToolCommand &c) { c.outputLimit = 1000; }), Cause::OutputLimit, 128 + SIGKILL},
        {"no input", with(u"cat"_s, nothing), Cause::Exited, 0},
    };
    for (const auto &[name, command, cause, exitCode] : rows) {
        ToolRun run(command);
        EXPECT_EQ(run.end(), cause) << name;
        EXPECT_EQ(run.ending->exitCode, exitCode) << name;
        EXPECT_EQ(run.ending->lastWords.contains("No such file"_L1), cause == Cause::CouldNotStart) << name;
        EXPECT_TRUE(cause != Cause::OutputLimit || run.lines == QByteArrayList(500, "y"));
    }
}

TEST(ToolProcessTest, LinesAreWholeWhateverThePieces)
{
    const QByteArray text = QByteArray("a\nb\r\nc\rd\r\r\n\ne") + QByteArray(100'000, 'x') + "\nend";
    for (const int size : {1, 3, 200'000}) {
        LineCutter cutter;
        QByteArrayList lines;
        const auto take = [&](const QByteArray &line) {
            lines.append(line);
            return true;
        };
        for (qsizetype start = 0; start < text.size(); start += size)
            cutter.read(text.mid(start, size), take);
        cutter.finish(take);
        EXPECT_EQ(lines.mid(0, 6), QByteArrayList({"a", "b", "c", "d", "", ""})) << size;
        EXPECT_TRUE(lines.size() == 8 && lines[6].size() == LineCutter::maximumLength && lines[7] == "end") << size;
    }
}

TEST(ToolProcessTest, LastWordsAreTheLastAndWholeCharacters)
{
    ToolRun run(
        shell(u"i=0; while [ $i -lt 3000 ]; do echo 'zu öffnen: 文件' >&2; i=$((i+1)); done; printf end >&2"_s));
    EXPECT_EQ(run.end(), Cause::Exited);
    EXPECT_EQ(run.errors.size(), 3001);
    const QString words = run.ending->lastWords;
    EXPECT_TRUE(words.endsWith(u"文件\nend")) << words.right(20).toStdString();
    EXPECT_FALSE(words.contains(QChar::ReplacementCharacter));
    EXPECT_TRUE(words.toUtf8().size() > 16'000 && words.toUtf8().size() <= 16 * 1024);
}

TEST(ToolProcessTest, AGigabyteOfOutputFillsNoMemory)
{
    const auto mostKilobytes = [] {
        rusage usage = {};
        getrusage(RUSAGE_SELF, &usage);
        return usage.ru_maxrss;
    };
    constexpr int limitMs = 60'000;
    const auto before = mostKilobytes();
    ToolCommand talkative = shell(u"head -c 1000000000 /dev/zero; head -c 200000000 /dev/zero >&2"_s);
    ToolRun oneLine(talkative);
    EXPECT_TRUE(QSignalSpy(oneLine.tool.get(), &ToolProcess::ended).wait(limitMs));
    EXPECT_EQ(oneLine.end(), Cause::Exited);
    EXPECT_EQ(oneLine.lines, QByteArrayList({QByteArray(LineCutter::maximumLength, '\0')}));
    EXPECT_LT(mostKilobytes() - before, 10 * 1024);

    talkative.collectsOutput = true;
    ToolRun collected(talkative);
    EXPECT_TRUE(QSignalSpy(collected.tool.get(), &ToolProcess::ended).wait(limitMs));
    EXPECT_EQ(collected.end(), Cause::OutputLimit);
    EXPECT_EQ(collected.ending->output.size(), 64 * 1024 * 1024);
    EXPECT_LT(mostKilobytes() - before, 200 * 1024);  // it may be there twice while it grows
}

TEST(ToolProcessTest, NothingOfAToolLivesOn)
{
    // A tool that heeds nothing, with a child and a grandchild that say who they are
    const QString family =
        u"trap '' TERM INT HUP; echo $$; (trap '' TERM INT HUP; echo $(exec sh -c 'echo $PPID'); "
        "sleep 1000; sleep 1000) & sleep 1000 & echo $!; "_s;
    const struct {
        const char *name;
        QString last;
        std::function<void(ToolRun &)> end;
    } rows[] = {
        {"cancelled", u"wait"_s, [](ToolRun &run) { run.tool->cancel(); }},
        {"paused and cancelled", u"wait"_s,
         [](ToolRun &run) {
             run.tool->setPaused(true);
             run.tool->cancel();
         }},
        {"stopped from outside and cancelled", u"kill -STOP $$"_s, [](ToolRun &run) { run.tool->cancel(); }},
        {"deleted", u"wait"_s, [](ToolRun &run) { run.tool.reset(); }},
        {"ended by itself", u"sleep 0.2; exit 0"_s, [](ToolRun &) {}},
        {"asked in vain", u"wait; wait; sleep 1000"_s, [](ToolRun &run) { run.tool->stop(); }},
    };
    for (const auto &[name, last, end] : rows) {
        ToolCommand command = shell(family + last);
        command.patience = 100ms;
        ToolRun run(command);
        const QList<qint64> processes = run.processes(3);
        end(run);
        EXPECT_TRUE(test::waitUntil([&] { return std::all_of(processes.begin(), processes.end(), isGone); })) << name;
        EXPECT_TRUE(!run.tool || test::waitUntil([&] { return run.ends == 1; })) << name;
    }
}

TEST(ToolProcessTest, NothingLivesOnWhereTheProgramIsKilled)
{
    const QString family = u"echo $$; (trap '' TERM INT HUP; sleep 1000; sleep 1000) & echo $!; wait"_s;
    QProcess program;
    program.start(QStringLiteral(KESTREL_TOOLS_HELPER), {u"tool"_s, QStringLiteral(KESTREL_TOOL_GUARDIAN), family});
    QList<qint64> processes;
    ASSERT_TRUE(test::waitUntil([&] {
        while (program.canReadLine())
            processes.append(program.readLine().trimmed().toLongLong());
        return processes.size() == 2;
    }));
    // A terminal's Ctrl+C reaches a whole group: the guardian is in none of the program's.
    EXPECT_FALSE(isGone(processes[1]));
    program.kill();
    EXPECT_TRUE(program.waitForFinished());
    EXPECT_TRUE(test::waitUntil([&] { return isGone(processes[0]) && isGone(processes[1]); }));
}

TEST(ToolProcessTest, ToolsRunWithoutAGuardian)
{
    QProcess program;
    program.start(QStringLiteral(KESTREL_TOOLS_HELPER), {u"tool"_s, u"/nowhere"_s, u"echo here"_s});
    EXPECT_TRUE(program.waitForFinished() && program.exitCode() == 0);
    EXPECT_EQ(program.readAllStandardOutput(), "here\n");
}

TEST(ToolProcessTest, ACancelIsToldAtOnce)
{
    qint64 starting = 0, cancelling = 0;
    for (int run = 0; run < 10; ++run) {
        QElapsedTimer timer;
        timer.start();
        ToolRun running(shell(u"trap '' INT TERM; echo $$; while :; do :; done"_s));
        running.processes(1);
        starting += timer.nsecsElapsed();
        timer.start();
        running.tool->cancel();
        running.tool->cancel();
        EXPECT_EQ(running.end(), Cause::Cancelled);
        cancelling += timer.nsecsElapsed();
    }
    EXPECT_LE(cancelling, 4 * starting) << "a cancel is about as much work as a start";
    ToolRun unstarted({.program = u"/nowhere"_s});
    unstarted.tool->cancel();
    EXPECT_EQ(unstarted.end(), Cause::Cancelled);
}

TEST(ToolProcessTest, WhatIsPausedTakesNoTime)
{
    ToolCommand command = shell(u"echo $$; while :; do :; done & echo $!; while :; do :; done"_s);
    command.timeLimit = 400ms;
    command.silenceLimit = 300ms;
    ToolRun run(command);
    const QList<qint64> processes = run.processes(2);
    run.tool->setPaused(true);
    const auto isHeld = [](qint64 process) { return statusOf(process).value(0) == "T"; };
    ASSERT_TRUE(test::waitUntil([&] { return std::all_of(processes.begin(), processes.end(), isHeld); }));
    const qint64 before = ticksOf(processes[0]) + ticksOf(processes[1]);
    EXPECT_FALSE(test::waitUntil([&] { return run.ending.has_value(); }, 700));  // beyond both limits
    EXPECT_EQ(ticksOf(processes[0]) + ticksOf(processes[1]), before);
    run.tool->setPaused(false);
    EXPECT_EQ(run.end(), Cause::TimeLimit);
}

TEST(ToolProcessTest, AStoppedToolEndsWithWhatItHas)
{
    for (const bool isPaused : {false, true}) {
        ToolCommand command = shell(u"trap 'echo whole; exit 7' TERM; echo $$; while :; do sleep 0.01; done"_s);
        command.politeEnd = ToolCommand::PoliteEnd::Terminate;
        ToolRun run(command);
        run.processes(1);
        run.tool->setPaused(isPaused);
        run.tool->stop();
        EXPECT_EQ(run.end(), Cause::Stopped);
        EXPECT_EQ(run.ending->exitCode, 7);
        EXPECT_EQ(run.lines.last(), "whole");
    }
}

TEST(ToolProcessTest, AFeederEndsWithItsReader)
{
    const auto fed = [](const QString &feeder, const QString &reader) {
        ToolCommand command = shell(reader);
        command.feeder = std::make_shared<const ToolCommand>(shell(feeder));
        return command;
    };
    ToolRun good(fed(u"echo said >&2; head -c 3000000 /dev/zero; exit 5"_s, u"wc -c"_s));
    EXPECT_EQ(good.end(), Cause::Exited);
    EXPECT_EQ(good.lines, QByteArrayList({"3000000"}));
    EXPECT_EQ(good.errors, QByteArrayList({"said"}));
    EXPECT_EQ(good.ending->feederExitCode, 5);

    ToolRun early(fed(u"echo $$; trap '' PIPE; sleep 1000"_s, u"head -n 1"_s));
    EXPECT_EQ(early.end(), Cause::Exited);
    EXPECT_EQ(early.ending->feederExitCode, 128 + SIGKILL);
    EXPECT_TRUE(test::waitUntil([&] { return isGone(early.lines.value(0).toLongLong()); }));

    ToolCommand unfed = shell(u"cat; sleep 1000"_s);
    unfed.feeder = std::make_shared<const ToolCommand>(ToolCommand{.program = u"/nowhere"_s});
    ToolRun lacking(unfed);
    EXPECT_EQ(lacking.end(), Cause::CouldNotStart);

    ToolRun cancelled(fed(u"echo $$; sleep 1000"_s, u"echo $$; cat"_s));
    const QList<qint64> processes = cancelled.processes(2);
    cancelled.tool->cancel();
    EXPECT_EQ(cancelled.end(), Cause::Cancelled);
    EXPECT_TRUE(test::waitUntil([&] { return std::all_of(processes.begin(), processes.end(), isGone); }));
}

TEST(ToolProcessTest, MayBeTakenAwayByWhoHearsALine)
{
    auto tool = std::make_unique<ToolProcess>(shell(u"printf 'a\\nb\\nc\\n'; sleep 1000"_s));
    int lines = 0;
    QObject::connect(tool.get(), &ToolProcess::outputLine, qApp, [&] {
        ++lines;
        tool.reset();
    });
    tool->start();
    EXPECT_TRUE(test::waitUntil([&] { return lines > 0; }));
    EXPECT_FALSE(test::waitUntil([&] { return lines > 1; }, 50));
}

TEST(ToolJobTest, RunsItsToolsOneAfterAnotherAndTellsTheEndOnce)
{
    Chain chain({u"echo one"_s, u"echo two"_s});
    QSignalSpy finished(&chain, &Job::finished);
    chain.start();
    EXPECT_TRUE(test::waitUntil([&] { return !finished.isEmpty(); }));
    EXPECT_FALSE(test::waitUntil([&] { return finished.size() > 1; }, 20));
    EXPECT_EQ(chain.begun, QStringList({u"one"_s, u"two"_s}));
    EXPECT_EQ(finished[0][0].value<JobOutcome>().state, JobState::Done);
    EXPECT_EQ(chain.discards, 0);
}

TEST(ToolJobTest, ACancelOrAStopReachesTheToolOfTheMoment)
{
    const struct {
        const char *name;
        std::function<void(Chain &)> act;
        QStringList begun;
        JobState state;
    } rows[] = {
        {"cancelled", [](Chain &chain) { chain.cancel(); }, {u"one"_s}, JobState::Cancelled},
        {"stopped", [](Chain &chain) { chain.stop(); }, {u"one"_s, u"two"_s}, JobState::Done},
        {"the next waits while paused, and is cancelled",
         [](Chain &chain) {
             chain.setPaused(true);
             chain.cancel();
         },
         {u"one"_s},
         JobState::Cancelled},
    };
    for (const auto &[name, act, begun, state] : rows) {
        Chain chain({u"echo one; sleep 1000"_s, u"echo two"_s});
        QSignalSpy finished(&chain, &Job::finished);
        chain.start();
        EXPECT_TRUE(test::waitUntil([&] { return chain.begun.size() == 1; })) << name;
        act(chain);
        EXPECT_TRUE(test::waitUntil([&] { return !finished.isEmpty(); })) << name;
        EXPECT_EQ(finished.value(0).value(0).value<JobOutcome>().state, state) << name;
        EXPECT_EQ(chain.discards, state == JobState::Cancelled) << name;
        EXPECT_EQ(chain.begun, begun) << name;
    }
}

TEST(ToolJobTest, WhilePausedTheNextToolDoesNotBegin)
{
    Chain chain({u"echo one"_s, u"echo two"_s});
    QSignalSpy finished(&chain, &Job::finished);
    chain.setPaused(true);
    chain.start();
    EXPECT_FALSE(test::waitUntil([&] { return !chain.begun.isEmpty(); }, 50));
    chain.setPaused(false);
    EXPECT_TRUE(test::waitUntil([&] { return !finished.isEmpty(); }));
    EXPECT_EQ(chain.begun.size(), 2);
}

}  // namespace kestrel
