#include "ToolProcess.h"

#include "LineCutter.h"
#include "ToolGroup.h"
#include "tarnwell/Log.h"

#include <QElapsedTimer>
#include <QMetaMethod>
#include <QPointer>
#include <QTimer>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <limits>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kestrel {

namespace {

constexpr qsizetype lastWordsLength = 16 * 1024;
constexpr qint64 maximumCollected = 64 * 1024 * 1024;
constexpr auto deathLimit = 80ms;       ///< then the end is told, however long a dying disk holds the tool
constexpr auto feederPatience = 250ms;  ///< in which a feeder that nobody reads any more may end by itself

/// The end of what a tool said, from the start of a character on.
QString wordsOf(const QByteArray &bytes)
{
    const auto isInsideCharacter = [](char byte) { return (uchar(byte) & 0xC0) == 0x80; };
    const QByteArray end = bytes.last(std::min(bytes.size(), lastWordsLength));
    const auto start =
        std::find_if_not(end.begin(), end.begin() + std::min<qsizetype>(end.size(), 3), isInsideCharacter);
    return QString::fromUtf8(start, end.end() - start).remove(QChar::Null);
}

}  // namespace

class ToolProcess::Private {
public:
    Private(ToolProcess &owner, ToolCommand given);

    void start();
    void end(ToolEnding::Cause why);
    void setPaused(bool paused);
    void sendToAll(int signal);
    void sendToFeeder(int signal);
    void noteProgress() { m_sinceLastByte.start(); }
    bool isUnderWay() const { return m_isStarted && !m_isOver; }

    const ToolCommand &command() const { return m_command; }
    ToolGroup &tool() { return *m_tool; }

    std::optional<ToolEnding::Cause> cause;  ///< once it is to end
    QTimer patience;
    bool isPaused = false;

private:
    void connectTool();
    void startLimits();
    void noteWord()
    {
        if (!m_command.saysItLives)
            noteProgress();
    }
    bool isIdle(const GroupActivity &now);
    void readOutput(const QByteArray &piece);
    void readError(LineCutter &cutter, const QByteArray &piece);
    void checkSilence();
    void toolEnded();
    void conclude();

    ToolProcess &m_owner;
    const ToolCommand m_command;
    std::unique_ptr<ToolGroup> m_feeder;
    std::unique_ptr<ToolGroup> m_tool;
    LineCutter m_outputLines, m_errorLines, m_feederLines;
    QByteArray m_collected;
    QByteArray m_lastWords;
    qint64 m_outputBytes = 0;
    QTimer m_time, m_silence, m_death;
    std::chrono::milliseconds m_timeLeft;
    QElapsedTimer m_sinceLastByte;
    std::optional<GroupActivity> m_watched;  ///< as it was when it was looked at last in this silence
    int m_spins = 0;
    bool m_isStarted = false;
    bool m_isOver = false;
};

ToolProcess::Private::Private(ToolProcess &owner, ToolCommand given)
    : m_owner(owner),
      m_command(std::move(given)),
      m_tool(std::make_unique<ToolGroup>(m_command)),
      m_timeLeft(m_command.timeLimit)
{
    for (QTimer *timer : {&patience, &m_time, &m_silence, &m_death})
        timer->setSingleShot(true);
    connect(&patience, &QTimer::timeout, &m_owner, [this] { end(ToolEnding::Cause::Stopped); });
    connect(&m_time, &QTimer::timeout, &m_owner, [this] { end(ToolEnding::Cause::TimeLimit); });
    connect(&m_silence, &QTimer::timeout, &m_owner, [this] { checkSilence(); });
    connect(&m_death, &QTimer::timeout, &m_owner, [this] { conclude(); });
    connect(m_tool.get(), &ToolGroup::outputRead, &m_owner, [this](const QByteArray &piece) { readOutput(piece); });
    connect(m_tool.get(), &ToolGroup::errorRead, &m_owner,
            [this](const QByteArray &piece) { readError(m_errorLines, piece); });
    connect(m_tool.get(), &ToolGroup::ended, &m_owner, [this] { toolEnded(); });
    if (!m_command.feeder)
        return;
    m_feeder = std::make_unique<ToolGroup>(*m_command.feeder);
    m_feeder->feed(*m_tool);
    connect(m_feeder.get(), &ToolGroup::errorRead, &m_owner,
            [this](const QByteArray &piece) { readError(m_feederLines, piece); });
    connect(m_feeder.get(), &ToolGroup::ended, &m_owner, [this] {
        if (!m_feeder->hasStarted())
            end(ToolEnding::Cause::CouldNotStart);
        else if (m_isStarted && !m_tool->isAlive())
            conclude();
    });
}

