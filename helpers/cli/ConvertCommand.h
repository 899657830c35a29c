#pragma once

#include "Command.h"

namespace kestrel::cli {

/// `convert`: the converter's work without its window.
ExitStatus runConvert(const Surroundings &surroundings, const QStringList &arguments);

}  // namespace kestrel::cli
