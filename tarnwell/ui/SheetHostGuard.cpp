#include "SheetHostGuard.h"

#include "HoverButton.h"
#include "TitledWindow.h"
#include "WindowTitleBar.h"
#include "foundation/Queues.h"

#include <QApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QShortcut>

namespace kestrel::tarnwell {

namespace {

bool isInput(QEvent::Type type)
{
    switch (type) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::Wheel:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::ContextMenu:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::TabletPress:
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop:
            return true;
        default:
            return false;
    }
}

}  // namespace

SheetHostGuard::SheetHostGuard(QWidget &host, QWidget &sheet)
    : m_host(&host),
      m_sheet(&sheet),
      m_handle(host.windowHandle())
{
    m_handle->installEventFilter(this);
    host.installEventFilter(this);
    if (const auto *window = qobject_cast<TitledWindow *>(&host)) {
        m_titleBar = window->titleBarView();
        shareMenus();
    } else {
        // A sheet's sheet: what the first one was lent
        share(host.actions());
    }
}

SheetHostGuard::~SheetHostGuard()
{
    for (const QPointer<QAction> &entry : m_shared) {
        if (m_sheet && entry)
            m_sheet->removeAction(entry);
    }
}

void SheetHostGuard::shareMenus()
{
    auto *open = new QAction(this);
    open->setShortcut(Qt::Key_F10);
    connect(open, &QAction::triggered, m_titleBar.data(), &WindowTitleBar::openMenus);
    QList<QAction *> entries{open};
    for (const QMenu *menu : m_titleBar->menus()) {
        connect(menu, &QMenu::aboutToHide, this, &SheetHostGuard::giveKeyboardBack);
        for (QAction *entry : menu->findChildren<QAction *>()) {
            if (!entry->shortcut().isEmpty())
                entries.append(entry);
        }
    }
    share(entries);
}

void SheetHostGuard::share(const QList<QAction *> &entries)
{
    m_shared = {entries.begin(), entries.end()};
    m_sheet->addActions(entries);
}

bool SheetHostGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_host) {
        if (event->type() == QEvent::WindowActivate)
            giveKeyboardBack();
        return false;
    }
    // While a menu is open, everything is meant for it, wherever it arrives.
    if (watched != m_handle || !isInput(event->type()) || QApplication::activePopupWidget() || isForTitleBar(*event)) {
        m_isPressed =
            event->type() == QEvent::MouseButtonPress || (m_isPressed && event->type() != QEvent::MouseButtonRelease);
        return false;
    }
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::KeyPress)
        orderFront();
    event->ignore();
    return true;
}

bool SheetHostGuard::isForTitleBar(const QEvent &event) const
{
    if (!m_titleBar || !event.isPointerEvent())
        return false;
    const bool isHeld =
        event.type() == QEvent::MouseButtonRelease ||
        (event.type() == QEvent::MouseMove && static_cast<const QMouseEvent &>(event).buttons() != Qt::NoButton);
    if (m_isPressed && isHeld)
        return true;
    const QPoint place = static_cast<const QSinglePointEvent &>(event).position().toPoint();
    return m_titleBar->geometry().contains(place) &&
           !qobject_cast<HoverButton *>(m_titleBar->childAt(place - m_titleBar->pos()));
}

void SheetHostGuard::orderFront()
{
    if (!m_sheet)
        return;
    m_sheet->raise();
    m_sheet->activateWindow();
}

/// A turn later, when it is known whether the user is at a menu.
void SheetHostGuard::giveKeyboardBack()
{
    foundation::queue::asyncMain([self = QPointer(this)] {
        if (self && self->m_host && self->m_host->isActiveWindow() && !QApplication::activePopupWidget() &&
            !QApplication::activeModalWidget() && QApplication::mouseButtons() == Qt::NoButton)
            self->orderFront();
    });
}

}  // namespace kestrel::tarnwell