void ToolProcess::Private::start()
{
    if (m_isStarted)
        return;
    m_isStarted = true;
    if (cause) {  // it was to end before it began
        conclude();
        return;
    }
    if (m_feeder)
        m_feeder->start();
    if (!cause)
        m_tool->start();
    if (isPaused)
        sendToAll(SIGSTOP);
    else
        startLimits();
}

void ToolProcess::Private::startLimits()
{
    if (m_command.timeLimit > 0ms)
        m_time.start(std::max(m_timeLeft, 1ms));
    noteProgress();
    m_watched.reset();
    m_spins = 0;
    if (m_command.silenceLimit > 0ms)
        m_silence.start(m_command.silenceLimit);
}

/// Kills everything. The first cause is the one that is told, but for a cancel.
void ToolProcess::Private::end(ToolEnding::Cause why)
{
    if (m_isOver)
        return;
    if (!cause || why == ToolEnding::Cause::Cancelled)
        cause = why;
    if (!m_isStarted)
        return;
    sendToAll(SIGKILL);
    const bool isAlive = m_tool->isAlive() || (m_feeder && m_feeder->isAlive());
    m_death.start(isAlive ? deathLimit : 0ms);
}

void ToolProcess::Private::setPaused(bool paused)
{
    if (isPaused == paused || m_isOver || (paused && cause))
        return;
    isPaused = paused;
    if (!m_isStarted)
        return;
    sendToAll(paused ? SIGSTOP : SIGCONT);
    if (!paused) {
        startLimits();
        return;
    }
    m_timeLeft = m_time.isActive() ? m_time.remainingTimeAsDuration() : m_timeLeft;
    m_time.stop();
    m_silence.stop();
}

void ToolProcess::Private::sendToAll(int signal)
{
    m_tool->send(signal);
    if (m_feeder)
        m_feeder->send(signal);
}

void ToolProcess::Private::sendToFeeder(int signal)
{
    if (m_feeder && isUnderWay())
        m_feeder->send(signal);
}

void ToolProcess::Private::readOutput(const QByteArray &piece)
{
    noteWord();
    if (m_isOver || cause == ToolEnding::Cause::Cancelled || cause == ToolEnding::Cause::OutputLimit)
        return;
    const qint64 limit = m_command.outputLimit > 0  ? m_command.outputLimit
                         : m_command.collectsOutput ? maximumCollected
                                                    : std::numeric_limits<qint64>::max();
    const QByteArray wanted = piece.first(std::min<qint64>(piece.size(), limit - m_outputBytes));
    m_outputBytes += wanted.size();
    const QPointer<ToolProcess> alive(&m_owner);
    if (m_command.collectsOutput) {
        m_collected += wanted;
    } else if (m_owner.isSignalConnected(QMetaMethod::fromSignal(&ToolProcess::outputLine))) {
        m_outputLines.read(wanted, [this, &alive](const QByteArray &line) {
            emit m_owner.outputLine(line);
            return alive && cause != ToolEnding::Cause::Cancelled;
        });
    }
    if (alive && wanted.size() < piece.size())
        end(ToolEnding::Cause::OutputLimit);
}

void ToolProcess::Private::readError(LineCutter &cutter, const QByteArray &piece)
{
    noteWord();
    if (m_isOver || cause == ToolEnding::Cause::Cancelled)
        return;
    m_lastWords += piece;
    if (m_lastWords.size() > 2 * lastWordsLength)
        m_lastWords.remove(0, m_lastWords.size() - lastWordsLength);
    const QPointer<ToolProcess> alive(&m_owner);
    cutter.read(piece, [this, &alive](const QByteArray &line) {
        emit m_owner.errorLine(line);
        return alive && cause != ToolEnding::Cause::Cancelled;
    });
}

void ToolProcess::Private::checkSilence()
{
    const auto left = m_command.silenceLimit - std::chrono::milliseconds(m_sinceLastByte.elapsed());
    if (left > 0ms) {
        m_watched.reset();
        m_silence.start(left);
        return;
    }
    GroupActivity now = m_tool->activity();
    if (m_feeder)
        now += m_feeder->activity();
    if (m_watched && isIdle(now))
        return end(ToolEnding::Cause::Silence);
    m_watched = now;
    m_silence.start(m_command.silenceLimit);
}

