#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace kestrel {

/// What a media file holds, as the information tool tells. Codecs are in the tool's words ("AVC", "AAC"); only the
/// first track of each kind counts, because only that one is converted.
struct MediaInformation {
    QString format;                  ///< of the file: "MPEG-4"
    std::optional<double> duration;  ///< seconds, above 0; nothing where the file does not tell
    bool hasVideo = false;           ///< moving pictures: a cover does not count
    bool hasAudio = false;
    QString videoCodec;
    QString audioCodec;
    bool isPlainVideo = true;  ///< 8 bits and 4:2:0, which every player shows

    bool canBeConverted() const { return hasVideo || hasAudio; }
    /// One line for the user: "MPEG-4 · AVC · AAC".
    QString summary() const;
};

/// A longer report is none.
inline constexpr qint64 maximumReportBytes = 4 * 1024 * 1024;

/// Reads the tool's JSON report on one file. Nothing where it is none, or where the tool does not know the file's
/// format. The report may be any bytes: nonsense in a field reads as absent.
std::optional<MediaInformation> parseMediaInformation(const QByteArray &json);

}  // namespace kestrel
