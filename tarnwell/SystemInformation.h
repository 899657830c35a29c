#pragma once

#include <QString>

#include <optional>

namespace kestrel::tarnwell {

struct SystemVersion {
    int major = 0;
    int minor = 0;
    int patch = 0;
    bool operator==(const SystemVersion &) const = default;

    /// major × 10000 + minor × 100 + patch: 101400 for 10.14.
    int number() const { return major * 10000 + minor * 100 + patch; }
};

/// The level of the platform that version gates compare with; nothing where the system cannot report it. On platforms other than
/// macOS a fixed level, 13.0.0: everything that is gated there is available.
std::optional<SystemVersion> GetSystemVersion2();

/// The folder below which applications keep the user's data: `$XDG_DATA_HOME`, or `~/.local/share`.
QString GetApplicationSupportDir();

/// The folder below which applications keep logs and other state: `$XDG_STATE_HOME`, or `~/.local/state`.
QString stateDirectory();

/// Creates `path` with the folders above it. True where it is a folder afterwards.
bool CreateDirectory(const QString &path);

/// The name of the machine's processor where it is one of the platform maker's own; null on all others.
QString GetAppleChipName();

/// Whether the machine encodes video of this codec (a four-character code, 'avc1') and size in hardware. Answers at once where the
/// machine has no such device.
bool HWECanEncodeVideoInSize(quint32 codec, int width, int height);

}  // namespace kestrel::tarnwell
