#pragma once

#include "support/XMLDictionary.h"
#include "tarnwell/ProductInformation.h"
#include "tarnwell/ui/ModalSession.h"

#include <QObject>

#include <memory>
#include <optional>

namespace Ui {
class JPromptWindowController;
}

namespace kestrel {

namespace foundation {
class UserDefaults;
}

/// A small modal window with one sales prompt in the user's language: a header with a link, a body, "Learn More" and
/// "Cancel". Texts and links come from the bundle's prompt file, one set a language, and are shown as they stand; a
/// missing one is empty. The window grows with its texts and scrolls from a certain height on. Nothing is remembered
/// between showings. Main thread only.
class JPromptWindowController final : public QObject {
    Q_OBJECT
public:
    JPromptWindowController();
    ~JPromptWindowController() override;

    /// The prompt for the first of the user's preferred languages ("AppleLanguages") from the bundle's
    /// "prompt-mlde.xml". Nothing where the file cannot be used, which is logged, or has none for just that language.
    static std::optional<XMLDictionary> GetCurrentLanSpecial(
        const foundation::UserDefaults &defaults, const foundation::Bundle &bundle = tarnwell::productBundle());

    /// The prompt to show; to be set before the window is made.
    const std::optional<XMLDictionary> &myPrompt() const { return m_myPrompt; }
    void setMyPrompt(const std::optional<XMLDictionary> &prompt) { m_myPrompt = prompt; }

    tarnwell::TitledWindow *window();  ///< made on first use
    /// Shows the window in the middle of the screen and returns when it was closed by "Learn More", "Cancel" or Escape.
    void showPrompt();

    QString headerLink() const { return m_headerLink; }
    QString learnMoreLink() const { return m_learnMoreLink; }

    void onHeaderAciton();     ///< opens the header's link; the window stays
    void onLearnMoreAciton();  ///< opens the other link and closes the window
    void onCancelAciton();

private:
    void windowDidLoad();
    void setTexts();
    void fitHeight();
    QString promptText(const QString &element) const;

    std::unique_ptr<tarnwell::TitledWindow> m_window;
    std::unique_ptr<Ui::JPromptWindowController> m_form;
    tarnwell::ModalSession m_session;
    std::optional<XMLDictionary> m_myPrompt;
    QString m_headerLink;
    QString m_learnMoreLink;
};

}  // namespace kestrel
