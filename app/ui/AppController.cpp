#include "AppController.h"

#include "_JKestrelWindow.h"
#include "foundation/Queues.h"
#include "foundation/UserDefaults.h"
#include "modules/ModuleRow.h"
#include "settings/JKestrelSetting.h"
#include "settings/JKestrelSettingDispatcher.h"
#include "tarnwell/ProductInformation.h"
#include "tarnwell/WebPages.h"
#include "tarnwell/ui/Frames.h"
#include "tarnwell/ui/LWindowTransitionAnimator.h"
#include "tarnwell/ui/TitledWindow.h"

#include <QPointer>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

const QString menuMode = u"menu"_s;
const QString installedVersionKey = u"InstalledVersion"_s;

foundation::Size sizeOf(const QWidget *view)
{
    return view ? foundation::Size{double(view->width()), double(view->height())} : foundation::Size{};
}

template <class Message>
void sendIfImplemented(ModuleController *controller, void (Message::*message)())
{
    if (auto *receiver = dynamic_cast<Message *>(controller))
        (receiver->*message)();
}

void removeFromSuperview(QWidget *view)
{
    if (view)
        view->setParent(nullptr);
}

}  // namespace

foundation::Rect mainWindowFrame(const foundation::Rect &homeFrame, const foundation::Size &viewSize)
{
    const foundation::Point center = homeFrame.center();
    return {center.x - 0.5 * viewSize.width, center.y - 0.5 * viewSize.height, viewSize.width,
            viewSize.height + tarnwell::TitledWindow::defaultTitleBarHeight};
}

AppController::AppController(Surroundings surroundings, QObject *parent)
    : QObject(parent),
      m_surroundings(std::move(surroundings)),
      m_modules(moduleRows().size())
{
}

AppController::~AppController()
{
    m_surroundings.mainWindow.setShouldClose({});
    m_surroundings.mainWindow.setCloseAction({});
    // A module owns its view: it must be out of the window before either goes.
    if (m_currentController)
        removeFromSuperview(m_currentController->view());
}

void AppController::applicationWillFinishLaunching()
{
    tarnwell::TitledWindow &window = m_surroundings.mainWindow;
    window.setButtonVisible(tarnwell::TitledWindow::WindowButton::Zoom, false);
    window.setShouldClose([this] { return windowShouldClose(); });
    m_menuController = std::make_unique<KestrelController>();
    m_menuController->makeInit();
    m_menuController->setSettingAndAboutEnabled(bool(m_surroundings.windows.setting),
                                                bool(m_surroundings.windows.about));
    loadEachSubController();
}

void AppController::applicationDidFinishLaunching()
{
    m_menuController->setMenuDelegate(this);
    // Closing it ends the application.
    m_menuController->window()->setShouldClose(m_surroundings.stopJobs);
    m_menuController->window()->center();
    m_menuController->showWindow();
    m_surroundings.mainWindow.setCloseAction([this] { closeSubWindowAction(); });
    for (tarnwell::TitledWindow *window :
         {static_cast<tarnwell::TitledWindow *>(m_menuController->window()), &m_surroundings.mainWindow}) {
        connect(window, &tarnwell::TitledWindow::willClose, this,
                [this, window] { subModeWindowWillCloseNotification(window); });
    }
    recordInstalledVersion();
}

void AppController::recordInstalledVersion()
{
    const QString previous = m_surroundings.defaults.stringForKey(installedVersionKey);
    const QString current = tarnwell::GetAppCurrentVersion();
    if (previous == current)
        return;
    m_surroundings.setting.setFirstRun(true);
    m_surroundings.setting.setPreviousVersion(previous);
    tarnwell::PHPOpenWebsite(tarnwell::AppLaunchLink(), u"ins"_s);
    m_surroundings.defaults.setObject(current, installedVersionKey);
}

bool AppController::applicationWillTerminate()
{
    if (m_surroundings.windows.storeEdits)
        m_surroundings.windows.storeEdits();
    for (const ModuleSettingKind kind : {ModuleSettingVideo, ModuleSettingDVD})
        sendIfImplemented(m_modules[kind].controller.get(), &ModuleSettingSync::syncSetting);
    return m_surroundings.setting.sync();
}

void AppController::loadEachSubController()
{
    for (const auto &[kind, make] : m_surroundings.modules) {
        auto dispatcher = std::make_shared<JKestrelSettingDispatcher>(kind, m_surroundings.setting);
        m_modules[kind].controller =
            make({{moduleSettingKey.toString(), std::move(dispatcher)}}, m_surroundings.services);
    }
    const auto completed = [this](ModuleController *controller) { completeModule(controller); };
    for (HostedModule &module : m_modules) {
        if (module.controller)
            module.controller->setCompletedHandler(completed);
    }
    for (HostedModule &module : m_modules)
        module.originalSize = realLoadSubController(module.controller.get());
    m_surroundings.setting.setCurrMode(menuMode);
}

foundation::Size AppController::realLoadSubController(ModuleController *controller)
{
    QWidget *view = controller ? controller->view() : nullptr;
    if (!view)
        return {};
    view->setParent(m_surroundings.mainWindow.contentView());
    foundation::Rect frame = tarnwell::viewFrame(view);
    frame.origin = {1000, 0};
    tarnwell::setViewFrame(view, frame);
    removeFromSuperview(view);
    return sizeOf(view);
}

