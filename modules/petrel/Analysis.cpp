#include "Analysis.h"

#include "foundation/StandardFolders.h"

#include <algorithm>

namespace kestrel {

Analysis::Analysis(std::function<EngineTools()> tools, const QString &answers, QObject *parent)
    : QObject(parent),
      m_tools(std::move(tools)),
      m_answers(answers)
{
}

Analysis::~Analysis() = default;

void Analysis::ask(qint64 id, const DownloadPlan &plan)
{
    if (const auto known = m_answers.answer(plan))
        return answerLater(id, *known);
    m_pending.append({id, plan});
    startPending();
}

void Analysis::stop(qint64 id)
{
    m_pending.removeIf([id](const Request &request) { return request.id == id; });
    const auto found =
        std::find_if(m_running.begin(), m_running.end(), [id](const Run &run) { return run.request.id == id; });
    if (found != m_running.end())
        m_running.erase(found);
    startPending();
}

void Analysis::startPending()
{
    while (!m_pending.isEmpty() && m_running.size() < size_t(maximumAtOnce)) {
        const Request request = m_pending.takeFirst();
        const EngineTools tools = m_tools();
        foundation::makePrivateFolder(tools.home);
        auto process = std::make_unique<ToolProcess>(analysisCommand(request.plan, tools));
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
    const DownloadPlan plan = found->request.plan;
    found->process.release()->deleteLater();  // this is called by it
    m_running.erase(found);
    startPending();
    if (!ending.isGood()) {
        const EngineFailure failure = engineFailure(ending, plan.proxy);
        emit answered(id, foundation::Failure{Refusal{failure.sentence, ending.lastWords, failure.kind}});
        return;
    }
    const auto answer = parseEngineAnswer(ending.output, plan.address);
    if (!answer) {
        emit answered(id, foundation::Failure{Refusal{answer.reason(), ending.lastWords}});
        return;
    }
    m_answers.keep(plan, *answer);
    emit answered(id, *answer);
}

void Analysis::answerLater(qint64 id, const Answer &answer)
{
    QMetaObject::invokeMethod(
        this, [this, id, answer] { emit answered(id, answer); }, Qt::QueuedConnection);
}

}  // namespace kestrel
