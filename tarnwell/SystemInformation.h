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

/// The level of the platform that version gates compare with; nothing where the system cannot report it. On platforms
/// other than macOS a fixed level, 13.0.0: everything that is gated there is available.
std::optional<SystemVersion> GetSystemVersion2();

/// Reported in place of the system's own while it is installed (`Installed<const ReportedSystemVersion>`).
struct ReportedSystemVersion {
    std::optional<SystemVersion> version;
};

/// What the platform itself reports.
std::optional<SystemVersion> platformSystemVersion();

/// The folder below which applications keep the user's data.
QString GetApplicationSupportDir();

/// Creates `path` with the folders above it, for the user's own films and pictures: who may look into them is for the
/// mask of the user's session to say. True where it is a folder afterwards.
bool CreateDirectory(const QString &path);

/// The name of the machine's processor where it is one of the platform maker's own; null on all others.
QString GetAppleChipName();

/// The device that encodes video of this codec (a four-character code, 'avc1' or 'hvc1') and size in hardware, in the
/// transcoder's words; null where there is none. Answers at once where the machine has no such device.
QString hardwareEncoderDevice(quint32 codec, int width, int height);

inline bool HWECanEncodeVideoInSize(quint32 codec, int width, int height)
{
    return !hardwareEncoderDevice(codec, width, height).isNull();
}

/// How the transcoder is told to encode 'avc1' on such a device: arguments, separated by blanks.
struct HardwareEncoderArguments {
    const char *device;  ///< the device itself follows
    const char *filter;  ///< takes pictures of any kind to the encoder
    const char *encoder;
    const char *quality;  ///< usual
    const char *best;
};
extern const HardwareEncoderArguments hardwareEncoderArguments;

}  // namespace kestrel::tarnwell
