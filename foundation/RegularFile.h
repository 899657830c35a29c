#pragma once

#include <QString>

namespace kestrel::foundation {

/// Opens a regular file for reading and gives the descriptor, which the caller closes. -1 with `errno` set where that
/// fails; what is no regular file is not opened (errno is EINVAL then): a pipe or a device may never come to an end,
/// and who writes into a pipe would be ended by a reader that comes and goes.
int openRegularFile(const QString &path);

}  // namespace kestrel::foundation
