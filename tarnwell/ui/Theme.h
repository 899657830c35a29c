#pragma once

class QApplication;

namespace kestrel::tarnwell {

/// Gives every window the house look: style, colours, font. Called once, before the first window is made. Buttons come
/// in two variants, asked for by a dynamic property set to true: "primary" (what Enter does) and "quiet" (a link among
/// text). A frame with the property "card" sets off what is in it; a text view that is "quiet" has no frame of its own.
void applyTheme(QApplication &application);

}  // namespace kestrel::tarnwell
