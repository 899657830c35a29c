#include "PloversController.h"

#include "CapturePanel.h"
#include "ClickRings.h"
#include "ControlBar.h"
#include "foundation/Bundle.h"
#include "foundation/Queues.h"
#include "jobs/DesktopServices.h"
#include "jobs/JobList.h"
#include "jobs/JobQueue.h"
#include "jobs/ui/JobListView.h"
#include "jobs/ui/JobPage.h"
#include "modules/common/LateView.h"
#include "modules/common/MadeFilms.h"
#include "modules/common/OutputFolderLine.h"
#include "settings/JKestrelSettingDispatcher.h"
#include "tarnwell/Alerts.h"
#include "tarnwell/Localization.h"
#include "tarnwell/ProductInformation.h"
#include "tarnwell/ui/TabOrder.h"

#include <QAbstractButton>
#include <QDateTime>
#include <QDir>
#include <QJsonDocument>
#include <QLocale>
#include <QMenu>
#include <QSystemTrayIcon>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

constexpr JobPageTexts ploverTexts = {
    .title = "Recorder"_key,
    .emptyHeadline = "Your screen, as a video"_key,
    .emptyText = "Choose above what is recorded, then press Record."_key,
    .emptyButton = {},
    .start = "Record"_key,
    .emptyImage = "plover_module",
    .discardQuestion = "What has been recorded will be deleted."_key,
    .discardButton = "Discard Recording"_key,
};

constexpr int countdownSeconds = 3;
constexpr std::chrono::seconds recoveryDelay(5);  ///< after a start, which has other things to do

}  // namespace

PloversController::PloversController(const ModuleConfigure &configure, ModuleServices &services)
    : m_services(services),
      m_settings(configure.value(moduleSettingKey.toString())),
      m_recipe([this] { return recordTools(*m_settings); }),
      m_view(std::make_unique<LateView>([this] { return makeContents(); }))
{
    foundation::queue::afterMain(recoveryDelay, [self = QPointer(this)] {
        if (self)
            self->recover();
    });
}

/// What an interrupted recording left is finished also where nobody opens the page, which does it.
void PloversController::recover()
{
    foundation::queue::asyncGlobal([self = QPointer(this)] {
        if (UnfinishedRecording::findAll().isEmpty())
            return;
        foundation::queue::asyncMain([self] {
            if (self)
                self->m_view->makeContents();
        });
    });
}

PloversController::~PloversController()
{
    if (m_list)
        queue().setRecipe(ploverJobs.toString(), nullptr);
}

JobQueue &PloversController::queue()
{
    return m_services.queue();
}

std::unique_ptr<QWidget> PloversController::makeContents()
{
    const QString module = ploverJobs.toString();
    queue().setRecipe(module, &m_recipe);
    m_list = std::make_unique<JobList>(queue(), module);
    auto page = std::make_unique<JobPage>(queue(), *m_list, module, ploverTexts);
    m_page = page.get();
    auto *panel = new CapturePanel;
    m_panel = panel;
    panel->setShowsClicks(m_settings->isCaptureMouseClick());
    page->setTopArea(panel);
    auto *folder = new OutputFolderLine;
    folder->setDispatcher(m_settings);
    page->addChoice(folder, 1);

    connect(m_page, &JobPage::backClicked, this, &PloversController::doBackAction);
    connect(m_page, &JobPage::startClicked, this, &PloversController::startClicked);
    connect(panel, &CapturePanel::noted, m_page,
            [this](const Sentence &note) { m_page->showMessage(note.localized()); });
    connect(panel, &CapturePanel::beginChosen, this, &PloversController::endCountdown);
    page->list()->setStartOffered(false);  // nobody would see it run, or end it
    connect(page->list(), &JobListView::menuRequested, this, &PloversController::extendMenu);
    (new MadeFilms(*page, m_settings))->showPictures(*m_list);
    connect(&queue(), &JobQueue::changed, this, &PloversController::recordChanged);
    connect(&m_meter, &LevelMeter::levelChanged, this, [this](double level) {
        if (m_bar)
            m_bar->setLevel(level);
    });
    queue().start(addRecoveries(queue()));
    showState();
    tarnwell::tabInLayoutOrder(*page);
    return page;
}

void PloversController::openPanel()
{
    const QByteArray choices = m_settings->getRecordChoices().toUtf8();
    m_panel->open(m_settings->getTranscoderPath(), recordPlan(*m_settings), QJsonDocument::fromJson(choices).object());
}

/// What is to be made of a recording is the converter's work.
void PloversController::extendMenu(QMenu *menu, const QList<JobId> &ids)
{
    QStringList recordings;
    for (const JobId id : ids)
        recordings += queue().record(id)->outcome.outputs;
    menu->addSeparator();
    menu->addAction("Stop"_key.localized(), this, &PloversController::stopRecording)
        ->setEnabled(ids.contains(m_recording));
    menu->addAction("Cut or Convert…"_key.localized(), this,
                    [this, recordings] { m_services.openInConverter(recordings); })
        ->setEnabled(!recordings.isEmpty());
}

void PloversController::setCompletedHandler(CompletedHandler handler)
{
    m_completedHandler = std::move(handler);
}

QWidget *PloversController::view()
{
    return m_view.get();
}

QString PloversController::windowTitle() const
{
    return tarnwell::AppLocalizedString(u"Recorder"_s);
}

void PloversController::doBackAction()
{
    forgetCountdown();
    if (m_panel)
        m_panel->release();
    if (m_completedHandler)
        m_completedHandler(this);
}

