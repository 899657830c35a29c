#pragma once

#include "Command.h"

namespace kestrel::cli {

/// `record`: the recorder's work without its window, until it is interrupted, which is its success. Recordings that an
/// end of their program interrupted are finished afterwards.
ExitStatus runRecord(const Surroundings &surroundings, const QStringList &arguments);

}  // namespace kestrel::cli
