#include "MarlinController.h"

#include "jobs/JobQueue.h"
#include "jobs/ui/JobListView.h"
#include "jobs/ui/JobPage.h"
#include "media/MediaFiles.h"
#include "modules/common/LateView.h"
#include "modules/common/OutputFolderLine.h"
#include "modules/marlin/Conversion.h"
#include "modules/marlin/ConversionList.h"
#include "settings/JKestrelSettingDispatcher.h"
#include "tarnwell/Alerts.h"
#include "tarnwell/Localization.h"
#include "tarnwell/ui/Images.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPushButton>
#include <QShortcut>
#include <QThread>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::operator""_key;

namespace {

constexpr JobPageTexts marlinTexts = {
    .title = "Video Converter"_key,
    .emptyHeadline = "Drop videos or folders here"_key,
    .emptyText = "They become MP4, MKV, WebM or MP3, as you choose."_key,
    .emptyButton = "Add Files…"_key,
    .start = "Convert"_key,
    .emptyImage = "marlin_drop",
};

/// What "Convert" starts: everything that is not done.
constexpr std::initializer_list<JobState> startable = {JobState::Ready, JobState::Failed, JobState::Cancelled,
                                                       JobState::Interrupted};

}  // namespace

MarlinController::MarlinController(const ModuleConfigure &configure, ModuleServices &services)
    : m_services(services),
      m_settings(configure.value(moduleSettingKey.toString())),
      m_recipe([this] { return transcodeTools(*m_settings, QThread::idealThreadCount()); }),
      m_view(std::make_unique<LateView>([this] { return makeContents(); }))
{
    connect(&m_prober, &MediaProber::probed, this, &MarlinController::probed);
}

MarlinController::~MarlinController()
{
    if (m_list)
        queue().setRecipe(marlinJobs.toString(), nullptr);
}

JobQueue &MarlinController::queue()
{
    return m_services.queue();
}

std::unique_ptr<QWidget> MarlinController::makeContents()
{
    queue().setRecipe(marlinJobs.toString(), &m_recipe);
    m_list = std::make_unique<ConversionList>(queue());
    auto page = std::make_unique<JobPage>(queue(), *m_list, marlinJobs.toString(), marlinTexts);
    m_page = page.get();

    auto *addButton = new QPushButton(tarnwell::namedIcon(u"marlin_add"_s), "Add Files…"_key.localized());
    addButton->setObjectName(u"addButton"_s);
    connect(addButton, &QPushButton::clicked, this, &MarlinController::chooseFiles);
    page->addHeaderControl(addButton);
    m_presets = new QComboBox;
    m_presets->setObjectName(u"targetComboBox"_s);
    m_presets->setAccessibleName("Output format"_key.localized());
    for (const Preset &preset : builtInPresets())
        m_presets->addItem(preset.name, preset.id);
    connect(m_presets, &QComboBox::currentIndexChanged, this, &MarlinController::choosePreset);
    page->addChoice(m_presets);
    auto *folder = new OutputFolderLine;
    folder->setDispatcher(m_settings);
    page->addChoice(folder, 1);

    connect(m_page, &JobPage::backClicked, this, &MarlinController::doBackAction);
    connect(m_page, &JobPage::addClicked, this, &MarlinController::chooseFiles);
    connect(m_page, &JobPage::startClicked, this, &MarlinController::convert);
    connect(m_page, &JobPage::pathsDropped, this, &MarlinController::openFiles);
    connect(&queue(), &JobQueue::changed, this, &MarlinController::showState);
    connect(&queue(), &JobQueue::removed, this, &MarlinController::showState);
    for (const JobId id : queue().idsIn({JobState::Checking}, marlinJobs.toString()))
        lookAt(id);
    showState();
    return page;
}

void MarlinController::setCompletedHandler(CompletedHandler handler)
{
    m_completedHandler = std::move(handler);
}

QWidget *MarlinController::view()
{
    return m_view.get();
}

