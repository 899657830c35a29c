#pragma once

#include "tarnwell/TextKey.h"

#include <QByteArray>
#include <QJsonObject>

#include <optional>

namespace kestrel {

struct ToolEnding;

/// The lines of JSON that the disc's tools print, among whatever else comes on the same stream.
struct DiscToolLines {
    QJsonObject progress;  ///< the last one
    QJsonObject result;
    QString error;  ///< "protected"; empty where there was none

    /// False where it is none of those.
    bool read(const QByteArray &line);
};

/// Whether a reader whose film another tool takes gave up by itself, and not because nobody takes it any more.
bool hasReaderFailed(const ToolEnding &ending);

/// What the error of that name means to the user.
tarnwell::Sentence discFailure(const QString &errorName);
/// The same where the tool may also have ended without a word.
tarnwell::Sentence discFailure(const DiscToolLines &lines, const ToolEnding &ending);

}  // namespace kestrel
