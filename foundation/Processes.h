#pragma once

#include <QtGlobal>

namespace kestrel::foundation {

/// Sleeps until the process has ended; at once where there is none of that identifier. False where the system cannot tell.
bool waitForProcessEnd(qint64 processIdentifier);

/// Called in a new process before its program begins (QProcess::setChildProcessModifier): has it killed as soon as the thread that
/// started it ends, however that comes about.
void endWithParent();

}  // namespace kestrel::foundation
