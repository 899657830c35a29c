#pragma once

#include "tarnwell/SystemInformation.h"

#include <QString>

#include <functional>
#include <optional>

namespace kestrel {

/// What stands between the record button and the recorder on a system of this level.
enum class RecorderGate {
    Unavailable,       ///< before 10.7
    Open,              ///< before 10.14
    AskForPermission,  ///< from 10.14 on
};
RecorderGate recorderGate(const std::optional<tarnwell::SystemVersion> &version);

/// What the capture-permission library answered.
struct CapturePermissionAnswer {
    enum class Outcome {
        Open,     ///< decided, or there is nobody to ask
        Asking,   ///< the user is being asked; the completion follows
        Failed,   ///< `error` says why
        Refused,  ///< nothing is to happen
    };
    Outcome outcome = Outcome::Open;
    QString error;
};

/// Asks the library at `libraryPath` for access to the microphone. With `Asking`, `completion` is called on the main
/// thread 0.1 s after the user has answered, whatever the answer was. The library stays loaded.
CapturePermissionAnswer requestCapturePermission(const QString &libraryPath, std::function<void()> completion);

}  // namespace kestrel
