#include "HeronController.h"

#include "DiscView.h"

#include "foundation/Queues.h"
#include "jobs/DiskSpace.h"
#include "jobs/JobQueue.h"
#include "jobs/JobText.h"
#include "jobs/ui/JobPage.h"
#include "jobs/ui/JobRowDelegate.h"
#include "media/OwnPresets.h"
#include "modules/ModuleRow.h"
#include "modules/common/LateView.h"
#include "modules/common/MediaPlayer.h"
#include "modules/common/PresetChooser.h"
#include "modules/common/PresetDialog.h"
#include "modules/heron/DiscImageJob.h"
#include "modules/heron/DiscList.h"
#include "settings/JKestrelSettingDispatcher.h"
#include "tarnwell/Alerts.h"
#include "tarnwell/Localization.h"
#include "tarnwell/ui/Images.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPushButton>
#include <QSet>
#include <QThread>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

/// A drive has one disc after another.
QString pictureKey(const QString &source, const QString &volume, int title)
{
    return source + u'\n' + volume + u'\n' + QString::number(title);
}

}  // namespace

HeronController::HeronController(const ModuleConfigure &configure, ModuleServices &services)
    : m_services(services),
      m_settings(configure.value(moduleSettingKey.toString())),
      m_recipe([this] { return tools(); }),
      m_view(std::make_unique<LateView>([this] { return makeContents(); }))
{
    connect(&m_probe, &DiscProbe::answered, this, &HeronController::discAnswered);
    connect(&m_drives, &DiscDrives::changed, this, &HeronController::showDrives);
}

HeronController::~HeronController()
{
    if (m_list)
        queue().setRecipe(heronJobs.toString(), nullptr);
}

JobQueue &HeronController::queue()
{
    return m_services.queue();
}

DiscTools HeronController::tools() const
{
    return discTools(*m_settings, QThread::idealThreadCount());
}

void HeronController::setCompletedHandler(CompletedHandler handler)
{
    m_completedHandler = std::move(handler);
}

QWidget *HeronController::view()
{
    return m_view.get();
}

QString HeronController::windowTitle() const
{
    return moduleRows()[ModuleSettingDVD].title.localized();
}

/// Jobs go on while another module is open.
void HeronController::doBackAction()
{
    if (m_completedHandler)
        m_completedHandler(this);
}

bool HeronController::shouldTerminate()
{
    return true;
}

void HeronController::markAppear()
{
    m_drives.start();
}

/// A turn later: the host also says so where it shows this module again at once.
void HeronController::onViewDidDisappear()
{
    foundation::queue::asyncMain([self = QPointer(this)] {
        if (self && self->m_view->isHidden())
            self->m_drives.stop();
    });
}

void HeronController::openFiles(const QStringList &paths)
{
    m_view->makeContents();
    if (!paths.isEmpty())
        openSource(paths.first());
}

void HeronController::warn(const QString &message)
{
    tarnwell::runAlert({.message = message,
                        .defaultButton = tarnwell::AppLocalizedString(u"OK"_s),
                        .alternateButton = {},
                        .informativeText = {},
                        .style = tarnwell::AlertStyle::Warning});
}

void HeronController::chooseImage()
{
    openSource(QFileDialog::getOpenFileName(
        m_page, "Open Image…"_key.localized(), QString(),
        "Disc images"_key.localized() + u" (*.iso *.ISO *.img *.IMG);;"_s + "All files"_key.localized() + u" (*)"_s));
}

void HeronController::chooseFolder()
{
    openSource(QFileDialog::getExistingDirectory(m_page, "Open Folder…"_key.localized()));
}

void HeronController::openSource(const QString &source)
{
    if (source.isEmpty())
        return;
    m_source = source;
    m_openedLabel.clear();
    for (const DiscDrive &drive : m_drives.drives()) {
        if (drive.device == source)
            m_openedLabel = drive.label;
    }
    m_contents.reset();
    m_pictures.stop();
    m_disc->showReading(QFileInfo(source).fileName());
    m_probe.ask(tools(), source);
    showChoice();
}

