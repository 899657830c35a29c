#pragma once

#include "tarnwell/TextKey.h"

namespace kestrel {

/// What the system refused, for the user.
struct SystemFailure {
    tarnwell::Sentence sentence = {};  ///< none where it is nothing that is known
    bool isHopeless = false;           ///< another attempt meets the same end
};

/// By the system's number (`errno`).
SystemFailure systemFailure(int error);
/// By the system's words in what a tool said. Names of files in them are taken for messages as well.
SystemFailure systemFailureIn(const QString &messages);

}  // namespace kestrel
