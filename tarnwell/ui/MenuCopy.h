#pragma once

class QMenu;
class QWidget;

namespace kestrel::tarnwell {

/// A menu with entries of its own that show and do what those of `menu` do, submenus included: assistive programs know
/// each entry in one place only, and two windows that share a menu would hide it from them. Entries that `menu` gets
/// later are not in it; what changes in one that it has shows. `parent` owns it; `menu` may go first.
QMenu *copyOfMenu(const QMenu &menu, QWidget *parent);

}  // namespace kestrel::tarnwell