void HeronController::discAnswered(const DiscProbe::Answer &answer)
{
    const QString name = QFileInfo(m_source).fileName();
    if (!answer)
        m_disc->showFailure(name, answer.reason().localized());
    else if (answer->isProtected)
        m_disc->showFailure(answer->volume, discFailure(u"protected"_s).localized());
    else if (answer->titles.isEmpty())
        m_disc->showFailure(answer->volume, discFailure(u"noTitle"_s).localized());
    else
        m_contents = *answer;
    if (m_contents) {
        DiscPlan plan;
        applySettings(*m_settings, QThread::idealThreadCount(), plan);
        m_disc->showDisc(*m_contents, plan);
        QList<int> pictures{0, m_contents->mainTitle()->number};
        for (const disc::DiscTitle &title : m_contents->titles) {
            if (!pictures.contains(title.number))
                pictures.append(title.number);
        }
        if (!isInUse(m_source))
            m_pictures.make(tools(), m_source, pictures);
    }
    showChoice();
}

/// A drive that a job reads has no time for pictures.
bool HeronController::isInUse(const QString &source)
{
    using enum JobState;
    const QList<JobId> active = queue().idsIn({Running, Paused, Stopping}, heronJobs.toString());
    return source.startsWith("/dev/"_L1) &&
           std::ranges::any_of(active, [&](JobId id) { return queue().record(id)->source == source; });
}

/// A disc that was put in is shown where none is.
void HeronController::showDrives()
{
    if (!m_page)
        return;
    const QList<DiscDrive> &drives = m_drives.drives();
    m_driveBox->clear();
    for (const DiscDrive &drive : drives) {
        m_driveBox->addItem(drive.label.isEmpty() ? drive.device : u"%1 (%2)"_s.arg(drive.label, drive.device),
                            drive.device);
    }
    m_driveBox->setVisible(!drives.isEmpty());
    const bool isGone = m_source.startsWith("/dev/"_L1) && m_driveBox->findData(m_source) < 0;
    if (isGone) {
        m_probe.stop();
        m_pictures.stop();
        m_source.clear();
        m_contents.reset();
        m_disc->clear();
    }
    const auto inDrive = [this](const DiscDrive &drive) { return drive.device == m_source; };
    auto drive = std::find_if(drives.begin(), drives.end(), inDrive);
    if (drive != drives.end() && m_openedLabel.isNull())
        m_openedLabel = drive->label;  // it was opened before the drives were known
    const bool isChanged = drive != drives.end() && drive->label != m_openedLabel;
    if (m_source.isEmpty())
        drive = drives.begin();
    m_driveBox->setCurrentIndex(drive == drives.end() ? -1 : int(drive - drives.begin()));
    if (drive != drives.end() && (m_source.isEmpty() || isChanged))
        openSource(drive->device);
    showChoice();
}

DiscWay HeronController::way() const
{
    return DiscWay(m_ways->currentData().toInt());
}

const Preset *HeronController::presetNamed(const QString &id) const
{
    const Preset *own = m_ownPresets->presetOfId(id);
    return own ? own : presetOfId(id);
}

Preset HeronController::preset() const
{
    const Preset *preset = presetNamed(m_presetId);
    return preset ? *preset : builtInPresets().first();
}

void HeronController::choosePreset(const QString &id)
{
    m_presetId = id;
    const Preset chosen = preset();
    m_presets->showPreset(&chosen);
    showChoice();
}

void HeronController::showFormats()
{
    auto *dialog = new PresetDialog(*m_ownPresets, draft().transcode, m_page->window());
    connect(dialog, &PresetDialog::chosen, this, &HeronController::choosePreset);
    dialog->open();
}

QList<disc::DiscTitle> HeronController::chosenTitles() const
{
    const QList<int> numbers = m_disc->chosenTitles();
    QList<disc::DiscTitle> titles;
    if (m_contents) {
        for (const disc::DiscTitle &title : m_contents->titles) {
            DiscPlan plan;
            m_disc->fillIn(title.number, plan);
            if (numbers.contains(title.number))
                titles.append(chosenPart(plan, title));
        }
    }
    return titles;
}

