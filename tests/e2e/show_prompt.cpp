// kestrel_show_prompt BUNDLE LANGUAGE: shows the prompt of a bundle in one language, until it is closed.

#include "foundation/Bundle.h"
#include "foundation/UserDefaults.h"
#include "remote/ui/JPromptWindowController.h"
#include "tarnwell/Installed.h"
#include "tarnwell/Localization.h"
#include "tarnwell/ui/DesktopWebOpener.h"
#include "tarnwell/ui/Theme.h"
#include "tarnwell/ui/TitledWindow.h"

#include <QApplication>
#include <QTemporaryDir>

#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    using namespace kestrel;
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    const foundation::Bundle bundle(arguments.value(1));
    const QString language = arguments.value(2);
    const tarnwell::Installed<const foundation::Bundle> installedBundle(bundle);
    tarnwell::Localization localization(bundle.resource(u"translations"_s), language);
    const tarnwell::Installed<tarnwell::Localization> installedLocalization(localization);
    tarnwell::DesktopWebOpener webOpener;
    const tarnwell::Installed<tarnwell::WebOpener> installedWebOpener(webOpener);
    tarnwell::applyTheme(application);

    const QTemporaryDir folder;
    const foundation::UserDefaults defaults(folder.filePath(u"defaults.plist"_s),
                                            {{u"AppleLanguages"_s, QStringList{language}}});
    const auto prompt = JPromptWindowController::GetCurrentLanSpecial(defaults);
    if (!prompt) {
        std::fputs("There is no prompt in this language.\n", stderr);
        return EXIT_FAILURE;
    }
    JPromptWindowController controller;
    controller.setMyPrompt(prompt);
    controller.showPrompt();
    return EXIT_SUCCESS;
}
