#include "DiscFailure.h"

#include "jobs/SystemFailure.h"
#include "jobs/ToolProcess.h"

#include <QJsonDocument>

#include <cerrno>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::TextKey;
using tarnwell::operator""_key;

namespace {

struct Failure {
    const char *name;
    TextKey text;
};

constexpr Failure failures[] = {
    {"missing", "There is no disc. Put it in, or choose an image or a folder, and try again."_key},
    {"noPermission", "The disc may not be read by this user."_key},
    {"notADisc", "This is no video DVD: there is no VIDEO_TS on it."_key},
    {"damaged", "The disc is damaged: what it holds could not be read."_key},
    {"noTitle", "The disc has no such title, chapter or angle."_key},
    {"protected", "This disc is copy-protected and cannot be read."_key},
    {"read", "The disc could not be read."_key},
    {"write", "The output could not be written."_key},
    {"noPicture", "No picture of this film could be decoded."_key},
    {"tooSlow", "The disc did not answer in time."_key},
    {"noMemory", "There is not enough memory to read this disc."_key},
};

}  // namespace

bool DiscToolLines::read(const QByteArray &line)
{
    if (!line.startsWith('{'))
        return false;
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    if (object.contains("error"_L1))
        error = object["error"_L1].toString();
    else if (object.contains("result"_L1))
        result = object["result"_L1].toObject();
    else if (object.contains("progress"_L1))
        progress = object;
    else
        return false;
    return true;
}

bool hasReaderFailed(const ToolEnding &ending)
{
    DiscToolLines lines;
    for (const QString &line : ending.lastWords.split(u'\n'))
        lines.read(line.trimmed().toUtf8());
    return !lines.error.isEmpty() && lines.error != "write"_L1;
}

Sentence discFailure(const QString &errorName)
{
    if (errorName == "noSpace"_L1)
        return systemFailure(ENOSPC).sentence;
    for (const Failure &failure : failures) {
        if (errorName == QLatin1StringView(failure.name))
            return failure.text;
    }
    return "The disc could not be read."_key;
}

Sentence discFailure(const DiscToolLines &lines, const ToolEnding &ending)
{
    if (ending.cause == ToolEnding::Cause::CouldNotStart)
        return "The disc tools could not be started. Please install the application again."_key;
    if (ending.cause == ToolEnding::Cause::TimeLimit || ending.cause == ToolEnding::Cause::Silence)
        return discFailure(u"tooSlow"_s);
    return discFailure(lines.error);
}

}  // namespace kestrel
