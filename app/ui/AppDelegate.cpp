#include "AppDelegate.h"

#include "_JKestrelWindow.h"
#include "app/InterfaceLanguage.h"
#include "app/ProgramJobs.h"
#include "foundation/Bundle.h"
#include "foundation/LanguageTags.h"
#include "foundation/NotificationCenter.h"
#include "foundation/Queues.h"
#include "foundation/StandardFolders.h"
#include "foundation/UserDefaults.h"
#include "settings/JKestrelSetting.h"
#include "tarnwell/Alerts.h"
#include "tarnwell/Localization.h"
#include "tarnwell/Log.h"
#include "tarnwell/ProductInformation.h"
#include "tarnwell/SystemInformation.h"
#include "tarnwell/ui/JTooltipController.h"
#include "tarnwell/ui/TitledWindow.h"
#include "update/UPParser.h"

#include <QActionGroup>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPointer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using kestrel::tarnwell::AppLocalizedString;

namespace kestrel {

namespace {

/// The state of the tip entry when it was last chosen.
bool tipFlag = false;

QString showTipTitle()
{
    return AppLocalizedString(u"showtip"_s);
}

QString closeTipTitle()
{
    return AppLocalizedString(u"closetip"_s);
}

tarnwell::AlertAnswer askOkOrCancel(const QString &message, const QString &informativeText)
{
    return tarnwell::runAlert({message, AppLocalizedString(u"OK"_s), AppLocalizedString(u"Cancel"_s), informativeText});
}

}  // namespace

AppDelegate::AppDelegate(Surroundings surroundings)
    : m_surroundings(std::move(surroundings)),
      m_window(std::make_unique<tarnwell::TitledWindow>()),
      m_appController(std::make_unique<AppController>(AppController::Surroundings{
          *m_window, m_surroundings.setting, m_surroundings.defaults, std::move(m_surroundings.modules),
          m_surroundings.jobs, m_surroundings.windows, m_surroundings.terminate,
          [this] { return stopJobs(AppLocalizedString(u"Stop and Quit"_s)); }})),
      m_reports(m_surroundings.defaults),
      m_launchCheck(m_surroundings.defaults, std::move(m_surroundings.updates), m_surroundings.terminate),
      m_shutdownPanel(m_surroundings.jobs)
{
    makeStandardMenus();
    connect(&m_surroundings.jobs, &ProgramJobs::showRequested, this, &AppDelegate::showModuleOfJobs);
    connect(&m_surroundings.jobs, &ProgramJobs::conversionRequested, m_appController.get(), &AppController::openFiles,
            Qt::QueuedConnection);
}

AppDelegate::~AppDelegate() = default;

void AppDelegate::makeStandardMenus()
{
    const bool hasAbout = bool(m_surroundings.windows.about);
    const bool hasSetting = bool(m_surroundings.windows.setting);
    using Action = std::function<void()>;
    const MenuEntry application[] = {
        {QT_TRANSLATE_NOOP("TarnwellPublic", "About Kestrel"),
         hasAbout ? Action([this] { m_appController->onShowAbout(); }) : Action()},
        {QT_TRANSLATE_NOOP("TarnwellPublic", "Check for Updates…"), [this] { onCheckUpdateAction(); }},
        {},
        {QT_TRANSLATE_NOOP("TarnwellPublic", "Preferences…"),
         hasSetting ? Action([this] { onPreferencesAction(); }) : Action(), Qt::CTRL | Qt::Key_Comma},
        {},
        {QT_TRANSLATE_NOOP("TarnwellPublic", "Quit Kestrel"), [this] { onQuitAction(); }, Qt::CTRL | Qt::Key_Q}};
    MainMenu::append(*m_mainMenu.applicationMenu(), application);
    const MenuEntry help[] = {
        {QT_TRANSLATE_NOOP("TarnwellPublic", "Kestrel Help"), [this] { showHelp(); }, QKeySequence::HelpContents}};
    MainMenu::append(*m_mainMenu.helpMenu(), help);
}

void AppDelegate::applicationWillFinishLaunching()
{
    appendNewMenuItems();
    setupLanuageMenu();
    const QString dataFolder = tarnwell::GetApplicationSupportDir() + u'/' + tarnwell::GetApplicationName();
    if (!QFileInfo::exists(dataFolder))
        foundation::makePrivateFolder(dataFolder);
    tarnwell::JTooltipController::Instance().addWindow(m_window.get());
    m_window->makeInitWithImageName(u"window_titlebarbg"_s, u"window_title_bg"_s);
    m_appController->applicationWillFinishLaunching();
    m_window->setMenus(m_mainMenu.menus());
    m_appController->menuController()->window()->setMenus(m_mainMenu.menus());
}

void AppDelegate::applicationDidFinishLaunching()
{
    tarnwell::DNFootLog(u"[DEBUG]Application did Finished launching"_s);
    m_appController->applicationDidFinishLaunching();
    m_appController->showMenuWindow();
    m_surroundings.later(250ms, [self = QPointer(this)] {
        if (self)
            self->checkBugReportFlagWhenLaunch();
    });
    m_surroundings.later(500ms, [self = QPointer(this)] {
        if (self)
            foundation::queue::asyncGlobal([self] { self->checkUpgradesAutomatically(); });
    });
}

void AppDelegate::applicationWillTerminate()
{
    m_hasTerminated = true;
    m_reports.runWillEnd();
    m_launchCheck.runWillEnd();
    // A window that is presented over these closes with them, and stores what was typed into it.
    m_window->hide();
    if (KestrelController *home = m_appController->menuController())
        home->window()->hide();
    save();
}

void AppDelegate::save()
{
    m_surroundings.jobs.interrupt();
    const bool areSettingsSaved = m_appController->applicationWillTerminate();
    m_reports.markEnded();
    m_reports.noteSaved(m_surroundings.defaults.synchronize() && areSettingsSaved);
}

void AppDelegate::sessionWillEnd()
{
    m_reports.sessionWillEnd();
    save();
}

void AppDelegate::displayWasLost()
{
    if (!m_hasTerminated)
        save();
}

void AppDelegate::startedAgain(const QStringList &files)
{
    m_appController->raiseVisibleWindow();
    if (!files.isEmpty())
        m_appController->openFiles(files);
}

void AppDelegate::appendNewMenuItems()
{
    const MenuEntry entries[] = {{},
                                 {QT_TRANSLATE_NOOP("TarnwellPublic", "App Log"), [this] { showApplicationLog(); }},
                                 {QT_TRANSLATE_NOOP("TarnwellPublic", "Report Bug"), [this] { sendBugTypeEmail(); }},
                                 {QT_TRANSLATE_NOOP("TarnwellPublic", "Reset Profiles"), [this] { resetProfiles(); }}};
    MainMenu::append(*m_mainMenu.helpMenu(), entries);
}

void AppDelegate::setupLanuageMenu()
{
    QMenu *languages = m_mainMenu.helpMenu()->addMenu(AppLocalizedString(u"Language"_s));
    auto *choices = new QActionGroup(languages);
    const QString stored = m_surroundings.defaults.stringForKey(customizeLanguageKey.toString());
    for (int tag = 0; tag < int(supportedLanguages.size()); ++tag) {
        const QString code = supportedLanguages[size_t(tag)].toString();
        QAction *item = languages->addAction(tag == 0 ? AppLocalizedString(u"Default"_s)
                                                      : supportedLanguageNames[size_t(tag)].toString());
        item->setData(tag);
        item->setCheckable(true);
        item->setChecked(code == stored);
        choices->addAction(item);
        connect(item, &QAction::triggered, this, [this, tag] { onAppLanguageChanged(tag); });
    }
}

void AppDelegate::onAppLanguageChanged(int tag)
{
    const bool restarts = askOkOrCancel(AppLocalizedString(u"Are you sure you want to restart the application now?"_s),
                                        AppLocalizedString(u"Changes to the languages take effect upon relaunch."_s)) ==
                          tarnwell::AlertAnswer::Default;
    // Stored whatever the answer: the choice holds from the next start on.
    m_surroundings.defaults.setObject(supportedLanguages.at(size_t(tag)).toString(), customizeLanguageKey.toString());
    if (restarts && stopJobs(AppLocalizedString(u"Stop and Restart"_s)))
        restartApplication();
}

void AppDelegate::restartApplication()
{
    const foundation::Bundle &bundle = tarnwell::productBundle();
    const QString relauncher = bundle.contentsPath(u"Frameworks/appRelauncher"_s);
    if (!m_surroundings.startProcess(relauncher, {bundle.path(), QString::number(QCoreApplication::applicationPid())}))
        tarnwell::DNFootLog(u"The relaunch helper could not be started"_s);
    m_surroundings.terminate();
}

void AppDelegate::setupTipMenu()
{
    QAction *item = m_mainMenu.helpMenu()->addAction(showTipTitle());
    connect(item, &QAction::triggered, this, &AppDelegate::showApplicationTip);
}

void AppDelegate::showApplicationTip()
{
    const QList<QAction *> items = m_mainMenu.helpMenu()->actions();
    tipFlag = !items.isEmpty() && items.constLast()->text() == closeTipTitle();
    const QString present = tipFlag ? closeTipTitle() : showTipTitle();
    const auto found =
        std::find_if(items.begin(), items.end(), [&](const QAction *item) { return item->text() == present; });
    if (found != items.end())
        (*found)->setText(tipFlag ? showTipTitle() : closeTipTitle());
    tipFlag = !tipFlag;
    m_appController->showProperTip();
}

void AppDelegate::resetProfiles()
{
    if (askOkOrCancel(AppLocalizedString(u"Are you sure you want to reset profile?"_s), u""_s) ==
        tarnwell::AlertAnswer::Default)
        foundation::NotificationCenter::defaultCenter().postNotificationName(keyResetProfilesNotification.toString());
}

void AppDelegate::onPreferencesAction()
{
    m_appController->showSetting();
}

void AppDelegate::showHelp()
{
    tarnwell::OpenWebsitePath(tarnwell::AppHelpLink(), u"help"_s);
}

void AppDelegate::onQuitAction()
{
    if (QApplication::activeModalWidget() != m_window.get() && stopJobs(AppLocalizedString(u"Stop and Quit"_s)))
        m_surroundings.terminate();
}

/// Whether no job runs, after asking where one does: for all modules at once. Who answers nothing goes on. The recorder
/// is asked last, as its answer takes effect at once.
bool AppDelegate::stopJobs(const QString &stopTitle)
{
    const tarnwell::Alert question{
        .message = AppLocalizedString(u"Jobs are still running."_s),
        .defaultButton = AppLocalizedString(u"Keep Running"_s),
        .alternateButton = stopTitle,
        .informativeText = AppLocalizedString(u"What you stop now is offered to you again at the next start."_s),
        .style = tarnwell::AlertStyle::Warning,
        .answerToEscape = tarnwell::AlertAnswer::Default};
    if (m_surroundings.jobs.hasWork() && tarnwell::runAlert(question) != tarnwell::AlertAnswer::Alternate)
        return false;
    ModuleController *recorder = m_appController->recorderController();  // a recording may be set for later
    if (recorder && !recorder->shouldTerminate())
        return false;
    if (m_surroundings.jobs.hasWork())
        m_surroundings.jobs.interrupt();
    return true;
}

void AppDelegate::showModuleOfJobs(const QString &jobs)
{
    if (const ModuleRow *module = moduleRowOfJobs(jobs))
        m_appController->bringUpModule(module->kind);
}

QString AppDelegate::traceSuffix(const QString &tag) const
{
    return m_surroundings.setting.traceFlags2019(tag);
}

QString AppDelegate::phpRedirectLink(const QString &fui, const QString &jump) const
{
    return m_surroundings.setting.makePHPParams(fui, jump);
}

QString AppDelegate::titleOfSupportField() const
{
    return upConfigure() ? upConfigure()->dlSupportLinkTitleReg() : QString();
}

QString AppDelegate::URLOfSupportField() const
{
    return upConfigure() ? upConfigure()->dlSupportLinkURLReg() : QString();
}

QString AppDelegate::titleOf300PlusSupportField() const
{
    return upConfigure() ? upConfigure()->dl300PlusTitleReg() : QString();
}

QString AppDelegate::URLOf300PlusSupportField() const
{
    return upConfigure() ? upConfigure()->dl300PlusURLReg() : QString();
}

std::optional<tarnwell::AppWndTRButtonConfig> AppDelegate::topRightWndBtnConfig() const
{
    if (!upConfigure() || !upConfigure()->rmtConfig())
        return {};
    const AppRMConfig &configuration = *upConfigure()->rmtConfig();
    return configuration.topRightBtnConfig_full() ? configuration.topRightBtnConfig_full()
                                                  : configuration.topRightBtnConfig();
}

}  // namespace kestrel