void AppController::completeModule(ModuleController *controller)
{
    const QWidget *view = controller->view();
    QWidget *window = view && view->parentWidget() ? view->window() : &m_surroundings.mainWindow;
    tarnwell::LWindowTransitionAnimator::sharedAnimator().zoomFromWindow(
        window, m_menuController->window(), true, [self = QPointer(this)] {
            if (!self)
                return;
            self->switchToMenuWindow();
            self->m_surroundings.setting.setCurrMode(menuMode);
        });
}

void AppController::showMenuWindow()
{
    m_menuController->showWindow();
}

void AppController::onShowMarlin()
{
    onShowModule(ModuleSettingVideo);
}

void AppController::onShowHeron()
{
    onShowModule(ModuleSettingDVD);
}

void AppController::onShowPetrel()
{
    onShowModule(ModuleSettingDownload);
}

void AppController::onShowRecorder()
{
    onShowModule(ModuleSettingRecord);
}

void AppController::onShowModule(ModuleSettingKind kind)
{
    const HostedModule &module = m_modules[kind];
    if (!module.controller)
        return;
    // A way home that is still under way would set its own mode at its end.
    tarnwell::LWindowTransitionAnimator::sharedAnimator().finishRunning();
    m_surroundings.setting.setCurrMode(moduleKey(kind));
    if (QWidget *view = module.controller->view())
        view->resize(qRound(module.originalSize.width), qRound(module.originalSize.height));
    showSubModeHelper(module.controller.get());
    if (kind == ModuleSettingDownload)
        sendIfImplemented(downloaderController(), &ModuleCoreUpdate::checkCoreUpdateInBackground);
}

void AppController::showSubModeHelper(ModuleController *controller)
{
    sendIfImplemented(controller, &ModuleAppearance::markAppear);
    if (m_currentController) {
        sendIfImplemented(m_currentController, &ModuleDisappearance::onViewDidDisappear);
        removeFromSuperview(m_currentController->view());
    }
    m_currentController = controller;
    tarnwell::TitledWindow &window = m_surroundings.mainWindow;
    QWidget *view = controller->view();
    if (view) {
        view->setParent(window.contentView());
        setWindowTitle(controller->windowTitle());
    }
    const QSize titleBar(0, int(tarnwell::TitledWindow::defaultTitleBarHeight));
    const QScreen &screen = *m_menuController->window()->screen();
    const QSize leastContent = view ? view->minimumSizeHint().expandedTo({0, 0}).boundedTo(view->size()) : QSize(0, 0);
    window.setMinimumSize((leastContent + titleBar).boundedTo(screen.availableGeometry().size()));
    window.setFrame(mainWindowFrame(m_menuController->window()->frame(), sizeOf(view)));
    window.comeIntoView(screen);
    window.setFillingView(view);
    if (view) {
        view->show();
        view->setFocus();  // its shortcuts work from the first moment on
    }
    tarnwell::LWindowTransitionAnimator::sharedAnimator().zoomFromWindow(
        m_menuController->window(), &window, false, [self = QPointer(this)] {
            if (self && self->m_currentController && self->m_currentController == self->recorderController())
                sendIfImplemented(self->m_currentController, &ModuleRecorderSession::startRecorderSession);
        });
}

void AppController::setWindowTitle(const QString &text)
{
    m_surroundings.mainWindow.setWindowTitle(u"Kestrel 4K%1%2"_s.arg(text.isNull() ? u""_s : u" - "_s, text));
}

void AppController::onShowSetting()
{
    if (m_surroundings.windows.setting)
        m_surroundings.windows.setting(visibleWindow());
}

void AppController::onShowAbout()
{
    if (m_surroundings.windows.about)
        m_surroundings.windows.about(visibleWindow());
}

tarnwell::TitledWindow *AppController::visibleWindow() const
{
    if (m_surroundings.mainWindow.isVisible())
        return &m_surroundings.mainWindow;
    return m_menuController->window();
}

void AppController::openFiles(const QStringList &paths)
{
    openUnlessOnScreen(ModuleSettingVideo);
    if (auto *receiver = dynamic_cast<ModuleFileOpening *>(converterController()))
        receiver->openFiles(paths);
}

void AppController::openUnlessOnScreen(ModuleSettingKind kind)
{
    if (m_surroundings.setting.currMode() != moduleKey(kind))
        onShowModule(kind);
}

void AppController::bringUpModule(ModuleSettingKind kind)
{
    openUnlessOnScreen(kind);
    raiseVisibleWindow();
}

void AppController::raiseVisibleWindow()
{
    visibleWindow()->makeKeyAndOrderFront();
}

void AppController::showProperTip()
{
    if (m_currentController != converterController())
        return;
    if (auto *receiver = dynamic_cast<ModuleFirstOpenTip *>(m_currentController))
        receiver->showFirstOpenAppTip(true);
}

void AppController::closeSubWindowAction()
{
    // A turn later, when the button is through with its own event.
    foundation::queue::asyncMain([self = QPointer(this)] {
        if (self && self->m_currentController)
            self->m_currentController->doBackAction();
    });
}

bool AppController::windowShouldClose()
{
    const bool isAskedLater = m_currentController == recorderController();  // by `stopJobs`
    return m_currentController && (isAskedLater || m_currentController->shouldTerminate()) && m_surroundings.stopJobs();
}

void AppController::subModeWindowWillCloseNotification(const tarnwell::TitledWindow *window)
{
    if (window == m_menuController->window())
        m_surroundings.terminate();
}

}  // namespace kestrel
