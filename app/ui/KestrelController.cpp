#include "KestrelController.h"

#include "_JKestrelWindow.h"
#include "app/HomeTexts.h"
#include "app/RecorderAccess.h"
#include "foundation/Bundle.h"
#include "foundation/ui/Color.h"
#include "tarnwell/Alerts.h"
#include "tarnwell/Localization.h"
#include "tarnwell/ProductInformation.h"
#include "tarnwell/ui/Frames.h"
#include "tarnwell/ui/Images.h"
#include "tarnwell/ui/TranslateControls.h"
#include "ui_KestrelController.h"

#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QShortcut>
#include <QWindow>

#include <algorithm>

using namespace Qt::StringLiterals;
using kestrel::tarnwell::AppLocalizedString;
using kestrel::tarnwell::operator""_key;

namespace kestrel {

namespace {

constexpr auto homeRestingDescription =
    "The strongest video processing software to convert videos, audios and DVDs; edit, transcode, compress and adjust "
    "video files; download online media content; record screen and webcam."_key;

const QString hoveredCaptionColor = u"0074CC"_s;
const QString restingCaptionColor = u"343641"_s;
const QString smallButtonTitleColor = u"434652"_s;

void setTextColor(QWidget *widget, const QString &hex)
{
    QPalette palette = widget->palette();
    const QColor color = foundation::ColorWithHexString(hex);
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::WindowText, color);
        palette.setColor(group, QPalette::ButtonText, color);
    }
    widget->setPalette(palette);
}

/// A white disc with a margin, the ground of a module button.
QPixmap discImage(qreal scale)
{
    constexpr int size = 128;
    QPixmap disc(QSize(size, size) * scale);
    disc.setDevicePixelRatio(scale);
    disc.fill(Qt::transparent);
    QPainter painter(&disc);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::white);
    painter.drawEllipse(QRectF(0, 0, size, size).adjusted(3, 3, -3, -3));
    return disc;
}

}  // namespace

KestrelController::KestrelController(QObject *parent) : QObject(parent) {}

KestrelController::~KestrelController()
{
    // A window that goes is left by the pointer, which is not to be heard any more.
    for (const ModuleButton &module : m_modules) {
        if (module.button)
            module.button->setTarget(nullptr);
    }
}

void KestrelController::makeInit()
{
    m_window = std::make_unique<_JKestrelWindow>();
    m_window->makeInit();
    m_ui = std::make_unique<Ui::KestrelController>();
    m_ui->setupUi(m_window->contentView());
    const QSize content = m_window->contentView()->maximumSize();
    const double titleBarHeight = _JKestrelWindow::titleBarHeightFor(tarnwell::GetSystemVersion2());
    m_window->setFrame({0, 0, double(content.width()), content.height() + titleBarHeight});
    findModuleButtons();
    windowDidLoad();
}

void KestrelController::findModuleButtons()
{
    const QWidget *content = m_window->contentView();
    for (const ModuleRow &row : moduleRows()) {
        auto *button = content->findChild<JFeedbackButton *>(row.homeControls.toString() + "Button"_L1);
        m_modules.push_back({&row, button, content->findChild<QLabel *>(row.homeControls.toString() + "Label"_L1)});
        button->setIcon(tarnwell::namedIcon(row.homeImage.toString()));
        button->setTarget(this);
        connect(button, &QAbstractButton::clicked, this, [this, kind = row.kind] { onModuleButtonAction(kind); });
    }
}

void KestrelController::showWindow()
{
    m_window->makeKeyAndOrderFront();
    // The picture is made of the renderings for one scale.
    connect(m_window->windowHandle(), &QWindow::screenChanged, this, &KestrelController::paintDiscsIntoBackground,
            Qt::UniqueConnection);
}

void KestrelController::setSettingAndAboutEnabled(bool setting, bool about)
{
    m_ui->settingButton->setEnabled(setting);
    m_ui->aboutButton->setEnabled(about);
}

