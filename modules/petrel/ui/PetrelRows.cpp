#include "FilmListDialog.h"
#include "PetrelController.h"
#include "SitePictures.h"

#include "jobs/JobQueue.h"
#include "jobs/JobText.h"
#include "jobs/ui/JobDetails.h"
#include "jobs/ui/JobListView.h"
#include "jobs/ui/JobPage.h"
#include "modules/petrel/Download.h"
#include "modules/petrel/DownloadList.h"
#include "modules/petrel/EngineFailure.h"
#include "modules/petrel/PartFolder.h"
#include "tarnwell/Folders.h"

#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>

using namespace Qt::StringLiterals;

/// What becomes of addresses and of the rows that they are in the list.
namespace kestrel {

using tarnwell::operator""_key;

namespace {

constexpr qint64 maximumTextFile = 4 * 1024 * 1024;

}  // namespace

void PetrelController::takeText(const QString &text)
{
    const QStringList addresses = addressesIn(text);
    add(addresses);
    if (!addresses.isEmpty())
        m_address->clear();
    else if (!text.trimmed().isEmpty())
        m_page->showMessage("This is no address that can be downloaded from."_key.localized());
}

/// Text files of addresses.
void PetrelController::takeFiles(const QStringList &paths)
{
    for (const QString &path : paths) {
        QFile file(path);
        if (file.size() <= maximumTextFile && file.open(QIODevice::ReadOnly))
            takeText(textOfFile(file.readAll()));
        else
            m_page->showMessage("The file could not be read."_key.localized());
    }
}

void PetrelController::add(const QStringList &addresses)
{
    for (const QString &address : addresses) {
        DownloadPlan plan = downloadPlan(*m_settings, address);
        for (const QComboBox *box : {m_formats.data(), m_resolutions.data(), m_limits.data()})
            readChoice(box, plan);
        JobRecord record = downloadJob(plan, downloadFolder(*m_settings, plan));
        record.state = JobState::Checking;
        lookAt(queue().add(record));
    }
}

void PetrelController::lookAt(JobId id)
{
    if (const auto plan = DownloadPlan::fromJson(queue().record(id)->plan)) {
        m_asked.insert(id);
        m_analysis->ask(id, *plan);
    }
}

/// The settings may be others than when they were added.
void PetrelController::lookAgain(const QList<JobId> &ids)
{
    changePlans(ids, followProxy());
    for (const JobId id : ids) {
        // The menu may be older than the row's state.
        const JobRecord *record = queue().record(id);
        if (!record || (!isBeforeStart(record->state) && record->state != JobState::Failed))
            continue;
        queue().change(id, [](JobRecord &changed) {
            changed.state = JobState::Checking;
            changed.outcome = {};
        });
        lookAt(id);
    }
}

void PetrelController::stopLooking(const QList<JobId> &ids)
{
    for (const JobId id : ids) {
        m_analysis->stop(id);
        if (!m_asked.remove(id) || !queue().record(id))
            continue;
        queue().change(id, [](JobRecord &record) {
            record.blocked = {};
            if (record.state == JobState::Checking)
                record.state = JobState::Ready;
        });
    }
}

/// One that begins asks by itself, and goes the way and to the place that the settings tell by then.
void PetrelController::prepare(JobId id)
{
    const JobRecord *record = queue().record(id);
    if (!record || record->module != petrelJobs || isBeforeStart(record->state))
        return;
    if (m_asked.remove(id))
        m_analysis->stop(id);
    if (record->state == JobState::Waiting)
        changePlans({id}, followProxy());
}

void PetrelController::answered(JobId id, const Analysis::Answer &answer)
{
    if (!m_asked.remove(id) || !queue().record(id))
        return;
    if (answer && !answer->entries.isEmpty())
        return chooseAmong(id, *answer);
    queue().change(id, [&](JobRecord &record) {
        record.blocked = {};
        if (record.state == JobState::Checking)
            record.state = JobState::Ready;
        if (answer) {
            setFilm(record, *answer);
        } else {
            record.state = JobState::Unusable;
            record.outcome = {.sentence = answer.reason().sentence, .details = answer.reason().details};
        }
    });
}

void PetrelController::chooseAmong(JobId id, const EngineAnswer &answer)
{
    const auto asked = DownloadPlan::fromJson(queue().record(id)->plan);
    auto *dialog =
        new FilmListDialog(answer, asked && asked->proxy.isEmpty() ? m_pictures.get() : nullptr, m_page->window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::finished, this, [this, dialog, id, answer](int result) {
        const JobRecord *record = queue().record(id);
        const auto plan = record ? DownloadPlan::fromJson(record->plan) : std::nullopt;
        if (result == QDialog::Accepted && plan) {
            for (const JobRecord &job : downloadJobs(*plan, answer, record->folder, dialog->chosenItems()))
                lookAt(queue().add(job));
        } else if (record && record->started.isValid()) {
            // It was there before the question.
            return queue().change(id, [](JobRecord &changed) { changed.state = JobState::Ready; });
        }
        queue().remove({id});
    });
    dialog->open();
}

void PetrelController::readChoice(const QComboBox *box, DownloadPlan &plan) const
{
    if (box == m_formats) {
        plan.extension = box->currentData().toString();
        plan.soundOnly = soundFormats().contains(plan.extension);
    } else if (box == m_resolutions) {
        plan.height = box->currentData().toInt();
    } else {
        plan.bytesPerSecond = box->currentData().toLongLong();
    }
}

/// For what was chosen in the list, else for everything that is still to be downloaded. How fast says nothing of what
/// has come, so what waits, has failed or was broken off takes part.
void PetrelController::applyChoice(const QComboBox *box)
{
    QList<JobId> ids = m_page->list()->selectedIds();
    using enum JobState;
    if (ids.isEmpty() && box == m_limits)
        ids = queue().idsIn({Checking, Ready, Waiting, Failed, Cancelled, Interrupted}, petrelJobs.toString());
    else if (ids.isEmpty())
        ids = queue().idsIn({Checking, Ready}, petrelJobs.toString());
    changePlans(ids, [this, box](DownloadPlan &plan) { readChoice(box, plan); });
}

PetrelController::PlanEdit PetrelController::followProxy() const
{
    return [proxy = downloadProxy(*m_settings)](DownloadPlan &plan) {
        if (!plan.hasOwnProxy)
            plan.proxy = proxy;
    };
}

/// What runs stays as it is. What has come of a film goes to the new folder, or keeps the film where it is, or goes
/// where it fits no more.
void PetrelController::changePlans(const QList<JobId> &ids, const PlanEdit &edit, const QString &chosenFolder)
{
    for (const JobId id : ids) {
        const JobRecord *record = queue().record(id);
        const auto plan = record && !isActive(record->state) ? DownloadPlan::fromJson(record->plan) : std::nullopt;
        const bool isDone = record && (record->state == JobState::Done || record->state == JobState::DoneWithProblems);
        if (!plan || (isDone && !chosenFolder.isNull()))
            continue;
        DownloadPlan edited = *plan;
        edit(edited);
        const bool isOther = edited.identity() != plan->identity();
        const bool staysThere = plan->hasOwnFolder || (isEnded(record->state) && !isOther);
        QString folder = staysThere ? record->folder : downloadFolder(*m_settings, edited);
        if (!chosenFolder.isNull())
            folder = chosenFolder;
        if (edited == *plan && folder == record->folder)
            continue;
        if (isOther) {
            PartFolder::removeLeft(record->folder, *plan);
        } else if (folder != record->folder && !PartFolder::moveLeft(record->folder, *plan, folder)) {
            folder = record->folder;
            edited.hasOwnFolder = plan->hasOwnFolder;
            if (!chosenFolder.isNull())
                m_page->showMessage(
                    "What has come cannot be moved to that folder, so it stays where it is."_key.localized());
        }
        const bool isNew = isOther || folder != record->folder;
        queue().change(id, [&](JobRecord &changed) {
            setDownloadPlan(changed, edited);
            changed.folder = folder;
            if (isEnded(changed.state) && isNew)
                changed.state = JobState::Ready;
        });
    }
}

void PetrelController::extendMenu(QMenu *menu, const QList<JobId> &ids)
{
    const JobRecord *record = queue().record(ids.first());
    const FilmFacts facts = filmFacts(*record);
    const auto plan = DownloadPlan::fromJson(record->plan);
    menu->addSeparator();
    if (!facts.resolutions.isEmpty()) {
        QMenu *resolutions = menu->addMenu("Resolution"_key.localized());
        for (const auto &[height, bytes] : facts.resolutions) {
            const QString size = bytes > 0 ? u"  ·  "_s + bytesText(bytes) : QString();
            resolutions->addAction(u"%1p"_s.arg(height) + size, this, [this, ids, lines = height] {
                changePlans(ids, [lines](DownloadPlan &changed) { changed.height = lines; });
            });
        }
    }
    if (!facts.subtitles.isEmpty()) {
        QMenu *subtitles = menu->addMenu("Subtitles"_key.localized());
        for (const QString &language : facts.subtitles) {
            QAction *action = subtitles->addAction(QString(language).replace(u'&', u"&&"_s));
            action->setCheckable(true);
            action->setChecked(plan && plan->subtitles.contains(language));
            connect(action, &QAction::toggled, this, [this, ids, language](bool isWanted) {
                changePlans(ids, [&](DownloadPlan &changed) {
                    changed.subtitles.removeAll(language);
                    if (isWanted)
                        changed.subtitles.append(language);
                });
            });
        }
    }
    QAction *many = menu->addAction("Allow Many From One Server"_key.localized());
    many->setCheckable(true);
    many->setChecked(plan && plan->manyFromServer);
    connect(many, &QAction::toggled, this, [this, ids](bool isAllowed) {
        changePlans(ids, [isAllowed](DownloadPlan &changed) { changed.manyFromServer = isAllowed; });
    });
    menu->addAction("Save To…"_key.localized(), this, [this, ids, present = record->folder] {
        const QString folder = tarnwell::chooseFolder(m_page, present);
        if (!folder.isEmpty())
            changePlans(
                ids, [](DownloadPlan &changed) { changed.hasOwnFolder = true; }, folder);
    });
    menu->addAction("Update Download Engine"_key.localized(), this, &PetrelController::updateEngine);
    menu->addAction("Remove With Partial File"_key.localized(), this, [this, ids] { removeWithParts(ids); });
}

/// What may mend the failure of a job.
void PetrelController::offerHelp(JobDetails *details, JobId id)
{
    using Kind = EngineFailure::Kind;
    const auto isOf = [&](Kind kind) { return queue().record(id)->outcome.sentence == engineFailureOf(kind).sentence; };
    if (isOf(Kind::EngineOld) || isOf(Kind::Unknown) || isOf(Kind::UnknownSite))
        details->offer("Update Download Engine"_key.localized(), [this] { updateEngine(); });
    if (queue().record(id)->outcome.sentence == tarnwell::Sentence(addressIsOfList))
        details->offer("Choose Films…"_key.localized(), [this, id] { lookAgain({id}); });
}

/// Those that run keep their parts until they have ended, so they end first.
void PetrelController::removeWithParts(const QList<JobId> &ids)
{
    QList<std::pair<QString, DownloadPlan>> parts;
    for (const JobId id : ids) {
        const JobRecord *record = queue().record(id);
        if (const auto plan = record ? DownloadPlan::fromJson(record->plan) : std::nullopt)
            parts.append({record->folder, *plan});
    }
    queue().remove(ids);
    // What ran ends within 100 ms and goes then.
    const auto removed = std::make_shared<QMetaObject::Connection>();
    const auto sweep = [this, ids, parts, removed] {
        if (std::any_of(ids.begin(), ids.end(), [this](JobId id) { return queue().record(id); }))
            return;
        for (const auto &[folder, plan] : parts)
            PartFolder::removeLeft(folder, plan);
        disconnect(*removed);
    };
    *removed = connect(&queue(), &JobQueue::removed, this, sweep);
    sweep();
}

}  // namespace kestrel
