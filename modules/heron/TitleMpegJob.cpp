#include "TitleMpegJob.h"

#include "jobs/OutputFile.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::operator""_key;

void TitleMpegJob::makeFile(const QList<FilmStream> &streams)
{
    m_output = std::make_shared<OutputFile>(request().folder, outputName(), u"mpg"_s);
    if (!m_output->isValid())
        return fail(m_output->reason());
    addLeftOut("Chapters, languages and the colours of subtitles, which MPEG-2 files cannot hold"_key);
    const ToolCommand command{
        .program = request().tools.writer,
        .arguments = {u"bs=1M"_s, u"iflag=fullblock"_s, u"status=none"_s, u"of="_s + m_output->partPath()},
        .feeder = titleReader({})};
    tellStage({});
    runDiscTool(command, 0.95, [this, streams](const ToolEnding &ending) {
        if (!isGoodStep(ending))
            return;
        tellLosses();
        const QList<int> late = tellLeftOut(planFilm(request().plan, title(), streams, true));
        for (const tarnwell::Sentence &leftOut :
             lackingSubtitles(request().plan, title(), lines().result["streams"_L1].toArray()))
            addLeftOut(leftOut);
        OutputExpectation expected;
        for (const FilmStream &stream : streams) {
            if (stream.kind != MediaTrack::Kind::Data)
                expected.tracks.append({stream.kind, stream.codec});
        }
        for (const int place : late) {
            const QString &codec = title().audio[place].codec;
            expected.tracks.append({MediaTrack::Kind::Audio, codec == "lpcm"_L1 ? u"pcm_dvd"_s : codec});
        }
        expected.seconds = filmSeconds(request().plan, title());
        checkFile(m_output->partPath(), expected, {.bytes = lines().result["bytes"_L1].toInteger(), .tracks = {}});
    });
}

void TitleMpegJob::fileIsGood()
{
    place(std::exchange(m_output, nullptr));
}

}  // namespace kestrel
