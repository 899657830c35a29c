#pragma once

#include "Command.h"

namespace kestrel::cli {

/// `download`: the downloader's work without its window.
ExitStatus runDownload(const Surroundings &surroundings, const QStringList &arguments);

}  // namespace kestrel::cli
