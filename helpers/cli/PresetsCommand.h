#pragma once

#include "Command.h"

namespace kestrel::cli {

/// `presets [--all]`: what files can be converted to.
ExitStatus runPresets(const Surroundings &surroundings, const QStringList &arguments);

}  // namespace kestrel::cli
