#pragma once

#include "Command.h"

namespace kestrel::cli {

/// `jobs`: what the store knows, of all modules.
ExitStatus runJobsCommand(const Surroundings &surroundings, const QStringList &arguments);

}  // namespace kestrel::cli
