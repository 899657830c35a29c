#pragma once

class QWidget;

namespace kestrel::tarnwell {

/// Lets Tab go through what lies within a widget as its layouts are read: in the order of their items, through pages of
/// stacks and tabs and what scrolls. Left alone it goes by the order in which controls were made. What comes before and
/// after the widget stays.
void tabInLayoutOrder(QWidget &widget);

}  // namespace kestrel::tarnwell
