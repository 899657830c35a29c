#include "Conversions.h"

#include "Conversion.h"
#include "foundation/Queues.h"
#include "foundation/UserDefaults.h"
#include "jobs/JobQueue.h"
#include "media/TranscoderCodecs.h"
#include "settings/JKestrelSettingDispatcher.h"
#include "tarnwell/Localization.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QJsonDocument>
#include <QPointer>
#include <QThread>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using tarnwell::operator""_key;

const QString chosenPresetKey = u"marlinPreset"_s;
const QString optionsKey = u"marlinOptions"_s;
const QString draftFolderKey = u"marlinFolder"_s;
constexpr qsizetype largestOptions = 64 * 1024;
// Jobs that are changed in one go of the event loop: so many, and more while there is time
constexpr qsizetype atOnce = 20;
constexpr qint64 turnMs = 6;

/// What "Convert" starts: everything that is not done.
constexpr std::initializer_list<JobState> startableStates = {JobState::Ready, JobState::Failed, JobState::Cancelled,
                                                             JobState::Interrupted};
/// What the draft speaks for as well.
constexpr std::initializer_list<JobState> openStates = {JobState::Checking, JobState::Ready};

/// Changes to the film itself would be a surprise in the next one.
constexpr QLatin1StringView notRemembered[] = {"brightness"_L1, "contrast"_L1, "saturation"_L1, "speedFactor"_L1,
                                               "volume"_L1};

}  // namespace

Conversions::Conversions(JobQueue &queue, std::shared_ptr<JKestrelSettingDispatcher> settings,
                         foundation::UserDefaults &defaults, QObject *parent)
    : QObject(parent),
      m_queue(queue),
      m_settings(std::move(settings)),
      m_defaults(defaults),
      m_ownPresets(ownPresetsIn(defaults)),
      m_recipe([this] { return tools(); })
{
    m_draft.preset = builtInPresets().first();
    if (const QString id = defaults.stringForKey(chosenPresetKey); m_ownPresets->presetOfId(id))
        m_ownPresets->apply(id, m_draft);
    else if (const Preset *preset = kestrel::presetOfId(id))
        m_draft.preset = *preset;
    if (const QByteArray options = defaults.dataForKey(optionsKey); options.size() <= largestOptions)
        setOptions(QJsonDocument::fromJson(options).object(), m_draft);
    if (const QString folder = defaults.stringForKey(draftFolderKey); QFileInfo(folder).isDir())
        m_draftFolder = folder;
    m_queue.setRecipe(marlinJobs.toString(), &m_recipe);
    setLanes(m_queue, draft().threads, QThread::idealThreadCount());
    connect(&m_prober, &MediaProber::probed, this, &Conversions::probed);
    connect(&m_queue, &JobQueue::removed, this, [this](const QString &module) {
        if (module == marlinJobs && !std::exchange(m_isForgetting, true))
            foundation::queue::asyncMain([guard = QPointer(this)] {
                if (guard)
                    guard->forgetRemoved();
            });
    });
    askForEncoders();
    for (const JobId id : m_queue.idsIn({JobState::Checking}, marlinJobs.toString()))
        lookAt(id);
}

Conversions::~Conversions()
{
    m_queue.setRecipe(marlinJobs.toString(), nullptr);
}

TranscodeTools Conversions::tools() const
{
    TranscodeTools tools = transcodeTools(*m_settings, QThread::idealThreadCount());
    tools.machine.language = m_defaults.stringArrayForKey(u"AppleLanguages"_s).value(0, tools.machine.language);
    tools.machine.missingEncoders = m_missingEncoders;
    return tools;
}

int Conversions::add(const QStringList &paths)
{
    QSet<QString> known;
    for (const JobId id : m_queue.order(marlinJobs.toString())) {
        if (const JobRecord *record = m_queue.record(id); !isEnded(record->state))
            known.insert(record->source);
    }
    std::deque<std::function<void()>> turns;
    for (const QString &path : paths) {
        if (known.contains(path))
            continue;
        known.insert(path);
        turns.emplace_back([this, path] { addOne(path); });
    }
    const int added = int(turns.size());
    inTurns(std::move(turns));
    return added;
}

