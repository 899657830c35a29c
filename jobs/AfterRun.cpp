#include "AfterRun.h"

#include "DesktopServices.h"
#include "JobQueue.h"
#include "foundation/Bundle.h"
#include "foundation/Queues.h"
#include "tarnwell/Localization.h"
#include "tarnwell/ProductInformation.h"
#include "tarnwell/WebPages.h"

#include <QPointer>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace kestrel::tarnwell;

namespace kestrel {

namespace {

constexpr auto timeBetweenStates = 250ms;
constexpr int secondsBeforeShutdown = 60;

constexpr std::pair<JobState, TextKey> countTexts[] = {{JobState::Done, "Done: %1"_key},
                                                       {JobState::DoneWithProblems, "Done with problems: %1"_key},
                                                       {JobState::Failed, "Failed: %1"_key},
                                                       {JobState::Cancelled, "Cancelled: %1"_key}};

/// In hundredths, so that a task bar is told no more than it can show.
std::optional<double> rounded(std::optional<double> fraction)
{
    return fraction ? std::optional(std::round(*fraction * 100) / 100) : std::nullopt;
}

}  // namespace

int AfterRun::Run::count(JobState state) const
{
    const auto found = ended.find(state);
    return found == ended.end() ? 0 : found->second;
}

int AfterRun::Run::count() const
{
    int all = 0;
    for (const auto &[state, jobs] : ended)
        all += jobs;
    return all;
}

AfterRun::AfterRun(JobQueue &queue, std::function<Wishes(const QString &module)> wishes, QObject *parent,
                   std::chrono::milliseconds second)
    : QObject(parent),
      m_queue(queue),
      m_wishes(std::move(wishes)),
      m_second(second),
      m_services(new DesktopServices(productBundle().identifier(), this))
{
    connect(&queue, &JobQueue::changed, this, &AfterRun::jobChanged);
    connect(&queue, &JobQueue::ended, this, &AfterRun::jobEnded);
    connect(&queue, &JobQueue::idle, this, [this](const QString &module) {
        // A turn later, when who starts the next jobs on the same news has done so.
        foundation::queue::asyncMain([self = QPointer(this), module] {
            if (self && !self->m_queue.hasWork(module))
                self->moduleIsIdle(module);
        });
    });
    connect(m_services, &DesktopServices::notificationChosen, this, &AfterRun::showRequested);
}

AfterRun::~AfterRun() = default;

/// Many in a moment are told as one.
void AfterRun::jobChanged()
{
    if (std::exchange(m_isShowingSoon, true))
        return;
    foundation::queue::afterMain(timeBetweenStates, [self = QPointer(this)] {
        if (!self)
            return;
        self->m_isShowingSoon = false;
        self->showState();
    });
}

void AfterRun::showState()
{
    const bool hasWork = m_queue.hasWork();
    if (hasWork)
        stopShutdown();
    const bool isActive = !m_queue.idsIn({JobState::Running, JobState::Paused, JobState::Stopping}).isEmpty();
    const QString why = AppLocalizedString(u"Jobs are running."_s);
    m_services->setAwake(isActive, why);
    m_services->setScreenOn(m_queue.isLaneActive(Lane::Capture), why);
    const auto fraction = rounded(hasWork ? m_queue.overallProgress().fraction : std::nullopt);
    if (fraction != m_shownFraction)
        m_services->showProgress(fraction);
    m_shownFraction = fraction;
}

void AfterRun::jobEnded(JobId id)
{
    const JobRecord *record = m_queue.record(id);
    if (!record)
        return;
    Run &run = m_runs[record->module];
    ++run.ended[record->state];
    run.last = id;
    m_hasAllDone &= record->state == JobState::Done;
    if (record->state == JobState::Done || record->state == JobState::DoneWithProblems)
        run.folder = record->folder;
}

void AfterRun::moduleIsIdle(const QString &module)
{
    const Run run = m_runs.take(module);
    const bool isAllIdle = !m_queue.hasWork();
    const bool hasAllDone = isAllIdle ? std::exchange(m_hasAllDone, true) : false;
    // What was cancelled by the user needs no news, and what was interrupted is the end of the program.
    if (run.count() == run.count(JobState::Cancelled) || run.count(JobState::Interrupted) > 0)
        return;
    const Wishes wishes = m_wishes(module);
    if (wishes.openFolder && !run.folder.isEmpty() && run.count(JobState::Cancelled) == 0)
        OpenDirectory(run.folder);
    if (wishes.notify)
        notify(module, run);
    if (wishes.shutDown && hasAllDone)
        offerShutdown();
}

void AfterRun::notify(const QString &module, const Run &run)
{
    QStringList counts;
    for (const auto &[state, text] : countTexts) {
        if (run.count(state) > 0)
            counts.append(text.localized().arg(run.count(state)));
    }
    const JobRecord *last = m_queue.record(run.last);
    const bool isOne = run.count() == 1 && last;
    m_services->notify(module, isOne ? last->title : AppLocalizedString(u"All jobs have ended."_s),
                       counts.join(u" · "_s));
}

void AfterRun::offerShutdown()
{
    m_services->askCanPowerOff([this](bool can) {
        if (!can || m_isCountingDown || m_queue.hasWork())
            return;
        m_isCountingDown = true;
        countDown(secondsBeforeShutdown, ++m_countdown);
    });
}

void AfterRun::countDown(int seconds, int countdown)
{
    if (!m_isCountingDown || countdown != m_countdown)
        return;
    if (seconds == 0) {
        m_services->powerOff([this] { stopShutdown(); });
        return;
    }
    emit shutdownIn(seconds);
    foundation::queue::afterMain(m_second, [self = QPointer(this), seconds, countdown] {
        if (self)
            self->countDown(seconds - 1, countdown);
    });
}

void AfterRun::stopShutdown()
{
    if (std::exchange(m_isCountingDown, false))
        emit shutdownIn(-1);
}

}  // namespace kestrel
