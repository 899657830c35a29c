#pragma once

#include "MediaInformation.h"

#include <QStringList>

#include <span>

namespace kestrel {

class JKestrelSettingDispatcher;

/// One thing that files can be converted to: a row of plain data. Arguments are separated by blanks, codecs by bars; a
/// null list is empty.
struct ConversionTarget {
    const char *name;          ///< key of the text that the user chooses by
    const char *extension;     ///< without the dot
    const char *container;     ///< the transcoder's format, and what else it needs
    const char *video;         ///< encoder for video; null where the target takes sound only
    const char *videoQuality;  ///< its usual quality
    const char *videoBest;     ///< its quality with the high-quality engine
    const char *audio;
    const char *audioQuality;
    const char *audioBest;
    const char *keptVideo;  ///< codecs that need no encoding
    const char *keptAudio;
    bool hardwareVideo;  ///< whether the hardware encoder makes the same codec
};

std::span<const ConversionTarget> conversionTargets();

/// The key of a sentence that says why a file cannot become `target`; null where it can.
QString unsuitableReason(const MediaInformation &information, const ConversionTarget &target);

struct TranscodeOptions {
    QString hardwareDevice = {};  ///< that encodes; empty for software
    bool deinterlace = false;
    bool autoCopy = false;  ///< keeps tracks that fit the target as they are
    bool highQuality = false;
    int threads = 0;  ///< 0 is as many as the processor has

    bool operator==(const TranscodeOptions &) const = default;
};

/// What the module's settings ask for at this moment. A number of threads beyond `processors` means all, as does one
/// below 1.
TranscodeOptions transcodeOptions(const JKestrelSettingDispatcher &settings, int processors);

struct TranscodeCommand {
    QStringList arguments;
    /// Whether it relies on the hardware encoder or on tracks that are copied: where it fails, one without may not.
    bool takesShortcut = false;
};

/// The transcoder's arguments that make `target` of the file `source` and write it over the file `output`. Both are
/// absolute paths.
TranscodeCommand transcodeCommand(const QString &source, const MediaInformation &information,
                                  const ConversionTarget &target, const TranscodeOptions &options,
                                  const QString &output);

}  // namespace kestrel
