#include "TranscodeFailure.h"

#include <QtGlobal>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

struct KnownFailure {
    const char *message;
    const char *sentence;
    bool isHopeless = false;
};

constexpr const char *diskFull =
    QT_TRANSLATE_NOOP("TarnwellPublic", "There is no space left on the disk. Free some space and convert again.");
constexpr const char *notAllowed = QT_TRANSLATE_NOOP(
    "TarnwellPublic", "Reading the file or writing to the output folder is not allowed. Check their permissions.");
constexpr const char *damaged = QT_TRANSLATE_NOOP("TarnwellPublic", "The file is damaged or incomplete.");
constexpr const char *noTracks =
    QT_TRANSLATE_NOOP("TarnwellPublic", "The file holds neither video nor sound that can be converted.");
constexpr const char *noEncoder =
    QT_TRANSLATE_NOOP("TarnwellPublic", "The converter cannot make this format. Choose another one.");

// The first match counts: what stops the writing comes before what a damaged file says all the time.
constexpr KnownFailure knownFailures[] = {
    {"No space left on device", diskFull, true},
    {"Disk quota exceeded", diskFull, true},
    {"File too large",
     QT_TRANSLATE_NOOP("TarnwellPublic", "The disk of the output folder cannot hold a file of this size."), true},
    {"Read-only file system",
     QT_TRANSLATE_NOOP("TarnwellPublic", "The output folder is read-only. Choose another one in the settings."), true},
    {"Unknown encoder", noEncoder},
    {"Encoder not found", noEncoder},
    {"Requested output format", noEncoder},
    {"Permission denied", notAllowed},
    {"Operation not permitted", notAllowed},
    {"Cannot allocate memory", QT_TRANSLATE_NOOP("TarnwellPublic", "There is not enough memory to convert this file.")},
    {"No such file or directory", QT_TRANSLATE_NOOP("TarnwellPublic", "The file is no longer where it was.")},
    {"Input/output error", QT_TRANSLATE_NOOP("TarnwellPublic", "The disk could not be read or written.")},
    {"matches no streams", noTracks},
    {"does not contain any stream", noTracks},
    {"moov atom not found", damaged},
    {"Invalid data found", damaged},
    {emptyOutputMessage, damaged},
    {"Truncating packet", damaged},
};

}  // namespace

TranscodeFailure failureIn(const QString &messages)
{
    for (const auto &[message, sentence, isHopeless] : knownFailures) {
        if (messages.contains(QLatin1StringView(message), Qt::CaseInsensitive))
            return {QString::fromLatin1(sentence), isHopeless};
    }
    return {QString::fromLatin1(QT_TRANSLATE_NOOP("TarnwellPublic", "The converter could not convert this file."))};
}

void MessageTail::read(const QByteArray &piece)
{
    for (const char byte : piece) {
        if (byte == '\n' || byte == '\r') {
            append(m_pending);
            m_pending.clear();
        } else if (m_pending.size() < maximumLineLength) {
            m_pending += byte;
        }
    }
}

void MessageTail::append(const QByteArray &line)
{
    if (line.trimmed().isEmpty())
        return;
    m_lines.append(QString::fromUtf8(line));
    if (m_lines.size() > maximumLines)
        m_lines.removeFirst();
}

QString MessageTail::text() const
{
    QStringList lines = m_lines;
    if (!m_pending.trimmed().isEmpty())
        lines.append(QString::fromUtf8(m_pending));
    return lines.join(u'\n');
}

}  // namespace kestrel
