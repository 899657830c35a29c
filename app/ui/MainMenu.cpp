#include "MainMenu.h"

#include "tarnwell/Localization.h"
#include "tarnwell/ui/TitledWindow.h"

#include <QApplication>
#include <QWindow>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

/// Sends a text-editing message to the control that has the keyboard, as far as it knows it.
std::function<void()> toFocusedControl(const char *slot)
{
    return [slot] {
        QWidget *control = QApplication::focusWidget();
        if (control && control->metaObject()->indexOfSlot(QByteArray(slot).append("()").constData()) >= 0)
            QMetaObject::invokeMethod(control, slot);
    };
}

/// The window that another one is attached to, as a sheet is; null where it stands by itself.
QWidget *windowBelow(const QWidget *window)
{
    const QWindow *below = window->windowHandle() ? window->windowHandle()->transientParent() : nullptr;
    const QWidgetList all = QApplication::topLevelWidgets();
    const auto found = std::ranges::find_if(all, [below](QWidget *each) { return each->windowHandle() == below; });
    return below && found != all.end() ? *found : nullptr;
}

/// With everything that is attached to it.
void minimizeActiveWindow()
{
    QWidget *window = QApplication::activeWindow();
    while (QWidget *below = window ? windowBelow(window) : nullptr)
        window = below;
    if (window)
        window->showMinimized();
}

/// The uppermost of those that are attached to it, or the window itself.
void closeActiveWindow()
{
    QWidget *window = QApplication::activeWindow();
    const QWidgetList all = QApplication::topLevelWidgets();
    const auto isAbove = [&window](const QWidget *each) { return each->isVisible() && windowBelow(each) == window; };
    for (auto above = all.end(); window && (above = std::ranges::find_if(all, isAbove)) != all.end();)
        window = *above;
    if (auto *titled = qobject_cast<tarnwell::TitledWindow *>(window))
        titled->performClose();
    else if (window)
        window->close();
}

}  // namespace

MainMenu::MainMenu()
{
    const char *const titles[] = {nullptr, QT_TRANSLATE_NOOP("TarnwellPublic", "Edit"),
                                  QT_TRANSLATE_NOOP("TarnwellPublic", "Window"),
                                  QT_TRANSLATE_NOOP("TarnwellPublic", "Help")};
    for (size_t i = 0; i < m_menus.size(); ++i) {
        const QString title = titles[i] ? tarnwell::AppLocalizedString(titles[i]) : u"Kestrel"_s;
        m_menus[i] = std::make_unique<QMenu>(title);
    }
    const MenuEntry edit[] = {
        {QT_TRANSLATE_NOOP("TarnwellPublic", "Undo"), toFocusedControl("undo"), QKeySequence::Undo},
        {QT_TRANSLATE_NOOP("TarnwellPublic", "Redo"), toFocusedControl("redo"), QKeySequence::Redo},
        {},
        {QT_TRANSLATE_NOOP("TarnwellPublic", "Cut"), toFocusedControl("cut"), QKeySequence::Cut},
        {QT_TRANSLATE_NOOP("TarnwellPublic", "Copy"), toFocusedControl("copy"), QKeySequence::Copy},
        {QT_TRANSLATE_NOOP("TarnwellPublic", "Paste"), toFocusedControl("paste"), QKeySequence::Paste},
        {QT_TRANSLATE_NOOP("TarnwellPublic", "Select All"), toFocusedControl("selectAll"), QKeySequence::SelectAll}};
    append(*editMenu(), edit);
    const MenuEntry window[] = {
        {QT_TRANSLATE_NOOP("TarnwellPublic", "Minimize"), minimizeActiveWindow, Qt::CTRL | Qt::Key_M},
        {QT_TRANSLATE_NOOP("TarnwellPublic", "Close"), closeActiveWindow, QKeySequence::Close}};
    append(*windowMenu(), window);
}

MainMenu::~MainMenu() = default;

QList<QMenu *> MainMenu::menus() const
{
    return {applicationMenu(), editMenu(), windowMenu(), helpMenu()};
}

void MainMenu::append(QMenu &menu, std::span<const MenuEntry> entries)
{
    for (const MenuEntry &entry : entries) {
        if (!entry.title) {
            menu.addSeparator();
            continue;
        }
        QAction *item = menu.addAction(tarnwell::AppLocalizedString(entry.title));
        item->setShortcut(entry.shortcut);
        item->setEnabled(bool(entry.action));
        QObject::connect(item, &QAction::triggered, item, [action = entry.action] { action(); });
    }
}

}  // namespace kestrel
