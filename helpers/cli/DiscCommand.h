#pragma once

#include "Command.h"

namespace kestrel::cli {

/// `disc info`, `disc copy` and `disc rip`: the disc module's work without its window.
ExitStatus runDisc(const Surroundings &surroundings, const QStringList &arguments);

}  // namespace kestrel::cli
