#pragma once

#include <QKeySequence>
#include <QMenu>
#include <QString>

#include <array>
#include <functional>
#include <memory>
#include <span>

namespace kestrel {

/// One line of a menu. A null title is a separator. Titles are English keys, localised when the entry is made.
struct MenuEntry {
    const char *title = nullptr;
    std::function<void()> action = {};  ///< empty: the entry is disabled
    QKeySequence shortcut = {};
};

/// The application's menus in their order: application, edit, window, help.
class MainMenu {
public:
    MainMenu();
    ~MainMenu();

    QMenu *applicationMenu() const { return m_menus[0].get(); }
    QMenu *editMenu() const { return m_menus[1].get(); }
    QMenu *windowMenu() const { return m_menus[2].get(); }
    QMenu *helpMenu() const { return m_menus[3].get(); }
    QList<QMenu *> menus() const;

    /// The one place where rows become actions.
    static void append(QMenu &menu, std::span<const MenuEntry> entries);

private:
    std::array<std::unique_ptr<QMenu>, 4> m_menus;
};

}  // namespace kestrel
