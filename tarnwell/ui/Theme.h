#pragma once

class QApplication;

namespace kestrel::tarnwell {

/// Gives every window the house look: style, colours, font. Called once, before the first window is made. Buttons come
/// in two variants, asked for by a dynamic property set to true: "primary" (what Enter does) and "quiet" (a link among
/// text).
void applyTheme(QApplication &application);

}  // namespace kestrel::tarnwell
