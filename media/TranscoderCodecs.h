#pragma once

#include "jobs/ToolProcess.h"
#include "tarnwell/TextKey.h"

#include <QStringList>

#include <chrono>
#include <optional>

namespace kestrel {

/// The names that a transcoder has for its ways to code or to decode.
struct CodecNames {
    QStringList all;  ///< of every codec, picture and sound
    QStringList h264;
    QStringList hevc;
    bool operator==(const CodecNames &) const = default;
};

/// Reads what the transcoder prints for `-encoders` or `-decoders`; nothing where that is no such table.
std::optional<CodecNames> parseCodecTable(const QByteArray &table);

struct TranscoderCodecs {
    CodecNames encoders;
    CodecNames decoders;
    tarnwell::Sentence failure;  ///< why there are none; none where there are
};

/// Asks a transcoder for what it can code and decode. Used once.
class CodecQuery : public QObject {
    Q_OBJECT
public:
    explicit CodecQuery(QString transcoderPath, std::chrono::milliseconds timeLimit = std::chrono::seconds(5),
                        QObject *parent = nullptr);

    void start();

signals:
    /// Once, later than `start` returns.
    void answered(const kestrel::TranscoderCodecs &codecs);

private:
    void ask(const QString &option, void (CodecQuery::*then)(const ToolEnding &));
    void readEncoders(const ToolEnding &ending);
    void readDecoders(const ToolEnding &ending);
    void fail(const tarnwell::Sentence &reason);

    QString m_path;
    std::chrono::milliseconds m_timeLimit;
    std::unique_ptr<ToolProcess> m_tool;
    TranscoderCodecs m_codecs;
};

}  // namespace kestrel
