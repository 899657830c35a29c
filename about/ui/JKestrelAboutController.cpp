#include "JKestrelAboutController.h"

#include "about/CopyrightYear.h"
#include "tarnwell/JAppleScriptHelper.h"
#include "tarnwell/Localization.h"
#include "tarnwell/ProductInformation.h"
#include "tarnwell/WebPages.h"
#include "tarnwell/ui/Images.h"
#include "tarnwell/ui/TextStyles.h"
#include "tarnwell/ui/TranslateControls.h"
#include "ui_JKestrelAboutController.h"

using namespace Qt::StringLiterals;
using kestrel::tarnwell::AppLocalizedString;
using kestrel::tarnwell::filledIn;

namespace kestrel {

namespace {

constexpr int applicationIconSize = 96;

/// The company line's key is the whole sentence: this one has translations.
[[maybe_unused]] constexpr auto companyLine =
    QT_TRANSLATE_NOOP("TarnwellPublic", "About Our Company Tarnwell Software, Inc.");

}  // namespace

JKestrelAboutController &JKestrelAboutController::loadDefaultWindowController()
{
    return sharedController<JKestrelAboutController>();
}

JKestrelAboutController::JKestrelAboutController(std::function<QDate()> today)
    : m_today(std::move(today)),
      m_form(std::make_unique<Ui::JKestrelAboutController>())
{
}

JKestrelAboutController::~JKestrelAboutController() = default;

void JKestrelAboutController::windowDidLoad(QDialog *window)
{
    m_form->setupUi(window);
    setUpTextStyles();
    m_form->closeButton->setText(AppLocalizedString(m_form->closeButton->text()));
    m_form->sendButton->setText(AppLocalizedString(u"Send Feedback"_s));
    tarnwell::TranslateLabels(m_form->bottomBox);
    m_form->aboutOurCompanyLabel->setText(
        AppLocalizedString(filledIn(u"About Our Company %@"_s, {tarnwell::AppGroupName()})));
    setup();
    m_form->closeButton->setFocus();
    window->setWindowTitle(filledIn(AppLocalizedString(u"About %@"_s), {tarnwell::GetApplicationName()}));
    connect(m_form->homeBtn, &QPushButton::clicked, this, &JKestrelAboutController::onLinkButtonAction);
    connect(m_form->sendButton, &QPushButton::clicked, this, &JKestrelAboutController::onSendFeedbackAction);
    connect(m_form->closeButton, &QPushButton::clicked, this, &JKestrelAboutController::onCloseAction);
}

void JKestrelAboutController::setup()
{
    const QString name = tarnwell::GetApplicationName();
    m_form->appIcon->setPixmap(tarnwell::applicationIcon(applicationIconSize, m_form->appIcon->devicePixelRatioF()));
    m_form->appIcon->setAccessibleName(name);
    m_form->titleLabel->setText(name);
    m_form->versionLabel->setText(filledIn(AppLocalizedString(u"Version: %@"_s), {tarnwell::GetAppCurrentVersion()}));
    m_form->buildDateLabel->setText(filledIn(AppLocalizedString(u"Build on: %@"_s), {tarnwell::GetBuildDate()}));
    // Its layout has no gap: the button begins where the words before it end, and its padding parts the two.
    m_form->homeBtn->setText(tarnwell::AppReadableHomeLink());
    m_form->copyrightLabel->setText(
        filledIn(AppLocalizedString(u"Copyright © 2019-%@ Tarnwell Software, Inc. All rights reserved."_s),
                 {copyrightYear(m_today())}));
}

void JKestrelAboutController::setUpTextStyles()
{
    namespace colors = tarnwell::palette;
    tarnwell::setTextStyle(m_form->titleLabel, 18, QFont::Bold, colors::title);
    for (QLabel *label : {m_form->versionLabel, m_form->buildDateLabel})
        tarnwell::setTextStyle(label, 13, QFont::Normal, colors::text);
    tarnwell::setTextStyle(m_form->copyrightLabel, 12, QFont::Normal, colors::quietText);
    tarnwell::setTextStyle(m_form->aboutOurCompanyLabel, 13, QFont::Bold, colors::title);
    m_form->bottomBox->setBackgroundRole(QPalette::AlternateBase);
}

void JKestrelAboutController::onLinkButtonAction()
{
    tarnwell::OpenWebsitePath(tarnwell::AppAboutHomeLink(), u"about"_s);
}

void JKestrelAboutController::onSendFeedbackAction()
{
    tarnwell::JAppleScriptHelper::sendEmailWithMail(tarnwell::AppSupportEmail(), tarnwell::applicationNameAndVersion(),
                                                    {}, u""_s);
}

}  // namespace kestrel
