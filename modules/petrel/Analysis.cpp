#include "Analysis.h"

#include "foundation/Queues.h"
#include "foundation/StandardFolders.h"

#include <QPointer>

#include <algorithm>
#include <utility>

using namespace std::chrono_literals;

namespace kestrel {

Analysis::Analysis(std::function<EngineTools()> tools, const QString &answers, Patience patience, QObject *parent)
    : QObject(parent),
      m_tools(std::move(tools)),
      m_answers(answers),
      m_patience(patience)
{
}

Analysis::~Analysis() = default;

void Analysis::ask(qint64 id, const DownloadPlan &plan)
{
    read(
        id, [plan, answers = m_answers] { return answers.answer(plan); },
        [this, id, plan](const std::optional<EngineAnswer> &known) {
            if (known) {
                emit answered(id, *known);
                return;
            }
            m_pending.append({id, plan});
            startPending();
        });
}

void Analysis::stop(qint64 id)
{
    const auto isIt = [id](const Request &request) { return request.id == id; };
    m_pending.removeIf(isIt);
    m_waiting.removeIf(isIt);
    m_readings.remove(id);
    std::erase_if(m_running, [&](const Run &run) { return isIt(run.request); });
    startPending();
}

void Analysis::startPending()
{
    while (!m_pending.isEmpty() && m_running.size() < size_t(maximumAtOnce)) {
        Request request = m_pending.takeFirst();
        if (request.tools.engine.isEmpty())
            request.tools = m_tools();
        foundation::makePrivateFolder(request.tools.home);
        auto process = std::make_unique<ToolProcess>(analysisCommand(request.plan, request.tools));
        connect(process.get(), &ToolProcess::ended, this,
                [this, id = request.id](const ToolEnding &ending) { ended(id, ending); });
        process->start();
        m_running.push_back({request, std::move(process)});
    }
}

void Analysis::ended(qint64 id, const ToolEnding &ending)
{
    const auto found =
        std::find_if(m_running.begin(), m_running.end(), [id](const Run &run) { return run.request.id == id; });
    if (found == m_running.end())
        return;
    const Request request = found->request;
    found->process.release()->deleteLater();  // this is called by it
    m_running.erase(found);
    if (!ending.isGood())
        return failed(request, ending);
    startPending();
    read(
        id,
        [plan = request.plan, output = ending.output, answers = m_answers] {
            const auto answer = parseEngineAnswer(output, plan.address);
            if (answer)
                answers.keep(plan, *answer);
            return answer;
        },
        [this, request, words = ending.lastWords](const auto &answer) { tell(request, answer, words); });
}

template <typename Reader, typename Taker>
void Analysis::read(qint64 id, Reader reader, Taker taker)
{
    const quint64 reading = ++m_lastReading;
    m_readings[id] = reading;
    foundation::queue::asyncGlobal([self = QPointer(this), id, reading, reader, taker] {
        foundation::queue::asyncMain([self, id, reading, taker, what = reader()] {
            if (!self || self->m_readings.value(id) != reading)
                return;
            self->m_readings.remove(id);
            taker(what);
        });
    });
}

void Analysis::tell(const Request &request, const foundation::Result<EngineAnswer, tarnwell::Sentence> &answer,
                    const QString &words)
{
    if (!answer) {
        emit answered(request.id, foundation::Failure{Refusal{answer.reason(), words}});
        return;
    }
    // It has done what the one before could not.
    if (!request.tools.failed.isNull())
        request.tools.tried(request.tools, std::nullopt);
    emit answered(request.id, *answer);
}

void Analysis::failed(Request request, const ToolEnding &ending)
{
    const EngineFailure failure = engineFailure(ending, request.plan.proxy);
    if (takeOtherEngine(request.tools, failure.kind)) {
        m_pending.prepend(request);
        return startPending();
    }
    startPending();
    const int asked = retryAfterIn(ending.output);
    const bool isWaitedOut = m_patience == Patience::WaitsOut && passesByItself(failure.kind);
    const auto seconds = isWaitedOut ? request.attempts.next(failure.kind, asked) : std::nullopt;
    if (!seconds) {
        const Refusal refusal{givenUpSentence(failure, asked), ending.lastWords, failure.kind};
        emit answered(request.id, foundation::Failure{refusal});
        return;
    }
    request.failure = failure.kind;
    request.seconds = *seconds;
    m_waiting.append(request);
    waitOn();
    emit waits(request.id, failure.kind, *seconds);
}

/// By a second, as long as there is something to wait for.
void Analysis::waitOn()
{
    if (m_waiting.isEmpty() || std::exchange(m_isWaiting, true))
        return;
    foundation::queue::afterMain(1s, [self = QPointer(this)] {
        if (self)
            self->secondPassed();
    });
}

void Analysis::secondPassed()
{
    constexpr int seldom = 5;  // a row that tells it is stored each time
    for (Request &request : m_waiting) {
        if (--request.seconds == 0)
            m_pending.append(request);
    }
    const QList<Request> told = m_waiting;  // who is told may stop some
    m_waiting.removeIf([](const Request &request) { return request.seconds == 0; });
    startPending();
    m_isWaiting = false;
    waitOn();
    for (const Request &request : told) {
        if (request.seconds < seldom || request.seconds % seldom == 0)
            emit waits(request.id, request.failure, request.seconds);
    }
}

}  // namespace kestrel
