#include "UpgradeWindowController.h"

#include "foundation/Queues.h"
#include "foundation/ui/StyledTextBuilder.h"
#include "tarnwell/Localization.h"
#include "tarnwell/Log.h"
#include "tarnwell/ProductInformation.h"
#include "tarnwell/WebPages.h"
#include "tarnwell/ui/Frames.h"
#include "tarnwell/ui/Images.h"
#include "tarnwell/ui/LabelText.h"
#include "tarnwell/ui/TextStyles.h"
#include "tarnwell/ui/TitledWindow.h"
#include "ui_UpgradeWindowController.h"

#include <QPointer>

#include <thread>

using namespace Qt::StringLiterals;
using kestrel::tarnwell::AppLocalizedString;
using kestrel::tarnwell::filledIn;

namespace kestrel {

namespace {

constexpr double windowWidth = 750;
constexpr double checkingHeight = 322;
constexpr double resultHeight = 432;
constexpr double loweringAfterCheck = 110;  ///< the window grows downwards
constexpr double loweringWithoutCheck = 100;
constexpr int stepsBeforeFetch = 7;
constexpr int stepsOfBar = 10;
constexpr int windowIconSize = 96;
constexpr qsizetype longestVersion = 60;
constexpr qsizetype longestNewsTitle = 200;
const QString webSourceTag = u"upui"_s;

foundation::StyledText styledNotes(const QString &notes)
{
    foundation::StyledTextBuilder builder;
    builder.append(notes, {});
    return builder.text();
}

}  // namespace

/// What the background task has of its own; the controller is for the main thread.
struct UpgradeWindowController::Check {
    QPointer<UpgradeWindowController> controller;
    std::shared_ptr<const std::atomic<bool>> exitWhileChecking;
    QString url;
    UpdateContext context;
    std::chrono::milliseconds step;

