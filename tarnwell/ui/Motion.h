#pragma once

/// How things move: for a reason, briefly, and not at all where the desktop asks for that.
namespace kestrel::tarnwell {

inline constexpr int motionTimeMs = 250;

/// Whether the desktop's settings turn animations off: on Linux those that the toolkits keep in files (GTK's
/// settings.ini, kdeglobals). Asked before each motion, so that a change counts at once.
bool reducedMotion();

}  // namespace kestrel::tarnwell
