#include "JPromptWindowController.h"

#include "foundation/Bundle.h"
#include "foundation/RegularFile.h"
#include "foundation/UserDefaults.h"
#include "support/XMLReader2.h"
#include "tarnwell/HoverText.h"
#include "tarnwell/Log.h"
#include "tarnwell/WebPages.h"
#include "tarnwell/ui/Images.h"
#include "tarnwell/ui/TextStyles.h"
#include "tarnwell/ui/TitledWindow.h"
#include "tarnwell/ui/TranslateControls.h"
#include "ui_JPromptWindowController.h"

#include <QFile>
#include <QScreen>
#include <QStringDecoder>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr qint64 maximumPromptBytes = 1024 * 1024;
constexpr int promptWidth = 500;
constexpr int maximumTextHeight = 440;
constexpr int maximumLinkWidth = 340;
constexpr int promptIconSize = 64;

/// The whole file, which is meant to be small; null where it cannot be read or is no UTF-8.
QString promptFileText(const QString &path)
{
    const int descriptor = foundation::openRegularFile(path);
    QFile file;
    if (descriptor < 0 || !file.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle)) {
        tarnwell::DNFootLog(u"The prompt file %1 cannot be read"_s, path);
        return {};
    }
    const QByteArray bytes = file.read(maximumPromptBytes + 1);
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    const QString text = decoder(bytes);
    if (bytes.size() <= maximumPromptBytes && !decoder.hasError())
        return text;
    tarnwell::DNFootLog(u"The prompt file %1 is too large or no UTF-8"_s, path);
    return {};
}

std::optional<XMLDictionary> childOf(const XMLDictionary &parent, const QString &name)
{
    const XMLValue value = parent.objectForKey(name);
    const auto *child = std::get_if<XMLDictionary>(&value);
    return child ? std::optional(*child) : std::nullopt;
}

void showText(QLabel *label, const QString &text)
{
    label->setText(text);
    label->setVisible(!text.isEmpty());
}

/// As much of it as the button has room for; an ampersand is one.
void showTitle(QPushButton *button, const QString &title)
{
    button->ensurePolished();
    const QString shown = button->fontMetrics().elidedText(title, Qt::ElideRight, maximumLinkWidth);
    button->setText(QString(shown).replace(u'&', "&&"_L1));
    button->setAccessibleName(title);
    button->setToolTip(shown == title ? QString() : tarnwell::hoverTextShowing(title));
    button->setVisible(!title.isEmpty());
}

}  // namespace

JPromptWindowController::JPromptWindowController() = default;

JPromptWindowController::~JPromptWindowController() = default;

std::optional<XMLDictionary> JPromptWindowController::GetCurrentLanSpecial(const foundation::UserDefaults &defaults,
                                                                           const foundation::Bundle &bundle)
{
    const QString language = defaults.stringArrayForKey(u"AppleLanguages"_s).value(0);
    const auto document = XMLReader2::dictionaryForXMLString(promptFileText(bundle.resource(u"prompt-mlde.xml"_s)));
    const auto prompts = document ? childOf(*document, u"promptsale"_s) : std::nullopt;
    return prompts ? childOf(*prompts, language) : std::nullopt;
}

tarnwell::TitledWindow *JPromptWindowController::window()
{
    if (!m_window) {
        m_window = std::make_unique<tarnwell::TitledWindow>();
        windowDidLoad();
    }
    return m_window.get();
}

void JPromptWindowController::showPrompt()
{
    window()->center();
    using Keyboard = tarnwell::ModalSession::Keyboard;
    m_session.run(
        *window(), [this] { onCancelAciton(); }, Keyboard::Take);
}

void JPromptWindowController::windowDidLoad()
{
    using Button = tarnwell::TitledWindow::WindowButton;
    m_window->setWindowTitle(tarnwell::GetApplicationName());
    m_window->setButtonVisible(Button::Minimize, false);
    m_window->setButtonVisible(Button::Zoom, false);
    m_form = std::make_unique<Ui::JPromptWindowController>();
    m_form->setupUi(m_window->contentView());
    tarnwell::TranslateControls(m_window->contentView());
    m_form->headerView->setBackgroundRole(QPalette::AlternateBase);
    m_form->headerLine->setBackgroundRole(QPalette::Mid);
    tarnwell::setTextStyle(m_form->headerLabel, 18, QFont::Bold, tarnwell::palette::title);
    tarnwell::setTextStyle(m_form->headerDetailLabel, 13, QFont::Normal, tarnwell::palette::quietText);
    tarnwell::setTextStyle(m_form->introTitleLabel, 15, QFont::Bold, tarnwell::palette::title);
    m_form->appIconImageView->setPixmap(tarnwell::applicationIcon(promptIconSize, m_window->devicePixelRatioF()));
    setTexts();
    fitHeight();
    connect(m_form->headerButton, &QPushButton::clicked, this, &JPromptWindowController::onHeaderAciton);
    connect(m_form->learnMoreButton, &QPushButton::clicked, this, &JPromptWindowController::onLearnMoreAciton);
    connect(m_form->cancelButton, &QPushButton::clicked, this, &JPromptWindowController::onCancelAciton);
}

void JPromptWindowController::setTexts()
{
    showText(m_form->headerLabel, promptText(u"headerTitle"_s));
    showText(m_form->headerDetailLabel, promptText(u"headerSubTitle"_s));
    showTitle(m_form->headerButton, promptText(u"headerLinkTitle"_s));
    showText(m_form->introTitleLabel, promptText(u"bodyTitle"_s));
    showText(m_form->introDetailLabel, promptText(u"bodyDetail"_s).replace(uR"(\n)"_s, u"\n"_s));
    m_headerLink = promptText(u"headerLink"_s);
    m_learnMoreLink = promptText(u"learnMoreLink"_s);
}

void JPromptWindowController::fitHeight()
{
    // Left to itself, a layout hears of the texts only when the window is shown.
    for (const QWidget *view : {m_form->headerView, m_form->textsView})
        view->layout()->activate();
    const int textHeight = m_form->textsView->heightForWidth(promptWidth);
    const int others = m_form->buttonsView->sizeHint().height() + int(tarnwell::TitledWindow::defaultTitleBarHeight);
    const int most = std::min(maximumTextHeight, m_window->screen()->availableGeometry().height() - others);
    // A stop of the keyboard only where its arrows have something to move.
    m_form->textsArea->setFocusPolicy(textHeight > most ? Qt::TabFocus : Qt::NoFocus);
    m_window->setFrame({0, 0, promptWidth, double(std::min(textHeight, most) + others)});
}

QString JPromptWindowController::promptText(const QString &element) const
{
    const auto dictionary = m_myPrompt ? childOf(*m_myPrompt, element) : std::nullopt;
    const XMLValue value = dictionary ? dictionary->objectForKey(u"text"_s) : XMLValue();
    const auto *text = std::get_if<QString>(&value);
    return text ? *text : QString();
}

void JPromptWindowController::onHeaderAciton()
{
    tarnwell::OpenWebsitePath(m_headerLink, u"adui"_s);
}

void JPromptWindowController::onLearnMoreAciton()
{
    tarnwell::OpenWebsitePath(m_learnMoreLink, u"adui"_s);
    m_session.stop();
}

void JPromptWindowController::onCancelAciton()
{
    m_session.stop();
}

}  // namespace kestrel
