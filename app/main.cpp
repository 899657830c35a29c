#include "InterfaceLanguage.h"
#include "ProgramJobs.h"
#include "SingleInstance.h"
#include "about/ui/JKestrelAboutController.h"
#include "app/ui/AppDelegate.h"
#include "foundation/Bundle.h"
#include "foundation/Fetch.h"
#include "foundation/FileNames.h"
#include "foundation/LanguageTags.h"
#include "foundation/Queues.h"
#include "foundation/StandardFolders.h"
#include "foundation/TerminationSignals.h"
#include "foundation/UserDefaults.h"
#include "jobs/JobStore.h"
#include "jobs/OutputFile.h"
#include "modules/heron/ui/HeronController.h"
#include "modules/marlin/ui/MarlinController.h"
#include "modules/petrel/ui/PetrelController.h"
#include "modules/plover/ui/PloversController.h"
#include "settings/JKestrelSetting.h"
#include "settings/ui/JKestrelSettingController.h"
#include "tarnwell/Installed.h"
#include "tarnwell/Localization.h"
#include "tarnwell/Log.h"
#include "tarnwell/ProductInformation.h"
#include "tarnwell/ui/ApplicationSetUp.h"
#include "tarnwell/ui/DesktopAlertPresenter.h"
#include "tarnwell/ui/DesktopFolderPanel.h"
#include "tarnwell/ui/DesktopWebOpener.h"
#include "tarnwell/ui/Fonts.h"
#include "tarnwell/ui/Theme.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRandomGenerator>
#include <QSessionManager>
#include <QThread>
#include <QTranslator>

#include <unistd.h>
#include <csignal>
#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

/// Absolute paths of the files named on the command line; --help and --version end the process here.
QStringList filesOf(int argc, char **argv)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(u"A desktop hub for video work."_s);
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(u"files"_s, u"Media files to open in the converter."_s, u"[FILE…]"_s);
    parser.process(foundation::decodedArguments(argc, argv));
    QStringList files;
    for (const QString &argument : parser.positionalArguments())
        files.append(foundation::absoluteFileName(argument));
    return files;
}

/// Whether this process is the one to run; where it is not, `status` is its exit status. Needs no display.
bool isTheOne(SingleInstance &instance, int argc, char **argv, QStringList &files, int &status)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"Kestrel"_s);
    QCoreApplication::setApplicationVersion(tarnwell::GetAppCurrentVersion());
    files = filesOf(argc, argv);
    const SingleInstance::Role role = instance.claim(files);
    if (role == SingleInstance::Role::Unanswered)
        std::fputs("Kestrel is running already, but does not answer.\n", stderr);
    status = role == SingleInstance::Role::Second ? EXIT_SUCCESS : EXIT_FAILURE;
    return role == SingleInstance::Role::First;
}

/// Where this user's one instance is known: for the login session, else in the user's own folders, else for want of
/// both where everybody may write.
QStringList instanceFolders()
{
    const QString identifier = foundation::Bundle::main().identifier();
    const QString runtime = foundation::runtimeDirectory();
    return {runtime.isEmpty() ? QString() : runtime + u'/' + identifier,
            foundation::stateDirectory() + u'/' + identifier,
            QDir::tempPath() + u'/' + identifier + u'-' + QString::number(::getuid())};
}

/// Of a module that takes the services, or has no need of them.
template <class Controller>
ModuleFactory factoryOf()
{
    return [](const ModuleConfigure &configure, ModuleServices &services) {
        if constexpr (std::is_constructible_v<Controller, const ModuleConfigure &, ModuleServices &>)
            return std::make_unique<Controller>(configure, services);
        else
            return std::make_unique<Controller>(configure);
    };
}

void presentSettings(QWidget *overWindow)
{
    JKestrelSettingController::loadDefaultWindowController().presentForWindow(overWindow);
}

void storeEdits()
{
    JKestrelSettingController::loadDefaultWindowController().storeProxy();
}

void presentAbout(QWidget *overWindow)
{
    JKestrelAboutController::loadDefaultWindowController().presentForWindow(overWindow);
}

AppDelegate::Surroundings surroundings(foundation::UserDefaults &defaults, foundation::Fetcher &fetcher,
                                       ProgramJobs &jobs)
{
    return {
        .setting = JKestrelSetting::ShareInst(),
        .defaults = defaults,
        .jobs = jobs,
        .modules = {{ModuleSettingVideo, factoryOf<MarlinController>()},
                    {ModuleSettingDVD, factoryOf<HeronController>()},
                    {ModuleSettingDownload, factoryOf<PetrelController>()},
                    {ModuleSettingRecord, factoryOf<PloversController>()}},
        .windows = {.setting = presentSettings, .about = presentAbout, .storeEdits = storeEdits},
        // Not quit(): that asks every window first, and a module may refuse to close.
        .terminate = [] { QCoreApplication::exit(); },
        .startProcess = [](const QString &program,
                           const QStringList &arguments) { return QProcess::startDetached(program, arguments); },
        .updates = {.fetch = [&fetcher](const foundation::FetchRequest &request) { return fetcher.fetch(request); },
                    .today = QDate::currentDate,
                    .draw = [] { return QRandomGenerator::system()->generate(); }},
    };
}