void Conversions::addOne(const QString &path)
{
    TranscodePlan plan = draft();
    plan.sources = {path};
    JobRecord record = conversionJob(plan, {});
    setOwnFolder(record, m_draftFolder);
    record.folder = m_draftFolder.isEmpty() ? conversionFolder(*m_settings, plan) : m_draftFolder;
    record.state = JobState::Checking;
    lookAt(m_queue.add(record));
}

JobId Conversions::join(const QList<JobId> &ids, QString *obstacle)
{
    QStringList sources;
    QList<JobId> joined;
    for (const JobId id : ids) {
        const JobRecord *record = m_queue.record(id);
        const auto plan = record && !isActive(record->state) ? this->plan(id) : std::nullopt;
        if (!plan || record->state == JobState::Unusable)
            continue;
        if (!plan->pieces.isEmpty()) {
            *obstacle = "Files can be cut or joined, but not both at once."_key.localized();
            return 0;
        }
        sources += plan->sources;
        joined.append(id);
    }
    if (joined.size() < 2)
        return 0;
    TranscodePlan plan = *this->plan(joined.first());
    plan.sources = sources;
    JobRecord record = conversionJob(plan, m_queue.record(joined.first())->folder);
    setOwnFolder(record, ownFolder(*m_queue.record(joined.first())));
    record.title =
        tarnwell::Sentence("%1 and %2 more"_key, {record.title, QString::number(sources.size() - 1)}).localized();
    record.state = JobState::Checking;
    const JobId id = m_queue.add(record);
    const JobId place = joined.first();
    m_queue.move({id}, place);
    m_queue.remove(joined);
    lookAt(id);
    return id;
}

QList<JobId> Conversions::startable() const
{
    return m_queue.idsIn(startableStates, marlinJobs.toString());
}

bool Conversions::start(QString *obstacle)
{
    takeTurn(qsizetype(m_turns.size()));
    if (!m_settings->check(obstacle))
        return false;
    if (!QFileInfo(m_settings->getTranscoderPath()).isExecutable()) {
        *obstacle = tarnwell::AppLocalizedString(u"The converter is missing. Please install the application again."_s);
        return false;
    }
    QList<JobId> ids = startable();
    if (const QList<JobId> ready = m_queue.idsIn({JobState::Ready}, marlinJobs.toString());
        m_settings->mergeMedia() && ready.size() > 1) {
        const JobId joined = join(ready, obstacle);
        if (!obstacle->isEmpty())
            return false;
        m_queue.change(joined, [](JobRecord &record) { record.state = JobState::Ready; });
        ids = startable();
    }
    setLanes(m_queue, draft().threads, QThread::idealThreadCount());  // as the settings window left it
    m_queue.start(ids);
    return true;
}

TranscodePlan Conversions::draft() const
{
    TranscodePlan plan = m_draft;
    readSwitches(*m_settings, QThread::idealThreadCount(), plan);
    return plan;
}

std::optional<TranscodePlan> Conversions::plan(JobId id) const
{
    const JobRecord *record = m_queue.record(id);
    return record ? TranscodePlan::fromJson(record->plan) : std::nullopt;
}

void Conversions::changeJob(JobId id, const std::function<void(JobRecord &)> &change)
{
    const JobRecord *record = m_queue.record(id);
    if (!record || isActive(record->state) || record->state == JobState::Waiting)
        return;
    m_known[id].warnings.reset();
    m_queue.change(id, [&](JobRecord &changing) {
        change(changing);
        if (isEnded(changing.state))
            changing.state = JobState::Ready;
    });
}

void Conversions::edit(const QList<JobId> &ids, const Change &change)
{
    const auto changePlan = [this, change](JobId id) {
        auto plan = this->plan(id);
        if (!plan)
            return;
        change(*plan);
        changeJob(id, [&](JobRecord &record) {
            setPlan(record, *plan);
            record.folder = ownFolder(record).isEmpty() ? conversionFolder(*m_settings, *plan) : ownFolder(record);
        });
    };
    if (!ids.isEmpty()) {
        inTurns(ids, changePlan);
        return;
    }
    TranscodePlan plan = draft();
    change(plan);
    writeSwitches(*m_settings, QThread::idealThreadCount(), plan);
    setLanes(m_queue, plan.threads, QThread::idealThreadCount());
    m_draft = plan;
    rememberDraft();
    emit draftChanged();
    inTurns(m_queue.idsIn(openStates, marlinJobs.toString()), changePlan);
}

