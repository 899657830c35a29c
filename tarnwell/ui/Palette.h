#pragma once

#include <QColor>

/// The colours of every window. No other file holds a colour, but for the three that the home screen is given.
namespace kestrel::tarnwell::palette {

inline constexpr QRgb text = 0xFF343641;
inline constexpr QRgb quietText = 0xFF626873;
inline constexpr QRgb disabledText = 0xFF9AA1AC;
inline constexpr QRgb title = 0xFF434652;
inline constexpr QRgb accent = 0xFF0074CC;
inline constexpr QRgb accentPressed = 0xFF005FA8;
inline constexpr QRgb accentTint = 0xFFE5F1FA;
inline constexpr QRgb surface = 0xFFFFFFFF;
inline constexpr QRgb quietSurface = 0xFFF5F8FB;
inline constexpr QRgb line = 0xFFD9DEE6;
inline constexpr QRgb strongLine = 0xFFB9C1CD;  ///< edges of windows, outlines of controls that are clicked
inline constexpr QRgb warning = 0xFFB7600A;
inline constexpr QRgb error = 0xFFC62828;
inline constexpr QRgb done = 0xFF2E7D32;

inline constexpr QRgb headlineWords = 0xFF4C5159;  ///< the product's name on the home screen: (0.298, 0.318, 0.349)
inline constexpr QRgb headlineBadge = 0xFF555555;  ///< the frame of its badge, dark grey

}  // namespace kestrel::tarnwell::palette
