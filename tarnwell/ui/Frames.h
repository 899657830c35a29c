#pragma once

#include "foundation/Geometry.h"

class QScreen;
class QWidget;

/// Frames of widgets in points, bottom-up: those of views in the widget that holds them, those of windows on the
/// primary screen. Places between two points go to the nearer one.
namespace kestrel::tarnwell {

foundation::Rect viewFrame(const QWidget *view);
void setViewFrame(QWidget *view, const foundation::Rect &frame);

foundation::Rect windowFrame(const QWidget *window);
void setWindowFrame(QWidget *window, const foundation::Rect &frame);

/// A window's place in pixels of the desktop, moved as little as it takes to lie on the free area of the screen; what
/// is too large keeps its upper left corner there.
QRect keptOnScreen(QRect place, const QScreen &screen);
/// The same for a window that can be made smaller: no larger than the free area.
QRect fittedToScreen(QRect place, const QScreen &screen);
/// Makes a window that the desktop frames and places, and that was not shown yet, no larger than there is room for.
void leaveRoomForFrame(QWidget *window);

}  // namespace kestrel::tarnwell
