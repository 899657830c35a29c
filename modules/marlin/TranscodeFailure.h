#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace kestrel {

struct TranscodeFailure {
    QString sentence;         ///< the key of one for the user; a general one where nothing more is known
    bool isHopeless = false;  ///< another attempt meets the same end
};

/// What a tool or the system reports in `messages`. Names of files in them are taken for messages as well.
TranscodeFailure failureIn(const QString &messages);

/// What the transcoder says when it found nothing to convert, and calls a success.
inline constexpr const char *emptyOutputMessage = "Output file is empty";

/// The last lines of a tool's messages, however many it writes.
class MessageTail {
public:
    static constexpr qsizetype maximumLines = 20;
    static constexpr qsizetype maximumLineLength = 5000;  ///< the longest path with its message

    void read(const QByteArray &piece);
    /// The lines, an unfinished one included.
    QString text() const;

private:
    void append(const QByteArray &line);

    QByteArray m_pending;
    QStringList m_lines;
};

}  // namespace kestrel
