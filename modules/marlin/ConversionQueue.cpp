#include "ConversionQueue.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

ConversionQueue::ConversionQueue(ConversionList &list, QObject *parent) : QObject(parent), m_list(list) {}

ConversionQueue::~ConversionQueue() = default;

QList<qint64> ConversionQueue::convertibleIds() const
{
    return m_list.idsIn({ConversionState::Ready, ConversionState::Failed, ConversionState::Stopped});
}

void ConversionQueue::start(const ConversionPlan &plan)
{
    if (m_isRunning || convertibleIds().isEmpty())
        return;
    m_plan = plan;
    marlin::OutputFile::removeStaleParts(plan.folder);
    m_ids = convertibleIds();
    m_index = -1;
    m_isRunning = true;
    m_isCancelled = false;
    m_succeeded = 0;
    m_doneWeight = m_totalWeight = m_currentFraction = 0;
    m_remaining = {};
    m_elapsed.start();

    // A file counts by its length; one that does not tell counts like the average of the others.
    double known = 0;
    int knownCount = 0;
    for (const qint64 id : std::as_const(m_ids)) {
        m_list.change(id, [](ConversionItem &item) {
            item.state = ConversionState::Waiting;
            item.reason = item.details = item.outputPath = QString();
        });
        const auto duration = m_list.item(id)->information.duration;
        known += duration.value_or(0);
        knownCount += duration ? 1 : 0;
    }
    m_isMeasurable = knownCount > 0;
    m_unknownWeight = m_isMeasurable ? known / knownCount : 1;
    for (const qint64 id : std::as_const(m_ids))
        m_totalWeight += weightOf(id);
    emit started();
    startNext();
}

void ConversionQueue::cancel()
{
    if (!m_isRunning || m_isCancelled)
        return;
    m_isCancelled = true;
    if (m_job)
        m_job->cancel();
}

void ConversionQueue::startNext()
{
    m_job.reset();
    m_currentFraction = 0;
    for (++m_index; m_index < m_ids.size() && !m_isCancelled; ++m_index) {
        const qint64 id = m_ids[m_index];
        const ConversionItem *item = m_list.item(id);
        const QString reason = item ? unsuitableReason(item->information, *m_plan.target) : QString();
        if (item && reason.isNull()) {
            report();
            startJob(*item);
            return;
        }
        m_doneWeight += weightOf(id);
        m_list.change(id, [&](ConversionItem &unsuitable) {
            unsuitable.state = ConversionState::Failed;
            unsuitable.reason = reason;
        });
    }
    finish();
}

void ConversionQueue::startJob(const ConversionItem &item)
{
    m_job = std::make_unique<ConversionJob>(ConversionRequest{.transcoderPath = m_plan.transcoderPath,
                                                              .source = item.path,
                                                              .information = item.information,
                                                              .target = m_plan.target,
                                                              .options = m_plan.options,
                                                              .folder = m_plan.folder});
    connect(m_job.get(), &ConversionJob::progressed, this, &ConversionQueue::jobProgressed);
    connect(m_job.get(), &ConversionJob::finished, this, &ConversionQueue::jobFinished);
    m_job->start();
    jobProgressed(item.information.duration ? std::optional<double>(0) : std::nullopt, 0);
}

void ConversionQueue::jobProgressed(std::optional<double> fraction, double processed)
{
    m_list.change(m_ids[m_index], [&](ConversionItem &item) {
        item.state = ConversionState::Converting;
        item.fraction = fraction;
        item.processed = processed;
    });
    m_currentFraction = fraction.value_or(0);
    report();
}

void ConversionQueue::jobFinished(const ConversionResult &result)
{
    const bool isDone = !result.outputPath.isNull();
    m_succeeded += isDone ? 1 : 0;
    m_list.change(m_ids[m_index], [&](ConversionItem &item) {
        item.state = isDone                   ? ConversionState::Done
                     : result.reason.isNull() ? ConversionState::Stopped
                                              : ConversionState::Failed;
        item.reason = result.reason;
        item.details = result.details;
        item.outputPath = result.outputPath;
    });
    m_doneWeight += weightOf(m_ids[m_index]);
    m_currentFraction = 0;
    // The job is in the middle of its signal.
    QMetaObject::invokeMethod(this, &ConversionQueue::startNext, Qt::QueuedConnection);
}

void ConversionQueue::finish()
{
    for (const qint64 id : std::as_const(m_ids)) {
        const ConversionItem *item = m_list.item(id);
        if (item && item->state == ConversionState::Waiting)
            m_list.change(id, [](ConversionItem &waiting) { waiting.state = ConversionState::Stopped; });
    }
    m_isRunning = false;
    emit finished(m_succeeded, m_isCancelled);
}

void ConversionQueue::report()
{
    const double current = m_currentFraction * weightOf(m_ids[m_index]);
    const double fraction = std::clamp((m_doneWeight + current) / m_totalWeight, 0.0, 1.0);
    m_remaining.update(fraction, double(m_elapsed.elapsed()) / 1000);
    emit progressed({m_isMeasurable ? std::optional(fraction) : std::nullopt, int(m_index) + 1, int(m_ids.size()),
                     m_remaining.seconds()});
}

double ConversionQueue::weightOf(qint64 id) const
{
    const ConversionItem *item = m_list.item(id);
    return item ? item->information.duration.value_or(m_unknownWeight) : m_unknownWeight;
}

}  // namespace kestrel
