#pragma once

#include "Command.h"

namespace kestrel::cli {

/// `engine [--update]`: the download engine, and a newer one where the publisher has it.
ExitStatus runEngine(const Surroundings &surroundings, const QStringList &arguments);

}  // namespace kestrel::cli
