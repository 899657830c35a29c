#include "JAdvertisementWinController.h"

#include "foundation/ui/OutsidePicture.h"
#include "remote/Promotion.h"
#include "tarnwell/HoverText.h"
#include "tarnwell/ProductInformation.h"
#include "tarnwell/WebPages.h"
#include "tarnwell/ui/Frames.h"
#include "tarnwell/ui/Images.h"
#include "tarnwell/ui/LabelText.h"
#include "tarnwell/ui/TextStyles.h"
#include "tarnwell/ui/TitledWindow.h"
#include "ui_JAdvertisementWinController.h"

#include <QGuiApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr QSize advertisementSize(640, 480);
constexpr int pictureIconSize = 128;
constexpr qsizetype longestHeadline = 160;
constexpr qsizetype longestButtonTitle = 1000;

constexpr double leftButtonX = 55;
constexpr double leftButtonY = 20;
constexpr double rightButtonInset = 55;  ///< of the title from the right; the button is a little wider than that
constexpr double rightButtonWidening = 10;
constexpr double buttonGap = 16;

/// The width that the title takes, or `widest` with a title that is cut down to it; an ampersand is one.
double fitButton(QPushButton *button, const QString &remoteTitle, double widest)
{
    const QString title = tarnwell::labelText(remoteTitle, longestButtonTitle).remove(QChar(0x200B));
    const auto show = [button](QString shown) { button->setText(shown.replace(u'&', "&&"_L1)); };
    button->ensurePolished();
    button->setAccessibleName(title);
    show(title);
    const int wanted = button->sizeHint().width();
    if (wanted <= widest)
        return wanted;
    const QFontMetrics metrics = button->fontMetrics();
    const int room = int(widest) - (wanted - metrics.horizontalAdvance(title));
    show(metrics.elidedText(title, Qt::ElideRight, room));
    button->setToolTip(tarnwell::hoverTextShowing(title));
    return widest;
}

QImage shownPicture(const QImage &picture)
{
    return picture.isNull() ? tarnwell::applicationIcon(pictureIconSize, qGuiApp->devicePixelRatio()).toImage()
                            : picture;
}

}  // namespace

QImage JAdvertisementWinController::imageFromData(const QByteArray &data)
{
    return shownPicture(foundation::pictureFromOutside(data));
}

void JAdvertisementWinController::ShowAdvertisement(const std::optional<ADItem> &item, const QByteArray &data,
                                                    foundation::UserDefaults &defaults)
{
    ShowAdvertisementWithImage(item, foundation::pictureFromOutside(data), defaults);
}

void JAdvertisementWinController::ShowAdvertisementWithImage(const std::optional<ADItem> &item, const QImage &picture,
                                                             foundation::UserDefaults &defaults)
{
    if (!item || !takeUpPromotion(*item, defaults))
        return;
    JAdvertisementWinController controller(defaults);
    controller.setMyImage(shownPicture(picture));
    controller.setMyItem(item);
    controller.showPrompt();
}

JAdvertisementWinController::JAdvertisementWinController(foundation::UserDefaults &defaults) : m_defaults(defaults) {}

JAdvertisementWinController::~JAdvertisementWinController() = default;

tarnwell::TitledWindow *JAdvertisementWinController::window()
{
    if (!m_window) {
        m_window = std::make_unique<tarnwell::TitledWindow>();
        windowDidLoad();
    }
    return m_window.get();
}

void JAdvertisementWinController::showPrompt()
{
    window()->center();
    m_session.run(*window(), [this] { onCloseWindow(); });
}

void JAdvertisementWinController::windowDidLoad()
{
    using Button = tarnwell::TitledWindow::WindowButton;
    m_form = std::make_unique<Ui::JAdvertisementWinController>();
    m_form->setupUi(m_window->contentView());
    m_window->setFrame({0, 0, advertisementSize.width(), advertisementSize.height()});
    m_window->setWindowTitle(tarnwell::GetApplicationName());
    m_window->setButtonVisible(Button::Minimize, false);
    m_window->setButtonVisible(Button::Zoom, false);
    m_form->pictureBox->setBackgroundRole(QPalette::AlternateBase);
    tarnwell::setTextStyle(m_form->myTitleLabel, 18, QFont::Bold, tarnwell::palette::title);
    m_form->myImageView->setImage(m_myImage);
    if (m_myItem) {
        setTexts(*m_myItem);
        placeButtons(*m_myItem);
    }
    connect(m_form->myRightButton, &QPushButton::clicked, this, &JAdvertisementWinController::onCheckAciton);
    connect(m_form->myLeftButton, &QPushButton::clicked, this, &JAdvertisementWinController::onCancelAciton);
}

void JAdvertisementWinController::setTexts(const ADItem &item)
{
    const QString title = tarnwell::labelText(item.title(), longestHeadline);
    const foundation::StyledText details = item.details().value_or(foundation::StyledText());
    m_form->myTitleLabel->setText(title);
    m_form->myTitleLabel->setVisible(!title.isEmpty());
    m_form->myDetailLabel->setStyledText(details);
    m_form->myDetailLabel->setVisible(!details.isEmpty());
    // The room of a missing text goes to the picture.
    m_form->windowLayout->setStretchFactor(m_form->textLayout, details.isEmpty() ? 0 : 1);
    m_form->myDetailLabel->setAccessibleName(title);
    m_form->myImageView->setAccessibleName(title);
}

void JAdvertisementWinController::placeButtons(const ADItem &item)
{
    const double width = m_window->frame().size.width;
    const double room = width - leftButtonX - rightButtonInset - buttonGap;  // for both
    const double wanted = fitButton(m_form->myRightButton, item.rightBtnTitle(), room);
    const double left = fitButton(m_form->myLeftButton, item.leftBtnTitle(), std::max(room / 2, room - wanted));
    const double right = fitButton(m_form->myRightButton, item.rightBtnTitle(), room - left);
    const double height = m_form->myRightButton->sizeHint().height();
    tarnwell::setViewFrame(m_form->myRightButton,
                           {width - rightButtonInset - right, leftButtonY, right + rightButtonWidening, height});
    tarnwell::setViewFrame(m_form->myLeftButton,
                           {leftButtonX, leftButtonY, left, double(m_form->myLeftButton->sizeHint().height())});
}

void JAdvertisementWinController::onCheckAciton()
{
    m_session.stop();
    if (m_myItem && !m_myItem->rightBtnURL().isNull())
        tarnwell::OpenWebsitePath(m_myItem->rightBtnURL(), u"adui"_s);
}

void JAdvertisementWinController::onCancelAciton()
{
    if (m_myItem)
        declinePromotion(*m_myItem, m_defaults);
    m_session.stop();
}

void JAdvertisementWinController::onCloseWindow()
{
    m_session.stop();
}

}  // namespace kestrel
