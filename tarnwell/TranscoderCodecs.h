#pragma once

#include <QStringList>

#include <chrono>
#include <optional>

namespace kestrel::tarnwell {

/// The names that a transcoder has for its ways to code or to decode.
struct CodecNames {
    QStringList h264;
    QStringList hevc;
    bool operator==(const CodecNames &) const = default;
};

/// Reads what the transcoder prints for `-encoders` or `-decoders`; nothing where that is no such table.
std::optional<CodecNames> parseCodecTable(const QByteArray &table);

struct TranscoderCodecs {
    CodecNames encoders;
    CodecNames decoders;
    QString failure;  ///< the key of a sentence that says why there are none; null where there are
};

/// Runs the transcoder and waits for both of its answers, for no longer than `timeLimit` in all. Any thread.
TranscoderCodecs askTranscoder(const QString &path, std::chrono::milliseconds timeLimit = std::chrono::seconds(5));

}  // namespace kestrel::tarnwell
