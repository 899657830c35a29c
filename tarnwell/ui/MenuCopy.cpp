#include "MenuCopy.h"

#include <QMenu>
#include <QPointer>

namespace kestrel::tarnwell {

namespace {

void showLike(QAction &entry, const QAction &original)
{
    entry.setText(original.text());
    entry.setShortcut(original.shortcut());
    entry.setEnabled(original.isEnabled());
    entry.setVisible(original.isVisible());
    entry.setCheckable(original.isCheckable());
    entry.setChecked(original.isChecked());
}

void addCopy(QMenu &menu, QAction &original)
{
    QAction *entry = menu.addAction(QString());
    showLike(*entry, original);
    QObject::connect(&original, &QAction::changed, entry, [entry, &original] { showLike(*entry, original); });
    QObject::connect(entry, &QAction::triggered, &original, [entry = QPointer(entry), original = QPointer(&original)] {
        original->trigger();
        // A choice that was the present one already stays checked there, and was unchecked here by the click.
        if (entry && original)
            showLike(*entry, *original);
    });
}

}  // namespace

QMenu *copyOfMenu(const QMenu &menu, QWidget *parent)
{
    auto *copy = new QMenu(menu.title(), parent);
    for (QAction *original : menu.actions()) {
        if (original->isSeparator())
            copy->addSeparator();
        else if (const QMenu *submenu = original->menu<QMenu *>())
            copy->addMenu(copyOfMenu(*submenu, copy));
        else
            addCopy(*copy, *original);
    }
    return copy;
}

}  // namespace kestrel::tarnwell