void HeronController::showChoice()
{
    if (!m_page)
        return;
    showSizes();
    m_presets->setVisible(way() == DiscWay::Rip);
    m_disc->setChoosing(!takesWholeDisc(way()), way() == DiscWay::Rip && preset().takesVideo());
    const QList<disc::DiscTitle> titles = chosenTitles();
    const bool isFolder = QFileInfo(m_source).isDir();
    m_canMake = m_contents && (takesWholeDisc(way()) ? !(isFolder && way() == DiscWay::Image) : !titles.isEmpty());
    const auto row = std::find_if(discWayRows().begin(), discWayRows().end(),
                                  [this](const DiscWayRow &candidate) { return candidate.way == way(); });
    QString text = row->sentence.localized();
    if (m_contents && isFolder && way() == DiscWay::Image)
        text = "A folder has no sectors to copy. Choose another way."_key.localized();
    else if (m_contents)
        text += u' ' +
                Sentence("About %1."_key, {bytesText(resultBytes(way(), preset(), *m_contents, titles))}).localized();
    m_disc->setChoiceText(m_contents ? text : QString());
    showArea();
}

/// Beside each way and each format.
void HeronController::showSizes()
{
    const QList<disc::DiscTitle> titles = chosenTitles();
    const auto named = [&](const QString &name, DiscWay way, const Preset &preset) {
        const qint64 bytes = m_contents ? resultBytes(way, preset, *m_contents, titles) : 0;
        return bytes > 0 ? name + u" · "_s + bytesText(bytes) : name;
    };
    int index = 0;
    for (const DiscWayRow &row : discWayRows())
        m_ways->setItemText(
            index++, row.way == DiscWay::Rip ? row.name.localized() : named(row.name.localized(), row.way, preset()));
    for (index = 0; index < m_presets->count(); ++index) {
        if (const Preset *preset = presetNamed(m_presets->itemData(index).toString()))
            m_presets->setItemText(index, u"  "_s + named(preset->name, DiscWay::Rip, *preset));
    }
}

/// The list takes no place where there is a disc and no job, the disc none where there is no disc.
void HeronController::showArea()
{
    const bool hasDisc = !m_source.isEmpty();
    m_disc->setVisible(hasDisc);
    m_page->setListVisible(!hasDisc || m_list->rowCount() > 0);
    m_ways->setEnabled(m_contents.has_value());
    m_presets->setEnabled(m_contents.has_value());
    m_optionsButton->setVisible(m_contents.has_value());
    m_page->setStartEnabled(m_canMake || !openJobs().isEmpty());
}

/// What is wanted of any title.
DiscPlan HeronController::draft() const
{
    DiscPlan plan;
    plan.source = m_source;
    plan.way = way();
    plan.transcode.preset = preset();
    applySettings(*m_settings, QThread::idealThreadCount(), plan);
    if (plan.way == DiscWay::Rip && m_ownPresets->presetOfId(m_presetId))
        m_ownPresets->apply(m_presetId, plan.transcode);
    return plan;
}

QList<DiscPlan> HeronController::plans() const
{
    QList<DiscPlan> plans;
    const QList<int> numbers = takesWholeDisc(way()) ? QList<int>{0} : m_disc->chosenTitles();
    for (const int number : numbers) {
        DiscPlan plan = draft();
        if (number > 0)
            m_disc->fillIn(number, plan);
        describeDisc(*m_contents, plan);
        plans.append(plan);
    }
    return plans;
}

void HeronController::keepPicture(int title, const QString &path)
{
    constexpr qsizetype mostPictures = 500;
    if (m_rowPictures.size() >= mostPictures)
        m_rowPictures.clear();
    if (!m_contents || !m_page)
        return;
    m_rowPictures.insert(pictureKey(m_source, m_contents->volume, title),
                         discPicture(path, JobRowDelegate::pictureSize, m_page->devicePixelRatioF()));
    m_list->showPicturesAgain();
}

QVariant HeronController::pictureOf(const JobRecord &record) const
{
    const QPixmap picture = m_rowPictures.value(
        pictureKey(record.source, record.plan["volume"_L1].toString(), record.plan["title"_L1].toInt()));
    return picture.isNull() ? tarnwell::namedImage(u"heron_disc"_s, m_page->devicePixelRatioF()) : picture;
}

