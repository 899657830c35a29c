#include "TranscoderCodecs.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::operator""_key;

namespace {

constexpr qint64 maximumTableBytes = 1024 * 1024;
constexpr qsizetype maximumNames = 32;
constexpr qsizetype maximumAllNames = 4096;

/// What a line's entry is for: its own name, unless the description ends with another one ("(codec h264)").
QByteArray codecOf(const QByteArray &line, const QByteArray &name)
{
    constexpr QByteArrayView marker = "(codec ";
    const qsizetype start = line.lastIndexOf(marker);
    const qsizetype end = line.indexOf(')', start);
    return start < 0 || end < 0 ? name : line.sliced(start + marker.size(), end - start - marker.size());
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
        if (!isBelowLegend || words.size() < 2)
            continue;
        const QString name = QString::fromUtf8(words[1]);
        if (names.all.size() < maximumAllNames)
            names.all.append(name);
        if (!line.startsWith('V'))
            continue;
        const QByteArray codec = codecOf(line, words[1]);
        if (QStringList *list = codec == "h264"   ? &names.h264
                                : codec == "hevc" ? &names.hevc
                                                  : nullptr;
            list && list->size() < maximumNames)
            list->append(name);
    }
    return isBelowLegend ? std::optional(names) : std::nullopt;
}

CodecQuery::CodecQuery(QString transcoderPath, std::chrono::milliseconds timeLimit, QObject *parent)
    : QObject(parent),
      m_path(std::move(transcoderPath)),
      m_timeLimit(timeLimit)
{
}

void CodecQuery::start()
{
    const QFileInfo file(m_path);
    if (m_path.isEmpty() || !file.isFile() || !file.isExecutable()) {
        QMetaObject::invokeMethod(
            this, [this] { fail("The transcoder is missing. Please install the application again."_key); },
            Qt::QueuedConnection);
        return;
    }
    ask(u"-encoders"_s, &CodecQuery::readEncoders);
}

void CodecQuery::ask(const QString &option, void (CodecQuery::*then)(const ToolEnding &))
{
    if (m_tool)
        m_tool.release()->deleteLater();  // it is in the middle of its signal
    m_tool = std::make_unique<ToolProcess>(ToolCommand{.program = m_path,
                                                       .arguments = {u"-hide_banner"_s, option},
                                                       .timeLimit = m_timeLimit,
                                                       .outputLimit = maximumTableBytes,
                                                       .collectsOutput = true});
    connect(m_tool.get(), &ToolProcess::ended, this, then);
    m_tool->start();
}

void CodecQuery::readEncoders(const ToolEnding &ending)
{
    const auto encoders = ending.isGood() ? parseCodecTable(ending.output) : std::nullopt;
    if (!encoders)
        return fail("The transcoder did not answer as it should."_key);
    m_codecs.encoders = *encoders;
    ask(u"-decoders"_s, &CodecQuery::readDecoders);
}

void CodecQuery::readDecoders(const ToolEnding &ending)
{
    const auto decoders = ending.isGood() ? parseCodecTable(ending.output) : std::nullopt;
    if (!decoders)
        return fail("The transcoder did not answer as it should."_key);
    m_codecs.decoders = *decoders;
    emit answered(m_codecs);
}

void CodecQuery::fail(const tarnwell::Sentence &reason)
{
    emit answered({.encoders = {}, .decoders = {}, .failure = reason});
}

}  // namespace kestrel
