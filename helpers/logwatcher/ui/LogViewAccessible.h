#pragma once

namespace kestrel {

class LogView;

/// Makes the text on screen, its selection and the cursor of every `LogView` known to assistive programs.
void installLogViewAccessibility();

/// Tells them that selection and cursor have changed.
void announceLogViewCursor(LogView *view);

}  // namespace kestrel
