#include "PetrelController.h"

#include "SitePictures.h"

#include "foundation/Bundle.h"
#include "foundation/Queues.h"
#include "jobs/JobQueue.h"
#include "jobs/JobText.h"
#include "jobs/ui/JobDetails.h"
#include "jobs/ui/JobListView.h"
#include "jobs/ui/JobPage.h"
#include "jobs/ui/JobRowDelegate.h"
#include "modules/common/LateView.h"
#include "modules/common/MadeFilms.h"
#include "modules/common/OutputFolderLine.h"
#include "modules/petrel/Download.h"
#include "modules/petrel/DownloadList.h"
#include "modules/petrel/EngineFailure.h"
#include "settings/JKestrelSettingDispatcher.h"
#include "tarnwell/Alerts.h"
#include "tarnwell/Localization.h"
#include "tarnwell/ui/TabOrder.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QThread>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::operator""_key;

namespace {

constexpr JobPageTexts petrelTexts = {
    .title = "Downloader"_key,
    .emptyHeadline = "Paste or drop addresses here"_key,
    .emptyText = "Videos and music from the web are saved in the form that you choose."_key,
    .emptyButton = {},
    .start = "Download"_key,
    .emptyImage = "petrel_module",
};

/// What "Download" starts: everything that is not done.
constexpr std::initializer_list<JobState> startable = {JobState::Ready, JobState::Failed, JobState::Cancelled,
                                                       JobState::Interrupted};

constexpr int offeredHeights[] = {240, 360, 480, 720, 1080, 1440, 2160};
constexpr qint64 offeredLimits[] = {100'000, 500'000, 1'000'000, 5'000'000, 10'000'000};

void addRow(QComboBox &box, const QString &text, const QVariant &value)
{
    box.addItem(text, value);
}

}  // namespace

PetrelController::PetrelController(const ModuleConfigure &configure, ModuleServices &services)
    : m_services(services),
      m_settings(configure.value(moduleSettingKey.toString())),
      m_recipe([this] { return downloadTools(*m_settings, QThread::idealThreadCount()); }),
      m_view(std::make_unique<LateView>([this] { return makeContents(); }))
{
}

PetrelController::~PetrelController()
{
    if (m_list)
        queue().setRecipe(petrelJobs.toString(), nullptr);
}

JobQueue &PetrelController::queue()
{
    return m_services.queue();
}

std::unique_ptr<QWidget> PetrelController::makeContents()
{
    queue().setRecipe(petrelJobs.toString(), &m_recipe);
    const QString answers = downloadDataFolder() + "/answers"_L1;
    AnswerStore(answers).sweep();
    engineStore().sweep();
    m_analysis = std::make_unique<Analysis>([this] { return engineTools(*m_settings); }, answers);
    m_list = std::make_unique<DownloadList>(queue());
    m_pictures = std::make_unique<SitePictures>(JobRowDelegate::pictureSize);
    m_list->setPictures([this](const JobRecord &record) { return pictureOf(record); });
    connect(m_pictures.get(), &SitePictures::made, m_list.get(), &JobList::showPicturesAgain);
    auto page = std::make_unique<JobPage>(queue(), *m_list, petrelJobs.toString(), petrelTexts);
    m_page = page.get();
    new MadeFilms(*page, m_settings);
    page->setTopArea(makeAddressLine());
    addChoices();
    connectPage();
    followSettings();
    for (const JobId id : queue().idsIn({JobState::Checking}, petrelJobs.toString()))
        lookAt(id);
    showState();
    tarnwell::tabInLayoutOrder(*page);
    return page;
}

QWidget *PetrelController::makeAddressLine()
{
    auto *line = new QWidget;
    auto *layout = new QHBoxLayout(line);
    layout->setContentsMargins({});
    layout->setSpacing(8);
    m_address = new QLineEdit;
    m_address->setObjectName(u"addressField"_s);
    m_address->setAccessibleName("Address"_key.localized());
    m_address->setPlaceholderText("Address of a video or a page, such as https://…"_key.localized());
    m_address->setClearButtonEnabled(true);
    auto *addButton = new QPushButton("Add"_key.localized());
    addButton->setObjectName(u"addButton"_s);
    layout->addWidget(m_address, 1);
    layout->addWidget(addButton);
    const auto take = [this] { takeText(m_address->text()); };
    connect(m_address, &QLineEdit::returnPressed, this, take);
    connect(addButton, &QPushButton::clicked, this, take);
    return line;
}

