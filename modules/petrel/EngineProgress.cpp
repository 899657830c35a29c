#include "EngineProgress.h"

#include "EngineCommand.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <string_view>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::TextKey;
using tarnwell::operator""_key;

namespace {

constexpr qsizetype maximumFiles = 64;

/// Endings of subtitles, which come before the film and are nothing beside it.
constexpr std::string_view companionEndings[] = {"vtt",  "srt",  "ttml", "ass",  "ssa",  "lrc", "json3", "srv1",
                                                 "srv2", "srv3", "sbv",  "dfxp", "sami", "tt",  "xml",   "json"};

bool isCompanion(const QString &name)
{
    return std::ranges::count(companionEndings, name.section(u'.', -1).toStdString()) > 0;
}

struct StageWords {
    const char *beginning;
    TextKey stage;
};

constexpr StageWords stageTable[] = {
    {"[Merger]", "Putting picture and sound together…"_key}, {"[Fixup", "Finishing…"_key},
    {"[EmbedSubtitle]", "Adding the subtitles…"_key},        {"[Metadata]", "Finishing…"_key},
    {"[download] Sleeping", "Waiting for the server…"_key},  {"[generic]", "Asking the site…"_key},
};

qint64 wholeNumber(const QJsonValue &value)
{
    const double number = value.toDouble();
    return number > 0 && number < 1e15 ? qint64(number) : 0;
}

}  // namespace

EngineProgress::EngineProgress(qint64 expectedBytes, bool hasTwoFiles)
    : m_expectedBytes(expectedBytes),
      m_hasTwoFiles(hasTwoFiles)
{
}

bool EngineProgress::readLine(const QByteArray &line)
{
    if (line.startsWith(progressMark))
        return readReport(line.sliced(qstrlen(progressMark)));
    for (const StageWords &words : stageTable) {
        if (line.startsWith(words.beginning)) {
            m_progress.stage = words.stage;
            m_progress.bytesPerSecond = 0;
            return true;
        }
    }
    return false;
}

bool EngineProgress::readReport(const QByteArray &json)
{
    const QJsonArray parts = QJsonDocument::fromJson(json).array();
    const QJsonObject report = parts.at(1).toObject();
    const QString name = report["filename"_L1].toString();
    if (report.isEmpty() || isCompanion(name) || (m_files.size() >= maximumFiles && !m_files.contains(name)))
        return false;
    File &file = m_files[name];
    file.done = std::max(file.done, wholeNumber(report["downloaded_bytes"_L1]));
    if (!m_resumedAt)
        m_resumedAt = file.done;
    const qint64 total = wholeNumber(report["total_bytes"_L1]);
    file.total = std::max(total > 0 ? total : wholeNumber(report["total_bytes_estimate"_L1]), file.done);
    const qint64 fragments = wholeNumber(report["fragment_count"_L1]);
    const bool isKnown = fragments > 0 || total > 0 || m_expectedBytes > 0;
    const bool isFinished = report["status"_L1].toString() == "finished"_L1;
    m_file = name;
    // At its end a file tells its bytes, be it made of fragments or not.
    m_whole = isFinished || (fragments == 0 && total == 0)
                  ? QString()
                  : u"%1 %2 %3"_s.arg(parts.at(0).toString()).arg(fragments).arg(fragments > 0 ? 0 : total);
    if (isFinished)
        file.fraction = 1;
    else if (fragments > 0)
        file.fraction = std::min(1.0, double(wholeNumber(report["fragment_index"_L1])) / double(fragments));
    else if (file.total > 0)
        file.fraction = double(file.done) / double(file.total);
    sumUp(std::max(0.0, report["speed"_L1].toDouble()), isKnown);
    return true;
}

void EngineProgress::sumUp(double bytesPerSecond, bool hasFraction)
{
    qint64 done = 0, total = 0;
    double share = 0;
    for (const File &file : std::as_const(m_files)) {
        done += file.done;
        total += file.total;
        share += file.fraction;
    }
    const bool isAll = m_files.size() >= (m_hasTwoFiles ? 2 : 1);
    if (m_expectedBytes > 0 || !hasFraction || !isAll)
        total = m_expectedBytes;
    constexpr double beforeTheEnd = 0.99;
    m_progress.stage = {};
    m_progress.bytes = done;
    m_progress.bytesPerSecond = bytesPerSecond;
    m_progress.remainingSeconds.reset();
    if (total > done && bytesPerSecond > 0)
        m_progress.remainingSeconds = double(total - done) / bytesPerSecond;
    if (m_expectedBytes > 0)
        share = double(done) / double(m_expectedBytes);
    else
        share /= double(std::max<qsizetype>(m_files.size(), m_hasTwoFiles ? 2 : 1));
    if (hasFraction)
        m_progress.fraction = std::max(m_progress.fraction.value_or(0), std::min(share, beforeTheEnd));
}

}  // namespace kestrel
