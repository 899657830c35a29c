#pragma once

#include <QtGlobal>

#include <functional>

namespace kestrel::foundation {

/// Sleeps until the process has ended; at once where there is none of that identifier. False where the system cannot
/// tell.
bool waitForProcessEnd(qint64 processIdentifier);

/// What a child runs between its start and its program (QProcess::setChildProcessModifier), so that it is killed as
/// soon as the thread that started it ends, however that comes about. Made by that thread, before the start.
std::function<void()> endWithParent();

}  // namespace kestrel::foundation