/// A large file that is rewritten at the end, or a picture that takes minutes, is silent work.
bool ToolProcess::Private::isIdle(const GroupActivity &now)
{
    constexpr qint64 bytesOfLife = 1'000'000;  // reports that repeat themselves stay below
    constexpr qint64 shareOfLife = 100;
    const qint64 processorMs = now.processorMs - m_watched->processorMs;
    m_spins = std::abs(now.bytes - m_watched->bytes) < bytesOfLife ? m_spins + 1 : 0;
    if (m_spins == 0)
        return false;
    return m_spins >= ToolCommand::maximumSpins || processorMs <= m_command.silenceLimit.count() / shareOfLife;
}

void ToolProcess::Private::toolEnded()
{
    if (!m_tool->hasStarted() && !cause) {
        cause = ToolEnding::Cause::CouldNotStart;
        tarnwell::DNFootLog(u"A tool could not be started: %1"_s, m_tool->startFailure());
    }
    if (!m_feeder || !m_feeder->isAlive()) {
        conclude();
        return;
    }
    if (cause)
        m_feeder->send(SIGKILL);
    m_death.start(cause ? deathLimit : feederPatience);
}

void ToolProcess::Private::conclude()
{
    if (std::exchange(m_isOver, true))
        return;
    for (QTimer *timer : {&patience, &m_time, &m_silence, &m_death})
        timer->stop();
    sendToAll(SIGKILL);
    ToolEnding ending;
    const bool hasRun = m_tool->hasStarted();
    if (cause)
        ending.cause = *cause;
    else if (m_tool->hasCrashed())
        ending.cause = ToolEnding::Cause::Crashed;
    constexpr int killed = 128 + SIGKILL;
    ending.exitCode = !hasRun ? 0 : m_tool->isAlive() ? killed : m_tool->exitCode();
    if (m_feeder)
        ending.feederExitCode = m_feeder->isAlive() ? killed : m_feeder->exitCode();
    ending.output = std::exchange(m_collected, {});
    ending.lastWords = wordsOf(m_lastWords);
    if (ending.cause == ToolEnding::Cause::CouldNotStart)
        ending.lastWords += hasRun && m_feeder ? m_feeder->startFailure() : m_tool->startFailure();

    const QPointer<ToolProcess> alive(&m_owner);
    const auto flush = [&](LineCutter &cutter, auto line) {
        if (!alive || ending.cause == ToolEnding::Cause::Cancelled)
            return;
        cutter.finish([&](const QByteArray &text) {
            emit(m_owner.*line)(text);
            return true;
        });
    };
    flush(m_outputLines, &ToolProcess::outputLine);
    for (LineCutter *cutter : {&m_errorLines, &m_feederLines})
        flush(*cutter, &ToolProcess::errorLine);
    // Later: whoever hears it may take the process away.
    if (alive)
        QMetaObject::invokeMethod(
            &m_owner, [this, ending] { emit m_owner.ended(ending); }, Qt::QueuedConnection);
}

ToolProcess::ToolProcess(ToolCommand command, QObject *parent)
    : QObject(parent),
      d(std::make_unique<Private>(*this, std::move(command)))
{
}

ToolProcess::~ToolProcess() = default;

void ToolProcess::start()
{
    d->start();
}

void ToolProcess::stop()
{
    if (d->cause)
        return;
    d->cause = ToolEnding::Cause::Stopped;
    if (!d->isUnderWay())
        return;
    d->setPaused(false);
    d->tool().send(d->command().politeEnd == ToolCommand::PoliteEnd::Interrupt ? SIGINT : SIGTERM);
    d->patience.start(d->command().patience);
}

void ToolProcess::cancel()
{
    d->end(ToolEnding::Cause::Cancelled);
}

void ToolProcess::setPaused(bool paused)
{
    d->setPaused(paused);
}

void ToolProcess::sendToFeeder(int signal)
{
    d->sendToFeeder(signal);
}

void ToolProcess::noteProgress()
{
    d->noteProgress();
}

bool ToolProcess::isRunning() const
{
    return d->isUnderWay();
}

}  // namespace kestrel
