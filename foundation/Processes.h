#pragma once

#include <QtGlobal>

namespace kestrel::foundation {

/// Sleeps until the process has ended; at once where there is none of that identifier. False where the system cannot tell.
bool waitForProcessEnd(qint64 processIdentifier);

}  // namespace kestrel::foundation