/// As it would be kept: the same chapters and angle, the sound that comes first, the subtitles in the picture.
void HeronController::playTitle(int number)
{
    DiscPlan plan;
    plan.source = m_source;
    applySettings(*m_settings, QThread::idealThreadCount(), plan);
    m_disc->fillIn(number, plan);
    const disc::DiscTitle *title = m_contents ? titleOf(*m_contents, plan) : nullptr;
    if (!title)
        return;
    QStringList choice;
    const QList<int> sound = chosenSound(plan, *title);
    if (!sound.isEmpty() && sound.first() > 0)
        choice << u"-ast"_s << u"i:%1"_s.arg(title->audio[sound.first()].streamId);
    if (plan.burnedSubtitle > 0)
        choice << u"-sst"_s << u"i:%1"_s.arg(title->subtitles[plan.burnedSubtitle - 1].streamId);
    else
        choice << u"-sn"_s;
    playFilm(plan, choice, discOutputName(plan, *m_contents));
}

/// Images and folders are discs again.
void HeronController::playResult(const QString &path)
{
    const QFileInfo file(path);
    if (file.isDir() || file.suffix() == "iso"_L1)
        playFilm({.source = path}, {u"-sn"_s}, file.fileName());
    else if (!m_player->play(m_settings->getPlayerPath(), path, file.fileName()))
        warn("The player is missing. Please install the application again."_key.localized());
}

void HeronController::playFilm(const DiscPlan &plan, const QStringList &choice, const QString &name)
{
    if (!m_player->playStream(m_settings->getPlayerPath(), titleReaderCommand(tools(), plan), choice, name,
                              hasReaderFailed))
        warn("The player is missing. Please install the application again."_key.localized());
}

bool HeronController::canStart(const QList<DiscPlan> &plans, QString *obstacle) const
{
    if (!m_settings->check(obstacle))
        return false;
    if (!QFileInfo(tools().title).isExecutable() || !QFileInfo(tools().transcode.transcoder).isExecutable()) {
        *obstacle = "The disc tools could not be started. Please install the application again."_key.localized();
        return false;
    }
    const QString folder = discFolder(*m_settings, plans.first());
    const qint64 begun = brokenOffBytes(discJob(plans.first(), folder));
    const qint64 needed = std::max<qint64>(0, neededBytes(plans, *m_contents) - begun);
    const auto space = diskSpaceOf(folder);
    if (!space || space->available >= needed)
        return true;
    *obstacle = Sentence(
                    "There is not enough space: %1 are needed and %2 are free. Free some, or choose another folder "
                    "in the settings."_key,
                    {bytesText(needed), bytesText(space->available)})
                    .localized();
    return false;
}

/// What broken-off copies left goes with the last of their rows.
void HeronController::removeLeftImages(const QString &module, int row, int count)
{
    if (module != heronJobs)
        return;
    QSet<QString> removed, kept;
    const QList<JobId> &order = queue().order(module);
    for (int index = 0; index < order.size(); ++index)
        (index >= row && index < row + count ? removed : kept).insert(brokenOffImage(*queue().record(order[index])));
    for (const QString &path : removed.subtract(kept)) {
        if (!path.isNull())
            removeBrokenOffImage(path);
    }
}

/// What the button starts where no disc is in view.
QList<JobId> HeronController::openJobs()
{
    return m_source.isEmpty() ? queue().idsIn({JobState::Ready, JobState::Interrupted}, heronJobs.toString())
                              : QList<JobId>();
}

void HeronController::begin()
{
    const QList<DiscPlan> wanted = m_contents ? plans() : QList<DiscPlan>();
    if (wanted.isEmpty())
        return queue().start(openJobs());
    if (!m_page->startButton()->isEnabled())
        return;
    QString obstacle;
    if (canStart(wanted, &obstacle)) {
        if (m_source.startsWith("/dev/"_L1))
            m_pictures.stop();  // the drive would go to and fro
        QList<JobId> ids;
        for (const DiscPlan &plan : wanted) {
            const QString folder = discFolder(*m_settings, plan);
            QDir().mkpath(folder);
            ids.append(queue().add(discJob(plan, folder)));
        }
        queue().start(ids);
        return;
    }
    warn(obstacle);
}

}  // namespace kestrel