void PetrelController::addChoices()
{
    m_formats = new QComboBox;
    m_formats->setObjectName(u"formatComboBox"_s);
    m_formats->setAccessibleName("Output format"_key.localized());
    for (const QString &format : downloadFormats())
        addRow(*m_formats, format.toUpper(), format);
    for (const QString &format : soundFormats())
        addRow(*m_formats, tarnwell::Sentence("%1 (sound only)"_key, {format.toUpper()}).localized(), format);
    m_resolutions = new QComboBox;
    m_resolutions->setObjectName(u"resolutionComboBox"_s);
    m_resolutions->setAccessibleName("Resolution"_key.localized());
    addRow(*m_resolutions, tarnwell::AppLocalizedString(u"Highest Resolution"_s), 0);
    for (const int height : offeredHeights)
        addRow(*m_resolutions, u"%1p"_s.arg(height), height);
    m_limits = new QComboBox;
    m_limits->setObjectName(u"limitComboBox"_s);
    m_limits->setAccessibleName("Speed limit of each download"_key.localized());
    m_limits->setToolTip("Downloads that are running keep the limit that they began with."_key.localized());
    addRow(*m_limits, "No speed limit"_key.localized(), 0);
    for (const qint64 limit : offeredLimits)
        addRow(*m_limits, tarnwell::Sentence("%1/s"_key, {bytesText(limit)}).localized(), limit);
    for (QComboBox *box : {m_formats.data(), m_resolutions.data(), m_limits.data()}) {
        // Also what it shows already may be chosen, for rows that have something else.
        for (const auto change : {&QComboBox::currentIndexChanged, &QComboBox::activated})
            connect(box, change, this, [this, box] { applyChoice(box); });
        m_page->addChoice(box);
    }
    auto *folder = new OutputFolderLine;
    folder->setDispatcher(m_settings);
    m_page->addChoice(folder, 1);
}

void PetrelController::connectPage()
{
    connect(m_analysis.get(), &Analysis::answered, this, &PetrelController::answered);
    connect(m_analysis.get(), &Analysis::waits, this, [this](JobId id, EngineFailure::Kind kind, int seconds) {
        if (!m_asked.contains(id))
            return;
        queue().change(id, [&](JobRecord &record) {
            record.blocked = seconds > 0 ? waitingSentence(kind, seconds) : tarnwell::Sentence();
        });
    });
    connect(m_page, &JobPage::backClicked, this, &PetrelController::doBackAction);
    connect(m_page, &JobPage::startClicked, this, &PetrelController::download);
    connect(m_page, &JobPage::pathsDropped, this, &PetrelController::takeFiles);
    connect(m_page, &JobPage::textDropped, this, &PetrelController::takeText);
    connect(m_page->list(), &JobListView::menuRequested, this, &PetrelController::extendMenu);
    connect(m_page->list(), &JobListView::detailsOpened, this, &PetrelController::offerHelp);
    connect(m_page->list(), &JobListView::lookAgainRequested, this, &PetrelController::lookAgain);
    connect(m_page->list(), &JobListView::stopLookingRequested, this, &PetrelController::stopLooking);
    connect(m_page, &JobPage::cancelClicked, this, [this] { stopLooking(m_asked.values()); });
    connect(&queue(), &JobQueue::changed, this, &PetrelController::prepare);
    connect(&queue(), &JobQueue::changed, this, &PetrelController::showState);
    connect(&queue(), &JobQueue::ended, this, &PetrelController::followSettings);
    connect(&queue(), &JobQueue::removed, this, [this] {
        for (const JobId id : QSet<JobId>(m_asked)) {
            if (queue().record(id))
                continue;
            m_analysis->stop(id);
            m_asked.remove(id);
        }
        showState();
    });
}

