#include "foundation/Bundle.h"
#include "foundation/DefaultsFile.h"
#include "foundation/Queues.h"
#include "foundation/StandardFolders.h"
#include "foundation/TerminationSignals.h"
#include "helpers/logwatcher/ui/LogWindow.h"
#include "tarnwell/Installed.h"
#include "tarnwell/Localization.h"
#include "tarnwell/ProductInformation.h"
#include "tarnwell/ui/ApplicationSetUp.h"
#include "tarnwell/ui/Theme.h"

#include <QApplication>
#include <QFileInfo>
#include <QLocale>
#include <QSocketNotifier>
#include <QTranslator>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

/// The product that this program is a part of: Product.app/Contents/Resources/Viewer.app.
foundation::Bundle outerBundle()
{
    const QFileInfo resources(QFileInfo(foundation::Bundle::main().path()).path());
    return foundation::Bundle(QFileInfo(resources.path()).path());
}

/// What the product has settled on at its start. Only looked up: the file is the product's.
QString interfaceLanguage(const foundation::Bundle &product)
{
    foundation::DefaultsFile defaults(foundation::configurationDirectory() + u'/' + product.identifier() +
                                      u"/defaults.plist"_s);
    defaults.read();
    return defaults.values().value(u"AppleLanguages"_s).toStringList().value(0, u"en"_s);
}

/// Whoever started the viewer asks for it again with a line on its standard input.
void raiseOnRequest(QWidget &window)
{
    struct stat status = {};
    if (::fstat(STDIN_FILENO, &status) != 0 || !S_ISFIFO(status.st_mode))
        return;
    auto *requests = new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, &window);
    QObject::connect(requests, &QSocketNotifier::activated, &window, [requests, &window] {
        char request[64];
        if (::read(STDIN_FILENO, request, sizeof request) <= 0)
            return requests->setEnabled(false);
        window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
        window.raise();
        window.activateWindow();
    });
}

int showLog()
{
    LogWindow window(QCoreApplication::arguments().value(1));
    window.show();
    raiseOnRequest(window);
    foundation::queue::afterMain(std::chrono::milliseconds(250), tarnwell::setWindowIcon);
    return QApplication::exec();
}

int run(QApplication &application, const foundation::Bundle &product)
{
    const QString language = interfaceLanguage(product);
    QLocale::setDefault(QLocale(language));
    QTranslator dialogTexts;
    tarnwell::installDialogTexts(dialogTexts, language);
    tarnwell::Localization localization(product.resource(u"translations"_s), language);
    const tarnwell::Installed<tarnwell::Localization> installedLocalization(localization);
    tarnwell::applyTheme(application);

    const foundation::TerminationSignals signalsOfTheSystem;
    QObject::connect(&signalsOfTheSystem, &foundation::TerminationSignals::received, &application,
                     &QCoreApplication::quit);
    const int status = showLog();
    // A copy that the window's end gave up may still be looking for a text.
    foundation::queue::finishGlobal();
    return status;
}

}  // namespace

}  // namespace kestrel

int main(int argc, char **argv)
{
    using namespace kestrel;
    const foundation::Bundle product = outerBundle();
    const tarnwell::Installed<const foundation::Bundle> installedProduct(product);
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"KestrelLogWatcher"_s);
    QApplication::setDesktopFileName(product.identifier());
    return run(application, product);
}