void KestrelController::windowDidLoad()
{
    using Action = void (KestrelController::*)();
    const struct {
        QAbstractButton *button;
        const char16_t *image;
        Action action;
    } buttons[] = {{m_ui->settingButton, u"kestrel_setting", &KestrelController::onSettingAction},
                   {m_ui->aboutButton, u"kestrel_about", &KestrelController::onAboutAction}};
    for (const auto &[button, image, action] : buttons) {
        button->setIcon(tarnwell::namedIcon(QString::fromUtf16(image)));
        connect(button, &QAbstractButton::clicked, this, action);
    }
    for (QAbstractButton *button : {m_ui->settingButton, m_ui->aboutButton}) {
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter})
            new QShortcut(key, button, button, &QAbstractButton::click, Qt::WidgetShortcut);
    }

    const struct {
        QWidget *view;
        int points;
        QFont::Weight weight;
    } fonts[] = {{m_ui->introduceMain, 18, QFont::Bold},
                 {m_ui->introduceSub, 13, QFont::Normal},
                 {m_ui->homeLabel, 10, QFont::Normal}};
    for (const auto &[view, points, weight] : fonts) {
        QFont font = view->font();
        font.setPixelSize(points);
        font.setWeight(weight);
        view->setFont(font);
    }

    m_window->setButtonVisible(tarnwell::TitledWindow::WindowButton::Zoom, false);
    onButtonMouseExit(nullptr);
    makeBackgroundLayers();
    for (const ModuleButton &module : m_modules) {
        module.label->setText(AppLocalizedString(module.label->text()));
        module.button->setAccessibleName(module.label->text());
        setCaptionColor(module, restingCaptionColor);
    }
    for (QAbstractButton *button : {m_ui->settingButton, m_ui->aboutButton}) {
        button->setText(AppLocalizedString(button->text()));
        button->setAccessibleName(button->text());
        setTextColor(button, smallButtonTitleColor);
    }
    m_ui->homeLabel->setText(u"Tarnwell Software, Inc. %1"_s.arg(tarnwell::AppReadableHomeLink()));
    paintDiscsIntoBackground();
    for (const auto &[button, origin] :
         {std::pair<QWidget *, foundation::Point>{m_ui->aboutButton, {574, 4}}, {m_ui->settingButton, {664, 4}}}) {
        foundation::Rect frame = tarnwell::viewFrame(button);
        frame.origin = origin;
        tarnwell::setViewFrame(button, frame);
    }
}

void KestrelController::makeBackgroundLayers()
{
    for (ModuleButton &module : m_modules) {
        auto *layer = new tarnwell::ImageLayer(u"kestrel_button_animation"_s, m_window->contentView());
        layer->setFrame(tarnwell::viewFrame(module.button).inset(1, 1));
        layer->stackUnder(m_modules.front().button);
        module.backgroundLayer = layer;
    }
    // Beneath the layers there is only the picture, which the platform would draw as the view's own background.
    m_ui->backgroundImage->lower();
}

void KestrelController::paintDiscsIntoBackground()
{
    const qreal scale = m_window->devicePixelRatioF();
    const QPixmap picture = tarnwell::namedImage(u"kestrel_bg"_s, scale);
    if (picture.isNull())
        return;
    const QPixmap disc = discImage(picture.devicePixelRatio());
    QList<QRect> places;
    for (const ModuleButton &module : m_modules)
        places.append(module.button->geometry());
    // Scaled once; all places are of one size.
    QPixmap fitted = disc.scaled(places.constFirst().size() * disc.devicePixelRatio(), Qt::IgnoreAspectRatio,
                                 Qt::SmoothTransformation);
    fitted.setDevicePixelRatio(picture.devicePixelRatio());
    m_ui->backgroundImage->setPicture(picture, fitted, places);
}

void KestrelController::showTexts(const QString &headline, const QString &description)
{
    m_ui->introduceMain->setStringValue(headline);
    m_ui->introduceSub->setText(description);
}

void KestrelController::setCaptionColor(const ModuleButton &module, const QString &hex)
{
    setTextColor(module.label, hex);
}

const KestrelController::ModuleButton *KestrelController::moduleOf(const JFeedbackButton *button) const
{
    const auto found = std::find_if(m_modules.begin(), m_modules.end(),
                                    [button](const ModuleButton &module) { return button && module.button == button; });
    return found == m_modules.end() ? nullptr : &*found;
}

