#include "AppDelegate.h"
#include "Bundle.h"
#include "DesktopAlertPresenter.h"
#include "DesktopFolderPanel.h"
#include "DesktopWebOpener.h"
#include "HeronController.h"
#include "Installed.h"
#include "InterfaceLanguage.h"
#include "JKestrelSetting.h"
#include "JKestrelSettingController.h"
#include "LanguageTags.h"
#include "Localization.h"
#include "Log.h"
#include "MarlinController.h"
#include "PetrelController.h"
#include "PloversController.h"
#include "ProductInformation.h"
#include "SingleInstance.h"
#include "SystemInformation.h"
#include "TerminationSignals.h"
#include "Theme.h"
#include "UserDefaults.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QProcess>
#include <QSessionManager>
#include <QStandardPaths>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace kestrel;

namespace {

template <class Controller>
ModuleFactory factoryOf()
{
    return [](const ModuleConfigure &configure) { return std::make_unique<Controller>(configure); };
}

QStringList filesOf(const QApplication &application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(u"A desktop hub for video work."_s);
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(u"files"_s, u"Media files to open in the converter."_s, u"[FILE…]"_s);
    parser.process(application);
    QStringList files;
    for (const QString &argument : parser.positionalArguments())
        files.append(QFileInfo(argument).absoluteFilePath());
    return files;
}

QString instanceFolder(const QString &identifier)
{
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + u'/' + identifier;
}

void presentSettings(QWidget *overWindow)
{
    JKestrelSettingController::loadDefaultWindowController().presentForWindow(overWindow);
}

int run(QApplication &application, foundation::UserDefaults &defaults)
{
    const QStringList files = filesOf(application);
    SingleInstance instance(instanceFolder(foundation::Bundle::main().identifier()));
    switch (instance.claim(files)) {
    case SingleInstance::Role::First:
        break;
    case SingleInstance::Role::Second:
        return EXIT_SUCCESS;
    case SingleInstance::Role::Unanswered:
        std::fputs("Kestrel is running already, but does not answer.\n", stderr);
        return EXIT_FAILURE;
    }

    tarnwell::Log log(tarnwell::stateDirectory() + u'/' + tarnwell::GetApplicationName());
    const tarnwell::Installed<tarnwell::Log> installedLog(log);
    tarnwell::logQtMessages();
    tarnwell::Localization localization(foundation::Bundle::main().resource(u"translations"_s),
                                        defaults.stringArrayForKey(appleLanguagesKey.toString()).value(0));
    const tarnwell::Installed<tarnwell::Localization> installedLocalization(localization);
    tarnwell::DesktopWebOpener webOpener;
    const tarnwell::Installed<tarnwell::WebOpener> installedWebOpener(webOpener);
    tarnwell::DesktopAlertPresenter alerts;
    const tarnwell::Installed<tarnwell::AlertPresenter> installedAlerts(alerts);
    tarnwell::DesktopFolderPanel folderPanel;
    const tarnwell::Installed<tarnwell::FolderPanel> installedFolderPanel(folderPanel);
    tarnwell::applyTheme(application);

    AppDelegate delegate({
        .setting = JKestrelSetting::ShareInst(),
        .defaults = defaults,
        .modules = {factoryOf<MarlinController>(), factoryOf<HeronController>(), factoryOf<PetrelController>(),
                    factoryOf<PloversController>()},
        .windows = {.setting = presentSettings},
        // Not quit(): that asks every window first, and a module may refuse to close.
        .terminate = [] { QCoreApplication::exit(); },
        .startProcess = [](const QString &program,
                           const QStringList &arguments) { return QProcess::startDetached(program, arguments); },
    });
    const tarnwell::Installed<tarnwell::WebLinkDelegate> installedLinks(delegate);

    const TerminationSignals signals_;
    QObject::connect(&signals_, &TerminationSignals::received, &delegate, [] { QCoreApplication::exit(); });
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &delegate, &AppDelegate::applicationWillTerminate,
                     Qt::DirectConnection);
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &delegate, &AppDelegate::applicationWillTerminate);
    QObject::connect(&instance, &SingleInstance::startedAgain, &delegate, [&delegate](const QStringList &newFiles) {
        delegate.appController()->raiseVisibleWindow();
        if (!newFiles.isEmpty())
            delegate.appController()->openFiles(newFiles);
    });

    delegate.applicationWillFinishLaunching();
    delegate.applicationDidFinishLaunching();
    if (!files.isEmpty())
        delegate.appController()->openFiles(files);
    return QApplication::exec();
}

}  // namespace

int main(int argc, char **argv)
{
    foundation::UserDefaults &defaults = foundation::UserDefaults::standardUserDefaults();
    settleInterfaceLanguage(defaults, foundation::systemPreferredLanguages());

    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationName(u"kestrel"_s);
    QApplication::setApplicationVersion(tarnwell::GetAppCurrentVersion());
    QApplication::setDesktopFileName(foundation::Bundle::main().identifier());
    const int status = run(application, defaults);
    defaults.synchronize();
    return status;
}