void Conversions::rememberDraft()
{
    QJsonObject options = optionsOf(m_draft);
    for (const QLatin1StringView key : notRemembered)
        options.remove(key);
    m_defaults.setObject(QJsonDocument(options).toJson(QJsonDocument::Compact), optionsKey);
    m_defaults.setObject(m_draftFolder.isEmpty() ? QVariant() : m_draftFolder, draftFolderKey);
}

void Conversions::choosePreset(const QList<JobId> &ids, const QString &presetId)
{
    const Preset *preset = presetOfId(presetId);
    if (!preset)
        return;
    if (ids.isEmpty())
        m_defaults.setObject(presetId, chosenPresetKey);
    edit(ids, [this, presetId, preset = *preset](TranscodePlan &plan) {
        if (m_ownPresets->presetOfId(presetId)) {
            m_ownPresets->apply(presetId, plan);
            return;
        }
        if (plan.preset.group == "own"_L1)  // whose options were its own
            setOptions(optionsOf({}), plan);
        // A number of one encoder's quality says nothing to another.
        if (plan.rateControl == TranscodePlan::RateControl::Quality && plan.preset.videoCodec != preset.videoCodec)
            plan.rateControl = TranscodePlan::RateControl::Preset;
        plan.preset = preset;
    });
}

void Conversions::chooseFolder(const QList<JobId> &ids, const QString &folder)
{
    if (ids.isEmpty()) {
        m_draftFolder = folder;
        rememberDraft();
        emit draftChanged();
    }
    inTurns(ids.isEmpty() ? m_queue.idsIn(openStates, marlinJobs.toString()) : ids, [this, folder](JobId id) {
        changeJob(id, [&](JobRecord &record) {
            setOwnFolder(record, folder);
            const auto plan = TranscodePlan::fromJson(record.plan);
            record.folder = folder.isEmpty() && plan ? conversionFolder(*m_settings, *plan) : folder;
        });
    });
}

QString Conversions::folderOf(JobId id) const
{
    const JobRecord *record = m_queue.record(id);
    return record ? ownFolder(*record) : m_draftFolder;
}

std::optional<QString> Conversions::draftFolder() const
{
    if (m_draft.besideSource)
        return {};
    return m_draftFolder.isEmpty() ? conversionFolder(*m_settings, m_draft) : m_draftFolder;
}

const Preset *Conversions::presetOfId(const QString &id) const
{
    const Preset *own = m_ownPresets->presetOfId(id);
    return own ? own : kestrel::presetOfId(id);
}

void Conversions::reset()
{
    m_ownPresets->removeAll();
    for (const QString &key : {chosenPresetKey, optionsKey, draftFolderKey})
        m_defaults.removeObjectForKey(key);
    m_draft = {};
    m_draft.preset = builtInPresets().first();
    m_draftFolder.clear();
    emit draftChanged();
}

void Conversions::inTurns(const QList<JobId> &ids, const std::function<void(JobId)> &task)
{
    std::deque<std::function<void()>> turns;
    for (const JobId id : ids)
        turns.emplace_back([task, id] { task(id); });
    inTurns(std::move(turns));
}

/// The first of them at once, so that a click shows its effect; ten thousand would hold up the window.
void Conversions::inTurns(std::deque<std::function<void()>> turns)
{
    const bool isFree = m_turns.empty();
    std::ranges::move(turns, std::back_inserter(m_turns));
    if (isFree)
        takeTurn(atOnce);
}

void Conversions::takeTurn(qsizetype least)
{
    QElapsedTimer time;
    time.start();
    for (; !m_turns.empty() && (least > 0 || !time.hasExpired(turnMs)); --least) {
        const std::function<void()> turn = std::move(m_turns.front());
        m_turns.pop_front();
        turn();
    }
    if (m_turns.empty() || std::exchange(m_isTurnComing, true))
        return;
    foundation::queue::asyncMain([guard = QPointer(this)] {
        if (guard) {
            guard->m_isTurnComing = false;
            guard->takeTurn(atOnce);
        }
    });
}

}  // namespace kestrel
