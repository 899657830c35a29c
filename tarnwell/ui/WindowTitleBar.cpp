#include "WindowTitleBar.h"

#include "HoverButton.h"
#include "Images.h"
#include "MenuCopy.h"
#include "Palette.h"
#include "tarnwell/Localization.h"

#include <QEvent>
#include <QMenuBar>
#include <QPainter>
#include <QShortcut>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel::tarnwell {

namespace {

struct TitleBarButton {
    const char *objectName;
    const char *text;
    const char *image;
    const char *hoverImage;
};

/// In the order of `WindowButton`. The object names keep clear of those that the windows give their own buttons.
constexpr TitleBarButton titleBarButtons[] = {
    {"windowCloseButton", QT_TRANSLATE_NOOP("TarnwellPublic", "Close"), "title_close", "title_close_hover"},
    {"windowMinimizeButton", QT_TRANSLATE_NOOP("TarnwellPublic", "Minimize"), "title_minimize", "title_minimize_hover"},
    {"windowZoomButton", QT_TRANSLATE_NOOP("TarnwellPublic", "Zoom"), "title_zoom", "title_zoom_hover"},
};

constexpr int barMargin = 6;
constexpr int buttonExtent = 20;  ///< what is clicked; the picture in it is smaller
constexpr int titleSpacing = 12;

}  // namespace

WindowTitleBar::WindowTitleBar(QWidget *window) : QWidget(window)
{
    for (size_t i = 0; i < m_buttons.size(); ++i) {
        const TitleBarButton &row = titleBarButtons[i];
        auto *button = new HoverButton(this);
        button->setObjectName(QLatin1StringView(row.objectName));
        button->setAccessibleName(AppLocalizedString(QLatin1StringView(row.text)));
        button->setImageNamed(QLatin1StringView(row.image), QLatin1StringView(row.hoverImage));
        m_buttons[i] = button;
    }
    connect(window, &QWidget::windowTitleChanged, this, qOverload<>(&QWidget::update));
}

void WindowTitleBar::setImageNames(const QString &background, const QString &titleBackground)
{
    m_backgroundName = background;
    m_titleBackgroundName = titleBackground;
    update();
}

void WindowTitleBar::setButtonVisible(TitledWindow::WindowButton which, bool visible)
{
    button(which)->setVisible(visible);
    layOut();
}

void WindowTitleBar::setBackgroundView(QWidget *view)
{
    m_backgroundView = view;
    view->setParent(this);
    view->lower();
    view->show();
    layOut();
}

void WindowTitleBar::setMenus(const QList<QMenu *> &menus)
{
    // Where the platform has a menu bar of its own, this one stays out of sight and feeds that.
    if (!m_menuBar) {
        m_menuBar = new QMenuBar(this);
        connect(new QShortcut(Qt::Key_F10, window()), &QShortcut::activated, this, &WindowTitleBar::openMenus);
    }
    qDeleteAll(this->menus());
    for (const QMenu *menu : menus)
        m_menuBar->addMenu(copyOfMenu(*menu, m_menuBar));
    m_menuBar->setVisible(!m_menuBar->isNativeMenuBar());
    layOut();
}

void WindowTitleBar::openMenus()
{
    if (const QList<QMenu *> all = menus(); !all.isEmpty() && m_menuBar->isVisible())
        m_menuBar->setActiveAction(all.constFirst()->menuAction());
}

QList<QMenu *> WindowTitleBar::menus() const
{
    return m_menuBar ? m_menuBar->findChildren<QMenu *>(Qt::FindDirectChildrenOnly) : QList<QMenu *>();
}

bool WindowTitleBar::event(QEvent *event)
{
    switch (event->type()) {
        case QEvent::Resize:
        case QEvent::LayoutRequest:
            layOut();
            break;
        case QEvent::WindowActivate:
        case QEvent::WindowDeactivate:
            update();
            break;
        default:
            break;
    }
    return QWidget::event(event);
}

void WindowTitleBar::layOut()
{
    int x = barMargin;
    for (HoverButton *button : m_buttons) {
        if (button->isHidden())
            continue;
        button->setGeometry(x, (height() - buttonExtent) / 2, buttonExtent, buttonExtent);
        x += buttonExtent;
    }
    if (m_menuBar) {
        // At its full height, even where that is more than the bar's: with less it would hide its menus.
        const QSize hint = m_menuBar->sizeHint();
        const int menuWidth = std::min(hint.width(), width() - x - barMargin);
        m_menuBar->setGeometry(x + barMargin, (height() - hint.height()) / 2, menuWidth, hint.height());
    }
    if (m_backgroundView)
        m_backgroundView->setGeometry(rect());
    update();
}

void WindowTitleBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!m_backgroundView)
        paintBackground(painter);
    paintTitle(painter);
}

void WindowTitleBar::paintBackground(QPainter &painter)
{
    if (const QPixmap image = namedImage(m_backgroundName, devicePixelRatioF()); !image.isNull()) {
        painter.drawPixmap(rect(), image);
        return;
    }
    painter.fillRect(rect(), QColor(palette::surface));
    painter.fillRect(QRect(0, height() - 1, width(), 1), QColor(palette::line));
}

void WindowTitleBar::paintTitle(QPainter &painter)
{
    if (window()->windowTitle().isEmpty())
        return;
    const auto shown =
        std::count_if(m_buttons.begin(), m_buttons.end(), [](const HoverButton *b) { return !b->isHidden(); });
    int left = barMargin + buttonExtent * int(shown) + titleSpacing;
    if (m_menuBar && m_menuBar->isVisible())
        left = m_menuBar->geometry().right() + 1 + titleSpacing;
    const int room = std::max(0, width() - titleSpacing - left);
    const QString title = fontMetrics().elidedText(window()->windowTitle(), Qt::ElideRight, room);
    const int textWidth = fontMetrics().horizontalAdvance(title);
    // In the middle of the window while that keeps clear of the menus.
    const int x = std::max(left, std::min((width() - textWidth) / 2, width() - titleSpacing - textWidth));

    if (const QPixmap plate = namedImage(m_titleBackgroundName, devicePixelRatioF()); !plate.isNull()) {
        const QSizeF size = plate.deviceIndependentSize();
        const qreal plateWidth = std::max<qreal>(size.width(), textWidth + 4 * titleSpacing);
        const QRectF place(x + (textWidth - plateWidth) / 2, (height() - size.height()) / 2, plateWidth, size.height());
        if (place.left() >= left - titleSpacing)
            painter.drawPixmap(place, plate, plate.rect().toRectF());
    }
    painter.setPen(QColor(isActiveWindow() ? palette::title : palette::quietText));
    painter.drawText(QRect(x, 0, textWidth + 1, height()), Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                     title);
}

}  // namespace kestrel::tarnwell