/// Every way to end in order: the desktop's session, a signal, the last of the event loop.
void connectEndings(QApplication &application, AppDelegate &delegate,
                    const foundation::TerminationSignals &signalsOfTheSystem)
{
    QObject::connect(&signalsOfTheSystem, &foundation::TerminationSignals::received, &delegate,
                     [] { QCoreApplication::exit(); });
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &delegate, &AppDelegate::sessionWillEnd,
                     Qt::DirectConnection);
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &delegate, &AppDelegate::applicationWillTerminate);
}

/// Where the display goes, as at many a session's end, Qt calls exit() in the midst of the event loop. While this
/// stands, that saves first. One object a process.
class SavingAtExit {
public:
    explicit SavingAtExit(AppDelegate &delegate)
    {
        standing = &delegate;
        std::atexit([] {
            if (!standing || QThread::currentThread() != standing->thread())
                return;
            standing->displayWasLost();
            // Background threads are at work still: what they use must not be taken down.
            std::_Exit(EXIT_FAILURE);
        });
    }
    ~SavingAtExit() { standing = nullptr; }
    SavingAtExit(const SavingAtExit &) = delete;
    SavingAtExit &operator=(const SavingAtExit &) = delete;

private:
    static inline AppDelegate *standing = nullptr;
};

int run(QApplication &application, SingleInstance &instance, const QStringList &files,
        foundation::UserDefaults &defaults, tarnwell::FontReading &fonts)
{
    const QString language = defaults.stringArrayForKey(appleLanguagesKey.toString()).value(0);
    QLocale::setDefault(QLocale(language));
    QTranslator dialogTexts;
    tarnwell::installDialogTexts(dialogTexts, language);
    tarnwell::Localization localization(foundation::Bundle::main().resource(u"translations"_s), language);
    const tarnwell::Installed<tarnwell::Localization> installedLocalization(localization);
    tarnwell::DesktopWebOpener webOpener;
    const tarnwell::Installed<tarnwell::WebOpener> installedWebOpener(webOpener);
    tarnwell::DesktopAlertPresenter alerts;
    const tarnwell::Installed<tarnwell::AlertPresenter> installedAlerts(alerts);
    tarnwell::DesktopFolderPanel folderPanel;
    const tarnwell::Installed<tarnwell::FolderPanel> installedFolderPanel(folderPanel);
    fonts.finish();
    tarnwell::applyTheme(application);

    foundation::Fetcher fetcher(foundation::Bundle::main().contentsPath(u"Frameworks/WebTransfer"_s));
    std::signal(SIGXFSZ, SIG_IGN);  // a file that grows too large is a failure to be told
    ProgramJobs jobs([] { return openJobStore(jobStorePath()); },
                     [](const QString &) { return wishesOf(JKestrelSetting::ShareInst()); });
    AppDelegate delegate(surroundings(defaults, fetcher, jobs));
    const tarnwell::Installed<tarnwell::WebLinkDelegate> installedLinks(delegate);
    const foundation::TerminationSignals signalsOfTheSystem;
    connectEndings(application, delegate, signalsOfTheSystem);
    QObject::connect(&instance, &SingleInstance::startedAgain, &delegate, &AppDelegate::startedAgain);

    delegate.applicationWillFinishLaunching();
    delegate.applicationDidFinishLaunching();
    // Made before: what is made later is gone by then.
    JKestrelSettingController::loadDefaultWindowController();
    const SavingAtExit savingAtExit(delegate);
    if (!files.isEmpty())
        delegate.appController()->openFiles(files);
    instance.listen();
    foundation::queue::afterMain(std::chrono::milliseconds(250), tarnwell::setWindowIcon);
    foundation::queue::afterMain(std::chrono::seconds(3),
                                 [] { foundation::queue::asyncGlobal(OutputFile::sweepDeadOwners); });
    const int status = QApplication::exec();
    fetcher.abandon();
    foundation::queue::finishGlobal();
    return status;
}

}  // namespace

}  // namespace kestrel

int main(int argc, char **argv)
{
    using namespace kestrel;
    SingleInstance instance(instanceFolders());
    QStringList files;
    int status = EXIT_SUCCESS;
    if (!isTheOne(instance, argc, argv, files, status))
        return status;

    tarnwell::FontReading fonts;
    tarnwell::Log log(foundation::stateDirectory() + u'/' + tarnwell::GetApplicationName());
    const tarnwell::Installed<tarnwell::Log> installedLog(log);
    const tarnwell::QtMessageLog messageLog;
    foundation::UserDefaults &defaults = foundation::UserDefaults::standardUserDefaults();
    settleInterfaceLanguage(defaults, foundation::systemPreferredLanguages());

    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationName(u"Kestrel"_s);
    QApplication::setApplicationVersion(tarnwell::GetAppCurrentVersion());
    QApplication::setDesktopFileName(foundation::Bundle::main().identifier());
    return run(application, instance, files, defaults, fonts);
}
