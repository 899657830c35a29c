#pragma once

#include "Command.h"

namespace kestrel::cli {

/// `jobs`: what the store knows, of all modules, without changing it; `jobs retry`, `jobs clear`: what to do with it.
ExitStatus runJobsCommand(const Surroundings &surroundings, const QStringList &arguments);

}  // namespace kestrel::cli
