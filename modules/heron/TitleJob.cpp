#include "TitleJob.h"

#include "DiscCheck.h"

#include <QFileInfo>
#include <QJsonArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

QString secondsText(double seconds)
{
    return QString::number(seconds, 'f', 1);
}

}  // namespace

void TitleJob::carryOut()
{
    lookAtFilm([this](const QList<FilmStream> &streams) { makeFile(streams); });
}

void TitleJob::runConverter(const QStringList &arguments, double share, double seconds, Continuation then)
{
    beginShare(share);
    m_messages = ToolMessages();
    m_converterProgress = {};
    const ToolProcess &tool = run({.program = request().tools.transcode.transcoder,
                                   .arguments = arguments,
                                   .silenceLimit = request().tools.transcode.silenceLimit},
                                  std::move(then));
    connect(&tool, &ToolProcess::errorLine, this, [this](const QByteArray &line) { m_messages.readLine(line); });
    connect(&tool, &ToolProcess::outputLine, this, [this, seconds](const QByteArray &line) {
        m_converterProgress.readLine(line);
        if (m_converterProgress.isAtReportEnd() && seconds > 0)
            tellProgress(m_converterProgress.seconds() / seconds, m_converterProgress.seconds(),
                         m_converterProgress.bytes());
    });
}

ToldOutput TitleJob::told() const
{
    return {.bytes = m_converterProgress.finalBytes(),
            .seconds = m_converterProgress.seconds(),
            .tracks = m_messages.muxedTracks()};
}

void TitleJob::tellLosses()
{
    m_lostSectors = lines().result["lostSectors"_L1].toInteger() + lines().result["emptySectors"_L1].toInteger();
    setFact(u"faults"_s, m_lostSectors);
    if (m_lostSectors > 0)
        addProblem({"%1 sectors of the film could not be read."_key, {QString::number(m_lostSectors)}});
}

QList<int> TitleJob::tellLeftOut(const FilmPlan &film)
{
    const QJsonArray streams = lines().result["streams"_L1].toArray();
    QList<int> late;
    for (qsizetype index = 0; index < film.leftOut.size(); ++index) {
        const int place = film.missing.value(index, -1);
        if (place < 0 || !streams.contains(title().audio[place].streamId)) {
            addLeftOut(film.leftOut[index]);
            continue;
        }
        late.append(place);
        addProblem({"Sound track %1 begins so late in the film that it is not found in time."_key,
                    {QString::number(place + 1)}});
    }
    return late;
}

void TitleJob::checkFile(const QString &path, const OutputExpectation &expected, const ToldOutput &told)
{
    tellStage("Checking the finished file…"_key);
    // A program stream's tracks may begin late in it.
    ToolCommand command =
        outputReportCommand(request().tools.transcode.prober, u"file:"_s + path, QFileInfo(path).size());
    command.arguments = lookOptions(look()) + command.arguments;
    run(command, [this, path, expected, told](const ToolEnding &ending) { compare(path, expected, told, ending); });
}

void TitleJob::compare(const QString &path, const OutputExpectation &expected, const ToldOutput &told,
                       const ToolEnding &ending)
{
    const auto found = ending.isGood() ? parseOutputReport(ending.output, QFileInfo(path).size()) : std::nullopt;
    if (!found)
        return fail("The finished file could not be read back."_key, ending.lastWords);
    const OutputFindings findings = compareOutput(expected, told, *found);
    if (findings.isEmpty)
        return fail("Nothing of the film could be read."_key, m_messages.text());
    const bool isWhole = m_lostSectors == 0 && problems().isEmpty();
    for (const Sentence &fault : {findings.damage, findings.mismatch}) {
        if (fault.isEmpty())
            continue;
        if (isWhole)
            return fail(fault, m_messages.text());
        addProblem(fault);
    }
    if (findings.isShort)
        addProblem({"%1 of %2 s could be read."_key, {secondsText(findings.seconds), secondsText(*expected.seconds)}});
    if (findings.isLong)
        addProblem({"The finished file is %1 s long instead of %2 s."_key,
                    {secondsText(findings.seconds), secondsText(*expected.seconds)}});
    if (findings.lacksChapters)
        addProblem("Chapters are missing in the finished file."_key);
    if (findings.lacksSubtitles)
        addProblem("Subtitles are missing in the finished file."_key);
    setFact(u"seconds"_s, findings.seconds);
    setFact(u"wantedSeconds"_s, *expected.seconds);
    const double end = std::max(0.0, findings.seconds - decodedSeconds());
    decodeAt(path, {0, end / 2, end}, found->information.hasVideo());
}

/// Long enough that a picture that stands still begins or ends in it.
int TitleJob::decodedSeconds() const
{
    int longest = 0;
    for (const disc::DiscStill &still : title().stills)
        longest = std::max(longest, still.seconds);
    return longest + 2;
}

void TitleJob::decodeAt(const QString &path, QList<double> places, bool hasVideo)
{
    if (places.isEmpty())
        return fileIsGood();
    const double place = places.takeFirst();
    ToolCommand command = decodingCommand(request().tools.transcode.transcoder, u"file:"_s + path, Decoding::All);
    const qsizetype input = command.arguments.indexOf(u"-i"_s);
    for (const QString &argument :
         {QString::number(place, 'f', 3), u"-ss"_s, QString::number(decodedSeconds()), u"-t"_s})
        command.arguments.insert(input, argument);
    m_converterProgress = {};
    const ToolProcess &tool = run(command, [this, path, places, place, hasVideo](const ToolEnding &) {
        if (hasVideo ? m_converterProgress.frames() == 0 : m_converterProgress.seconds() <= 0)
            addProblem({"Nothing could be decoded at %1 s."_key, {secondsText(place)}});
        decodeAt(path, places, hasVideo);
    });
    connect(&tool, &ToolProcess::outputLine, this,
            [this](const QByteArray &line) { m_converterProgress.readLine(line); });
}

}  // namespace kestrel
