#pragma once

/// The entries of libCapturePermission, which is loaded by path and looked up by symbol.
extern "C" {

/// 0 where the user has not been asked yet, -1 on failure (with a text in `error`, owned by the library, or null), any
/// other value where access is decided. `mediaType` is "soun" or "vide".
using GetAuthorizationStatusFunction = int(const char *mediaType, const char **error);

/// Asks the user for access and then calls `completion(context, granted)`, on any thread.
using AuthorDeviceFunction = void(const char *mediaType, void (*completion)(void *context, int granted), void *context);
}

inline constexpr char captureMediaTypeAudio[] = "soun", captureMediaTypeVideo[] = "vide";