    void run() const;
    bool advance(int from, int to) const;
    void onMain(std::function<void(UpgradeWindowController &)> job) const;
};

void UpgradeWindowController::Check::run() const
{
    if (!advance(0, stepsBeforeFetch))
        return;
    const auto parser = UPParser::initWithXMLURL(url, context);
    if (!parser) {
        tarnwell::DNFootLog(u"The update descriptor could not be read: %1"_s, parser.reason());
        onMain([](UpgradeWindowController &window) {
            QLabel *field = window.m_form->hintWaitField;
            field->setText(AppLocalizedString(u"Unable to connect to update server."_s));
            tarnwell::setTextStyle(field, 13, QFont::Normal, tarnwell::palette::error);
        });
        return;
    }
    onMain([info = *parser](UpgradeWindowController &window) { window.m_upgradeInfo = info; });
    if (advance(stepsBeforeFetch, stepsOfBar))
        onMain([](UpgradeWindowController &window) { window.showResult(loweringAfterCheck); });
}

/// False once the user has cancelled.
bool UpgradeWindowController::Check::advance(int from, int to) const
{
    for (int i = from; i < to && !*exitWhileChecking; ++i) {
        std::this_thread::sleep_for(step);
        onMain([i](UpgradeWindowController &window) { window.m_form->progressIndicator->setValue(i * 10 + 10); });
    }
    return !*exitWhileChecking;
}

void UpgradeWindowController::Check::onMain(std::function<void(UpgradeWindowController &)> job) const
{
    foundation::queue::asyncMain([window = controller, exit = exitWhileChecking, job = std::move(job)] {
        if (window && !*exit)
            job(*window);
    });
}

UpgradeWindowController::UpgradeWindowController(const QString &upgradeInfoFileURL, UpdateContext context,
                                                 std::function<void()> terminate, std::chrono::milliseconds step)
    : m_upgradeInfoFileURL(upgradeInfoFileURL),
      m_context(std::move(context)),
      m_terminate(std::move(terminate)),
      m_step(step),
      m_exitWhileChecking(std::make_shared<std::atomic<bool>>(false)),
      m_window(std::make_unique<tarnwell::TitledWindow>()),
      m_form(std::make_unique<Ui::UpgradeWindowController>())
{
    setUpForm();
}

UpgradeWindowController::~UpgradeWindowController()
{
    *m_exitWhileChecking = true;
}

void UpgradeWindowController::setUpForm()
{
    namespace colors = tarnwell::palette;
    m_form->setupUi(m_window->contentView());
    m_window->setAccessibleName(applicationName());
    m_window->setButtonVisible(tarnwell::TitledWindow::WindowButton::Minimize, false);
    m_window->setButtonVisible(tarnwell::TitledWindow::WindowButton::Zoom, false);
    for (QLabel *label : {m_form->hintCheckUpdatesField, m_form->upToDateLabel, m_form->haveNewVersionTitleLabel})
        tarnwell::setTextStyle(label, 18, QFont::Bold, colors::title);
    tarnwell::setTextStyle(m_form->noNewVersionNewsTitle, 14, QFont::Bold, colors::title);
    tarnwell::setTextStyle(m_form->releaseNoteLabel, 13, QFont::Bold, colors::title);

    const std::pair<QPushButton *, void (UpgradeWindowController::*)()> actions[] = {
        {m_form->cancelProgressBtn, &UpgradeWindowController::cancelChecking},
        {m_form->cancelNewsBtn, &UpgradeWindowController::cancelLearnMore},
        {m_form->learMoreBtn, &UpgradeWindowController::learnMoreAction},
        {m_form->visitSiteBtn, &UpgradeWindowController::visitWebsiteAction},
        {m_form->cancelDownloadBtn, &UpgradeWindowController::cancelUpgrade},
        {m_form->downloadNowBtn, &UpgradeWindowController::upgradeAction}};
    for (const auto &[button, action] : actions)
        connect(button, &QPushButton::clicked, this, action);
}

void UpgradeWindowController::showUpgradeWindow()
{
    runModal(true);
}

void UpgradeWindowController::showUpgradeWindowNoProgress(std::shared_ptr<const UPParser> parser)
{
    m_upgradeInfo = std::move(parser);
    runModal(false);
}

void UpgradeWindowController::runModal(bool showProgress)
{
    m_showProgress = showProgress;
    *m_exitWhileChecking = false;
    windowDidLoad();
    m_session.run(*m_window, [this] { cancel(); });
}

void UpgradeWindowController::windowDidLoad()
{
    m_window->setFrame({0, 0, windowWidth, checkingHeight});
    m_window->center();
    loadImages();
    for (QLabel *view : {m_form->checkingIcon, m_form->noUpdateIcon, m_form->updateIcon}) {
        view->setPixmap(m_applicationIcon);
        view->setAccessibleName(applicationName());
    }
    replaceWindowTitleBarBackgroundImage();
    if (m_showProgress)
        showProgressSimulation();
    else
        showResult(loweringWithoutCheck);
}

void UpgradeWindowController::loadImages()
{
    const qreal scale = m_window->devicePixelRatioF();
    m_resultBackground = tarnwell::namedImage(u"upgrade_result_bg"_s, scale);
    m_checkingBackground = tarnwell::namedImage(u"upgrade_checking_bg"_s, scale);
    m_applicationIcon = tarnwell::applicationIcon(windowIconSize, scale);
}

void UpgradeWindowController::replaceWindowTitleBarBackgroundImage()
{
    m_window->makeInitWithImageName(u"upgrade_title_bg"_s, {});
    m_window->setWindowTitle(u""_s);
}

void UpgradeWindowController::showProgressSimulation()
{
    showView(m_form->progressView);
    const QString hint = AppLocalizedString(u"Checking for updates.. "_s);
    m_form->hintCheckUpdatesField->setText(hint);
    m_form->hintWaitField->setText(AppLocalizedString(u"Please wait. Getting update information from the server..."_s));
    tarnwell::setTextStyle(m_form->hintWaitField, 13, QFont::Normal, tarnwell::palette::quietText);
    m_form->cancelProgressBtn->setText(AppLocalizedString(u"Cancel"_s));
    m_form->progressIndicator->setAccessibleName(hint.trimmed());
    m_form->progressIndicator->setValue(0);
    foundation::queue::asyncGlobal(
        [check = Check{this, m_exitWhileChecking, m_upgradeInfoFileURL, m_context, m_step}] { check.run(); });
}

void UpgradeWindowController::showResult(double lowering)
{
    const foundation::Rect frame = m_window->frame();
    setWindowNewFrame({frame.origin.x, frame.origin.y - lowering, windowWidth, resultHeight}, false, false);
    m_window->move(tarnwell::keptOnScreen(m_window->geometry(), *m_window->screen()).topLeft());
    if (m_upgradeInfo->foundNewVerion())
        showNewVersionFound();
    else
        showNoNewVersion();
}

void UpgradeWindowController::setWindowNewFrame(const foundation::Rect &frame, bool display, bool)
{
    m_window->setFrame(frame);
    if (display)
        m_window->repaint();
}

void UpgradeWindowController::showNewVersionFound()
{
    showView(m_form->upgradeAvailableView);
    m_form->downloadNowBtn->setText(AppLocalizedString(u"Download Now"_s));
    m_form->cancelDownloadBtn->setText(AppLocalizedString(u"Cancel"_s));
    m_form->releaseNoteLabel->setText(AppLocalizedString(u"Release Notes:"_s));
    m_form->haveNewVersionTitleLabel->setText(
        filledIn(AppLocalizedString(u"A new version of %@ is available!"_s), {applicationName()}));
    m_form->haveNewVersionTipLabel->setText(
        filledIn(AppLocalizedString(u"%@ %@ is now available -- you're running %@. Would you like to update now?"_s),
                 {applicationName(), tarnwell::labelText(m_upgradeInfo->versionFromServer(), longestVersion),
                  applicationCurrentVersion()}));
    m_form->whatsNewFiled->setStyledText(m_upgradeInfo->updateLog());
    m_form->whatsNewFiled->setAccessibleName(m_form->releaseNoteLabel->text());
}

void UpgradeWindowController::showNoNewVersion()
{
    showView(m_form->noUpgradeFoundView);
    m_form->upToDateLabel->setText(AppLocalizedString(u"You're up-to-date!"_s));
    m_form->learMoreBtn->setText(AppLocalizedString(u"Learn More"_s));
    m_form->cancelNewsBtn->setText(AppLocalizedString(u"Cancel"_s));
    m_form->noNewVersionTipLabel->setText(
        filledIn(AppLocalizedString(u"%@ %@ is currently the latest version available."_s),
                 {applicationName(), applicationCurrentVersion()}));
    showNews();
    m_form->visitSiteBtn->setText(filledIn(u"%@ >>"_s, {AppLocalizedString(u"Visit website"_s)}));
}

void UpgradeWindowController::showNews()
{
    const QString title = m_upgradeInfo->promotionRegitsteredTitle();
    const QString notes = m_upgradeInfo->promotionRegitsteredNotes();
    m_form->noNewVersionNewsTitle->setText(tarnwell::labelText(title, longestNewsTitle));
    m_form->noNewVersionNewsContent->setStyledText(styledNotes(notes));
    m_form->noNewVersionNewsContent->setAccessibleName(m_form->noNewVersionNewsTitle->text());
    // What is empty leaves no hole.
    const bool hasTitle = !title.trimmed().isEmpty();
    const bool hasNotes = !notes.trimmed().isEmpty();
    m_form->noNewVersionNewsTitle->setVisible(hasTitle);
    m_form->noNewVersionNewsContent->setVisible(hasNotes);
    m_form->newsBox->setVisible(hasTitle || hasNotes);
    // The text has a margin of its own.
    m_form->newsLayout->setContentsMargins(4, hasTitle ? 12 : 4, 4, hasNotes ? 4 : 12);
}

void UpgradeWindowController::showView(QWidget *view)
{
    m_form->upgradeContentView->setCurrentWidget(view);
    // A key that was meant for a button of the former view does not press one of this.
    m_window->contentView()->setFocus();
}

QString UpgradeWindowController::applicationName() const
{
    return tarnwell::GetApplicationName();
}

QString UpgradeWindowController::applicationCurrentVersion() const
{
    return tarnwell::GetAppCurrentVersion();
}

void UpgradeWindowController::cancelChecking()
{
    *m_exitWhileChecking = true;
    m_session.stop();
}

void UpgradeWindowController::cancelLearnMore()
{
    m_session.stop();
}

void UpgradeWindowController::learnMoreAction()
{
    m_session.stop();
    tarnwell::OpenWebsitePath(m_upgradeInfo->promotionRegitsteredURL(), webSourceTag);
}

void UpgradeWindowController::visitWebsiteAction()
{
    m_session.stop();
    tarnwell::OpenWebsitePath(m_upgradeInfo->productDownloadURLReg(), webSourceTag);
}

void UpgradeWindowController::cancelUpgrade()
{
    m_session.stop();
    if (m_upgradeInfo->forceUpgrade())
        m_terminate();
}

void UpgradeWindowController::upgradeAction()
{
    if (!m_upgradeInfo->forceUpgrade())
        m_session.stop();
    tarnwell::OpenWebsitePath(m_upgradeInfo->productDownloadURLReg(), webSourceTag);
}

/// The cancel button of what the window shows.
void UpgradeWindowController::cancel()
{
    const QWidget *view = m_form->upgradeContentView->currentWidget();
    if (view == m_form->progressView)
        cancelChecking();
    else if (view == m_form->noUpgradeFoundView)
        cancelLearnMore();
    else
        cancelUpgrade();
}

}  // namespace kestrel
