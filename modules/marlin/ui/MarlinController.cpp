#include "MarlinController.h"

#include "MarlinView.h"
#include "modules/common/LateView.h"
#include "modules/common/OutputFolderLine.h"
#include "modules/marlin/MediaFiles.h"
#include "settings/JKestrelSettingDispatcher.h"
#include "tarnwell/Alerts.h"
#include "tarnwell/Localization.h"
#include "tarnwell/WebPages.h"

#include <QFileInfo>
#include <QThread>

using namespace Qt::StringLiterals;

namespace kestrel {

MarlinController::MarlinController(const ModuleConfigure &configure)
    : m_settings(configure.value(moduleSettingKey.toString())),
      m_queue(m_list),
      m_view(std::make_unique<LateView>([this] { return makeContents(); }))
{
    connectParts();
}

MarlinController::~MarlinController() = default;

void MarlinController::connectParts()
{
    connect(&m_prober, &MediaProber::probed, this, &MarlinController::probed);
    connect(&m_list, &ConversionList::itemsRemoved, &m_prober, &MediaProber::forget);
    connect(&m_list, &ConversionList::itemsRemoved, this, &MarlinController::showState);

    connect(&m_queue, &ConversionQueue::started, this, &MarlinController::showState);
    connect(&m_queue, &ConversionQueue::finished, this, &MarlinController::finished);
}

std::unique_ptr<QWidget> MarlinController::makeContents()
{
    auto contents = std::make_unique<MarlinView>(m_list);
    MarlinView *view = m_contents = contents.get();
    view->outputFolder()->setDispatcher(m_settings);
    connect(view, &MarlinView::pathsChosen, this, &MarlinController::openFiles);
    connect(view, &MarlinView::convertClicked, this, &MarlinController::convert);
    connect(view, &MarlinView::cancelClicked, &m_queue, &ConversionQueue::cancel);
    connect(view, &MarlinView::backClicked, this, &MarlinController::doBackAction);
    connect(view, &MarlinView::targetChanged, this, &MarlinController::targetChanged);
    connect(&m_queue, &ConversionQueue::progressed, view, &MarlinView::showProgress);
    showState();
    return contents;
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

void MarlinController::doBackAction()
{
    if (mayLeave() && m_completedHandler)
        m_completedHandler(this);
}

bool MarlinController::shouldTerminate()
{
    return mayLeave();
}

/// Asks where that would stop conversions, and stops them.
bool MarlinController::mayLeave()
{
    if (!m_queue.isRunning())
        return true;
    const tarnwell::Alert question{.message = tarnwell::AppLocalizedString(u"Conversions are running."_s),
                                   .defaultButton = tarnwell::AppLocalizedString(u"Stop and Leave"_s),
                                   .alternateButton = tarnwell::AppLocalizedString(u"Keep Converting"_s),
                                   .informativeText = tarnwell::AppLocalizedString(
                                       u"Files that are not finished would have to be converted again."_s),
                                   .style = tarnwell::AlertStyle::Warning};
    if (tarnwell::runAlert(question) != tarnwell::AlertAnswer::Default)
        return false;
    m_queue.cancel();
    return true;
}

void MarlinController::showFirstOpenAppTip(bool show)
{
    m_view->makeContents();
    m_contents->setFirstUseTipVisible(show);
}

void MarlinController::openFiles(const QStringList &paths)
{
    for (const QString &path : mediaFiles(paths)) {
        if (const auto id = m_list.add(path))
            m_prober.probe(*id, m_settings->getMediaInfoPath(), path);
    }
    showState();
}

void MarlinController::probed(qint64 id, const std::optional<MediaInformation> &information, const QString &reason)
{
    m_list.change(id, [&](ConversionItem &item) {
        item.state = information ? ConversionState::Ready : ConversionState::Unusable;
        item.information = information.value_or(MediaInformation());
        item.reason = reason;
    });
    showState();
}

void MarlinController::convert()
{
    QString obstacle;
    if (!canStart(&obstacle)) {
        tarnwell::runAlert({.message = obstacle,
                            .defaultButton = tarnwell::AppLocalizedString(u"OK"_s),
                            .alternateButton = {},
                            .informativeText = {},
                            .style = tarnwell::AlertStyle::Warning});
        return;
    }
    m_queue.start({.transcoderPath = m_settings->getTranscoderPath(),
                   .target = &m_contents->target(),
                   .options = transcodeOptions(*m_settings, QThread::idealThreadCount()),
                   .folder = m_settings->getVideoDir()});
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

/// What was converted to another format can be converted once more.
void MarlinController::targetChanged()
{
    for (const qint64 id : m_list.idsIn({ConversionState::Done, ConversionState::Failed, ConversionState::Stopped})) {
        m_list.change(id, [](ConversionItem &item) {
            item.state = ConversionState::Ready;
            item.reason = item.details = item.outputPath = QString();
        });
    }
    showState();
}

void MarlinController::finished(int succeeded, bool isCancelled)
{
    showState();
    const qsizetype failed = m_list.idsIn({ConversionState::Failed}).size();
    QString summary = tarnwell::AppLocalizedString(u"Converted: %1"_s).arg(succeeded);
    if (failed > 0)
        summary += u" · "_s + tarnwell::AppLocalizedString(u"Failed: %1"_s).arg(failed);
    m_contents->setStatus(summary);
    if (succeeded > 0 && !isCancelled && m_settings->isOpenWhenDone())
        tarnwell::OpenDirectory(m_queue.plan().folder);
}

void MarlinController::showState()
{
    if (!m_contents)
        return;
    const bool isReading = !m_list.idsIn({ConversionState::Probing}).isEmpty();
    m_contents->setRunning(m_queue.isRunning());
    m_contents->setConvertible(!isReading && !m_queue.convertibleIds().isEmpty());
    if (!m_queue.isRunning())
        m_contents->setStatus(isReading ? tarnwell::AppLocalizedString(u"Reading files…"_s) : QString());
}

}  // namespace kestrel
