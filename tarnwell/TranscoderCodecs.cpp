#include "TranscoderCodecs.h"

#include "foundation/Processes.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace kestrel::tarnwell {

namespace {

constexpr qsizetype maximumTableBytes = 1024 * 1024;
constexpr qsizetype maximumNames = 32;

/// What a line's entry is for: its own name, unless the description ends with another one ("(codec h264)").
QByteArray codecOf(const QByteArray &line, const QByteArray &name)
{
    constexpr QByteArrayView marker = "(codec ";
    const qsizetype start = line.lastIndexOf(marker);
    const qsizetype end = line.indexOf(')', start);
    return start < 0 || end < 0 ? name : line.sliced(start + marker.size(), end - start - marker.size());
}

std::optional<CodecNames> readCodecTable(const QString &path, const QString &option, const QDeadlineTimer &deadline)
{
    QProcess process;
    process.setChildProcessModifier(foundation::endWithParent());
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(path, {u"-hide_banner"_s, option}, QIODevice::ReadOnly);
    QByteArray table;
    while (table.size() <= maximumTableBytes && process.waitForReadyRead(int(deadline.remainingTime())))
        table += process.readAllStandardOutput();
    const bool isLate =
        process.state() != QProcess::NotRunning && !process.waitForFinished(int(deadline.remainingTime()));
    if (isLate || table.size() > maximumTableBytes) {
        process.kill();
        process.waitForFinished(500);
        return {};
    }
    const bool hasFailed = process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0;
    return hasFailed ? std::nullopt : parseCodecTable(table);
}

}  // namespace

std::optional<CodecNames> parseCodecTable(const QByteArray &table)
{
    // A legend comes first, of lines that look like entries.
    bool isBelowLegend = false;
    CodecNames names;
    for (const QByteArray &rawLine : table.split('\n')) {
        const QByteArray line = rawLine.simplified();
        if (line.startsWith("------")) {
            isBelowLegend = true;
            continue;
        }
        const QList<QByteArray> words = line.split(' ');
        if (!isBelowLegend || words.size() < 2 || !line.startsWith('V'))
            continue;
        const QByteArray codec = codecOf(line, words[1]);
        if (QStringList *list = codec == "h264"   ? &names.h264
                                : codec == "hevc" ? &names.hevc
                                                  : nullptr;
            list && list->size() < maximumNames)
            list->append(QString::fromUtf8(words[1]));
    }
    return isBelowLegend ? std::optional(names) : std::nullopt;
}

TranscoderCodecs askTranscoder(const QString &path, std::chrono::milliseconds timeLimit)
{
    const QFileInfo file(path);
    if (path.isEmpty() || !file.isFile() || !file.isExecutable())
        return {.encoders = {},
                .decoders = {},
                .failure = QString::fromLatin1(QT_TRANSLATE_NOOP(
                    "TarnwellPublic", "The transcoder is missing. Please install the application again."))};
    const QDeadlineTimer deadline(timeLimit);
    const auto encoders = readCodecTable(path, u"-encoders"_s, deadline);
    const auto decoders = encoders ? readCodecTable(path, u"-decoders"_s, deadline) : std::nullopt;
    if (!decoders)
        return {.encoders = {},
                .decoders = {},
                .failure = QString::fromLatin1(
                    QT_TRANSLATE_NOOP("TarnwellPublic", "The transcoder did not answer as it should."))};
    return {.encoders = *encoders, .decoders = *decoders, .failure = {}};
}

}  // namespace kestrel::tarnwell