void PetrelController::setCompletedHandler(CompletedHandler handler)
{
    m_completedHandler = std::move(handler);
}

QWidget *PetrelController::view()
{
    return m_view.get();
}

QString PetrelController::windowTitle() const
{
    return tarnwell::AppLocalizedString(u"Downloader"_s);
}

/// Downloads go on while another module is open.
void PetrelController::doBackAction()
{
    if (m_completedHandler)
        m_completedHandler(this);
}

bool PetrelController::shouldTerminate()
{
    return true;
}

void PetrelController::markAppear()
{
    if (m_page)
        followSettings();
}

void PetrelController::checkCoreUpdateInBackground()
{
    engineUpdate().start(EngineUpdate::Asked::ByItself);
}

EngineUpdate &PetrelController::engineUpdate()
{
    if (!m_update)
        m_update =
            std::make_unique<EngineUpdate>(engineStore(), engineTools(*m_settings), EngineUpdate::productSource(),
                                           std::make_shared<foundation::Fetcher>(
                                               foundation::Bundle::main().contentsPath(u"Frameworks/WebTransfer"_s)));
    return *m_update;
}

/// As a user asks for it, who is told what came of it.
void PetrelController::updateEngine()
{
    using End = EngineUpdate::End;
    m_page->showMessage("Looking for a newer download engine…"_key.localized());
    connect(
        &engineUpdate(), &EngineUpdate::ended, this,
        [this](End end, const QString &text) {
            if (end == End::Updated)
                m_page->showMessage(
                    tarnwell::Sentence("The download engine is now of version %1. Try again."_key, {text}).localized());
            else if (end == End::UpToDate)
                m_page->showMessage("There is no newer download engine."_key.localized());
            else
                m_page->showMessage("The download engine could not be updated."_key.localized());
        },
        Qt::SingleShotConnection);
    engineUpdate().start(EngineUpdate::Asked::ByUser);
}

/// Nothing goes another way than the film itself will.
QVariant PetrelController::pictureOf(const JobRecord &record) const
{
    const auto plan = DownloadPlan::fromJson(record.plan);
    if (!plan || !plan->proxy.isEmpty())
        return {};
    m_pictures->setScale(m_page->devicePixelRatioF());
    const QPixmap picture = m_pictures->picture(plan->picture);
    return picture.isNull() ? QVariant() : picture;
}

void PetrelController::download()
{
    followSettings();
    if (QString obstacle; !m_settings->check(&obstacle)) {
        tarnwell::runAlert({.message = obstacle,
                            .defaultButton = tarnwell::AppLocalizedString(u"OK"_s),
                            .alternateButton = {},
                            .informativeText = {},
                            .style = tarnwell::AlertStyle::Warning});
        return;
    }
    queue().start(queue().idsIn(startable, petrelJobs.toString()));
}

/// The settings window announces no change of these.
void PetrelController::followSettings()
{
    if (const int atOnce = downloadsAtOnce(*m_settings); atOnce != m_atOnce) {
        m_atOnce = atOnce;
        queue().setLaneLimit(Lane::Net, atOnce);
    }
    const DownloadPlan usual = downloadPlan(*m_settings, {});
    const QSignalBlocker noFormat(m_formats), noResolution(m_resolutions);  // rows stay as they are
    if (usual.extension != m_usual.extension)
        m_formats->setCurrentIndex(m_formats->findData(usual.extension));
    if (usual.height != m_usual.height)
        m_resolutions->setCurrentIndex(std::max(0, m_resolutions->findData(usual.height)));
    m_usual = usual;
}

/// Thousands may change in one go.
void PetrelController::showState()
{
    if (std::exchange(m_isToShow, true))
        return;
    foundation::queue::asyncMain([self = QPointer(this)] {
        if (!self)
            return;
        self->m_isToShow = false;
        if (!self->m_page)
            return;
        self->followSettings();
        self->m_page->setStartEnabled(!self->queue().idsIn(startable, petrelJobs.toString()).isEmpty());
    });
}

}  // namespace kestrel