void KestrelController::onButtonMouseEntered(JFeedbackButton *sender)
{
    const ModuleButton *module = moduleOf(sender);
    if (!module)
        return;
    showTexts(module->row->headline.localized(), module->row->description.localized());
    setCaptionColor(*module, hoveredCaptionColor);
    makeZoomInAnimation(module->backgroundLayer, module->button);
}

void KestrelController::onButtonMouseExit(JFeedbackButton *sender)
{
    showTexts(homeRestingHeadline.toString(), homeRestingDescription.localized());
    const ModuleButton *module = moduleOf(sender);
    if (!module)
        return;
    makeZoomOutAnimation(module->backgroundLayer, module->button);
    setCaptionColor(*module, restingCaptionColor);
    // What the pointer has left shows again what the keyboard is at.
    for (const ModuleButton &other : m_modules) {
        if (other.button->hasFocus())
            onButtonMouseEntered(other.button);
    }
}

void KestrelController::makeZoomInAnimation(tarnwell::ImageLayer *layer, const QWidget *related)
{
    layer->setFrame(tarnwell::viewFrame(related).inset(-15, -15));
}

void KestrelController::makeZoomOutAnimation(tarnwell::ImageLayer *layer, const QWidget *related)
{
    constexpr double restingSize = 96;
    const foundation::Rect frame = tarnwell::viewFrame(related);
    layer->setFrame(frame.inset((frame.size.width - restingSize) / 2, (frame.size.height - restingSize) / 2));
}

void KestrelController::onModuleButtonAction(ModuleSettingKind kind)
{
    using Action = void (KestrelController::*)();
    constexpr Action actions[] = {&KestrelController::onConvertButtonAction, &KestrelController::onRipButtonAction,
                                  &KestrelController::onDownloadButtonAction, &KestrelController::onRecordButtonAction};
    if (size_t(kind) < std::size(actions))
        (this->*actions[kind])();
    else
        m_menuDelegate->onShowModule(kind);
}

void KestrelController::onConvertButtonAction()
{
    m_menuDelegate->onShowMarlin();
}

void KestrelController::onRipButtonAction()
{
    m_menuDelegate->onShowHeron();
}

void KestrelController::onDownloadButtonAction()
{
    m_menuDelegate->onShowPetrel();
}

void KestrelController::onRecordButtonAction()
{
    switch (recorderGate(tarnwell::GetSystemVersion2())) {
        case RecorderGate::Unavailable:
            tarnwell::runAlert(
                {AppLocalizedString(u"Screen Record Unavailable!"_s),
                 AppLocalizedString(u"OK"_s),
                 {},
                 AppLocalizedString(u"The screen recorder is only supported on Mac OS Lion and later."_s),
                 tarnwell::AlertStyle::Critical});
            return;
        case RecorderGate::Open:
            m_menuDelegate->onShowRecorder();
            return;
        case RecorderGate::AskForPermission:
            break;
    }
    const QString library = tarnwell::productBundle().contentsPath(u"Frameworks/libCapturePermission.dylib"_s);
    const QPointer<KestrelController> self(this);
    const CapturePermissionAnswer answer = requestCapturePermission(library, [self] {
        if (self)
            self->m_menuDelegate->onShowRecorder();
    });
    using Outcome = CapturePermissionAnswer::Outcome;
    const bool opens = answer.outcome == Outcome::Open ||
                       (answer.outcome == Outcome::Failed &&
                        tarnwell::runAlert({answer.error,
                                            AppLocalizedString(u"Continue"_s),
                                            AppLocalizedString(u"Cancel"_s),
                                            {},
                                            tarnwell::AlertStyle::Warning}) == tarnwell::AlertAnswer::Default);
    if (opens)
        m_menuDelegate->onShowRecorder();
}

void KestrelController::onSettingAction()
{
    m_menuDelegate->onShowSetting();
}

void KestrelController::onAboutAction()
{
    m_menuDelegate->onShowAbout();
}

}  // namespace kestrel