QString MarlinController::windowTitle() const
{
    return tarnwell::AppLocalizedString(u"Video Converter"_s);
}

/// Conversions go on while another module is open.
void MarlinController::doBackAction()
{
    if (m_completedHandler)
        m_completedHandler(this);
}

bool MarlinController::shouldTerminate()
{
    return true;
}

void MarlinController::showFirstOpenAppTip(bool show)
{
    m_view->makeContents();
    m_page->setTipVisible(tarnwell::AppLocalizedString(
                              u"Drop videos or folders anywhere in this window, choose a format below and press "
                              "Convert. The results go to the output folder; your own files stay as they are."_s),
                          show);
}

void MarlinController::openFiles(const QStringList &paths)
{
    m_view->makeContents();
    for (const QString &path : mediaFiles(paths))
        add(path);
    showState();
}

void MarlinController::add(const QString &path)
{
    const Preset *preset = presetOfId(m_presets->currentData().toString());
    TranscodePlan plan =
        conversionPlan(*m_settings, preset ? *preset : builtInPresets().first(), QThread::idealThreadCount());
    plan.sources = {path};
    JobRecord record = conversionJob(plan, conversionFolder(*m_settings, plan));
    record.state = JobState::Checking;
    lookAt(queue().add(record));
}

void MarlinController::lookAt(JobId id)
{
    m_prober.probe(id, proberBeside(m_settings->getTranscoderPath()), queue().record(id)->source);
}

void MarlinController::probed(JobId id, const MediaProber::Answer &answer)
{
    if (!queue().record(id))
        return;
    if (answer)
        m_recipe.setInformation(id, {*answer});
    queue().change(id, [&](JobRecord &record) {
        record.state = answer ? JobState::Ready : JobState::Unusable;
        if (answer)
            setSourceSummary(record, *answer);
        else
            record.outcome.sentence = answer.reason();
    });
}

void MarlinController::chooseFiles()
{
    openFiles(QFileDialog::getOpenFileNames(m_page, "Add Files…"_key.localized(), QString(),
                                            "Media files"_key.localized() + u" ("_s + mediaNameFilters().join(u' ') +
                                                u");;"_s + "All files"_key.localized() + u" (*)"_s));
}

/// For what was chosen in the list, else for everything that is still to be converted.
void MarlinController::choosePreset()
{
    const Preset *preset = presetOfId(m_presets->currentData().toString());
    QList<JobId> ids = m_page->list()->selectedIds();
    if (ids.isEmpty())
        ids = queue().idsIn({JobState::Checking, JobState::Ready}, marlinJobs.toString());
    for (const JobId id : ids) {
        queue().change(id, [&](JobRecord &record) {
            if (auto plan = TranscodePlan::fromJson(record.plan)) {
                plan->preset = *preset;
                setPlan(record, *plan);
                record.folder = conversionFolder(*m_settings, *plan);
                record.state = record.state == JobState::Checking ? JobState::Checking : JobState::Ready;
            }
        });
    }
}

void MarlinController::convert()
{
    QString obstacle;
    if (canStart(&obstacle)) {
        queue().start(queue().idsIn(startable, marlinJobs.toString()));
        return;
    }
    tarnwell::runAlert({.message = obstacle,
                        .defaultButton = tarnwell::AppLocalizedString(u"OK"_s),
                        .alternateButton = {},
                        .informativeText = {},
                        .style = tarnwell::AlertStyle::Warning});
}

bool MarlinController::canStart(QString *obstacle) const
{
    if (!m_settings->check(obstacle))
        return false;
    if (QFileInfo(m_settings->getTranscoderPath()).isExecutable())
        return true;
    *obstacle = tarnwell::AppLocalizedString(u"The converter is missing. Please install the application again."_s);
    return false;
}

void MarlinController::showState()
{
    if (m_page)
        m_page->setStartEnabled(!queue().idsIn(startable, marlinJobs.toString()).isEmpty());
}

}  // namespace kestrel