/// Who answers nothing goes on waiting.
bool PloversController::shouldTerminate()
{
    if (!m_beginning.isValid())
        return true;
    const QString moment = QLocale().toString(m_beginning.time(), QLocale::ShortFormat);
    if (tarnwell::runAlert({.message = Sentence("A recording is to begin at %1."_key, {moment}).localized(),
                            .defaultButton = "Keep Waiting"_key.localized(),
                            .alternateButton = "Don't Record"_key.localized(),
                            .informativeText = {},
                            .style = tarnwell::AlertStyle::Warning,
                            .answerToEscape = tarnwell::AlertAnswer::Default}) != tarnwell::AlertAnswer::Alternate)
        return false;
    endCountdown();
    return true;
}

void PloversController::startRecorderSession()
{
    m_view->makeContents();
    if (m_recording == 0)  // which has the camera
        openPanel();
    showState();
}

void PloversController::onViewDidDisappear()
{
    forgetCountdown();
    if (m_panel)
        m_panel->release();
}

/// A recording that is to begin at a time does so from any module.
void PloversController::forgetCountdown()
{
    if (m_beginning.isValid() && m_panel->begin() != CapturePanel::Begin::AtTime)
        endCountdown();
}

void PloversController::endCountdown()
{
    if (!m_beginning.isValid())
        return;
    m_beginning = {};
    m_awake.reset();
    m_keys.reset();
    m_shortcuts.reset();
    m_page->showMessage({});
}

/// While it counts down the same button begins at once, and then it ends the recording.
void PloversController::startClicked()
{
    if (m_recording != 0)
        return stopRecording();
    QString obstacle = m_panel->obstacle().localized();
    const bool isReady = obstacle.isEmpty() && m_settings->check(&obstacle);
    if (!isReady) {
        tarnwell::runAlert({.message = obstacle,
                            .defaultButton = tarnwell::AppLocalizedString(u"OK"_s),
                            .alternateButton = {},
                            .informativeText = {},
                            .style = tarnwell::AlertStyle::Warning});
    } else if (m_beginning.isValid() || m_panel->begin() == CapturePanel::Begin::AtOnce) {
        record();
    } else {
        const bool isTimed = m_panel->begin() == CapturePanel::Begin::AtTime;
        beginAt(isTimed ? m_panel->beginTime() : QDateTime::currentDateTime().addSecs(countdownSeconds));
    }
}

void PloversController::beginAt(const QDateTime &moment)
{
    m_beginning = moment;
    const std::chrono::milliseconds left(QDateTime::currentDateTime().msecsTo(moment));
    const QString time = QLocale().toString(moment.time(), QLocale::ShortFormat);
    if (left < -std::chrono::minutes(1)) {  // the machine slept
        endCountdown();
        return m_page->showMessage(
            Sentence("The recording that was to begin at %1 was missed."_key, {time}).localized());
    }
    if (left.count() <= 0)
        return record();
    if (!m_awake) {
        m_awake = std::make_unique<DesktopServices>(tarnwell::productBundle().identifier());
        m_awake->setAwake(true, Sentence("A recording is to begin at %1."_key, {time}).localized());
    }
    constexpr std::chrono::seconds keysAhead(10);
    const auto seconds = std::chrono::ceil<std::chrono::seconds>(left);
    const Sentence message = seconds < std::chrono::minutes(1)
                                 ? Sentence("Recording begins in %1 s. Press Record to begin at once."_key,
                                            {QString::number(seconds.count())})
                                 : Sentence("Recording begins at %1. Press Record to begin at once."_key, {time});
    QStringList parts{message.localized()};
    if (seconds <= keysAhead) {
        RecordPlan plan;
        m_panel->choose(plan);
        setTarget(plan);
        takeKeys();
        parts.append(keyLine(u' '));
    }
    m_page->showMessage(parts.join(u' ').trimmed());
    constexpr std::chrono::milliseconds step = std::chrono::seconds(1);
    foundation::queue::afterMain(std::min(step, left), [self = QPointer(this), moment] {
        if (self && self->m_beginning == moment)
            self->beginAt(moment);
    });
}

void PloversController::record()
{
    m_beginning = {};
    m_awake.reset();
    RecordPlan plan = recordPlan(*m_settings);
    m_panel->choose(plan);
    m_settings->setDefaultRecordQuality(int(plan.quality));
    m_settings->setMaxFramerate(plan.rate);
    m_settings->setAudioDeviceID(plan.microphone);
    m_settings->setVideoDeviceID(plan.camera);
    m_settings->setCaptureMouseClick(m_panel->wantsClicks());
    m_settings->setRecordChoices(
        QString::fromUtf8(QJsonDocument(m_panel->choices(plan)).toJson(QJsonDocument::Compact)));
    setTarget(plan);
    const QString folder = m_settings->getVideoDir();
    QDir().mkpath(folder);
    m_recording = queue().add(recordingJob(plan, folder));
    m_meter.open(m_settings->getTranscoderPath(), plan);
    m_panel->release();
    openControls();
    queue().start({m_recording});
    showState();
}

void PloversController::setTarget(const RecordPlan &plan)
{
    const auto target = captureTarget(plan);
    m_target = target ? *target : CaptureTarget();
}

void PloversController::showState()
{
    if (!m_page)
        return;
    m_page->startButton()->setText((m_recording != 0 ? "Stop"_key : ploverTexts.start).localized());
    m_page->startButton()->setToolTip(m_recording != 0 ? keyLine(u'\n') : QString());
    // A second click on "Record" is not meant for "Stop".
    const JobRecord *record = m_recording != 0 ? queue().record(m_recording) : nullptr;
    m_page->setStartEnabled(!record || (record->progress.seconds > 0 && record->state != JobState::Stopping));
}

}  // namespace kestrel
