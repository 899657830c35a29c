// What comes before the first run that makes something: the looks at the sources.
#include "MediaProber.h"
#include "TrackPlan.h"
#include "TranscodeJob.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::operator""_key;

namespace {

constexpr std::chrono::seconds lookLimit{30};
constexpr double shortestPiece = 0.01;  // seconds

/// Whether the preset keeps the pictures as they are, fields and all.
bool keepsPictures(const TranscodePlan &plan, const QList<MediaInformation> &sources, const TranscodeMachine &machine)
{
    if (plan.preset.videoCodec != "copy"_L1)
        return false;
    const auto tracks = planTracks(plan, sources, machine);
    return tracks && tracks->video && !tracks->video->encoder;
}

}  // namespace

void TranscodeJob::lookAtSource()
{
    if (isStopping())
        return finishStopped();
    const qsizetype number = m_request.information.size();
    if (number >= qsizetype(m_sources.size()))
        return scanPicture();
    tellStage("Reading the file…"_key);
    run(probeCommand(m_request.tools.prober, m_sources[number].argument(), lookLimit),
        [this](const ToolEnding &ending) {
            if (isStopping())  // the look was stopped with the job
                return finishStopped();
            auto result = probeResult(ending);
            if (result)
                lookAtPicture(*std::move(result));
            else
                fail(result.reason());
        });
}

void TranscodeJob::lookAtPicture(MediaInformation information)
{
    const QString argument = m_sources[m_request.information.size()].argument();
    const auto command = pictureDataCommand(m_request.tools.prober, argument, information, lookLimit);
    m_request.information.append(std::move(information));
    if (!command)
        return lookAtSource();
    run(*command, [this](const ToolEnding &ending) {
        if (ending.isGood())
            addPictureData(ending.output, m_request.information.last());
        lookAtSource();
    });
}

/// Of the first source, where its flags leave open whether it is interlaced.
void TranscodeJob::scanPicture()
{
    const TranscodePlan &plan = m_request.plan;
    const MediaTrack *video = m_request.information.first().firstOf(MediaTrack::Kind::Video);
    const bool isWanted = plan.preset.takesVideo() && plan.deinterlace != TranscodePlan::Deinterlace::Off &&
                          plan.deinterlace != TranscodePlan::Deinterlace::Film;
    if (!isWanted || !video || !PictureScan::isWorthwhile(*video) ||
        keepsPictures(plan, m_request.information, m_request.tools.machine))
        return findKeyPictures(0);
    const ToolCommand command =
        PictureScan::command(m_request.tools.transcoder, m_sources.front().argument(), m_request.information.first());
    const ToolProcess &tool = run(command, [this](const ToolEnding &) {
        if (isStopping())
            return finishStopped();
        MediaInformation &film = m_request.information.first();
        MediaTrack &track = film.tracks[film.firstOf(MediaTrack::Kind::Video) - film.tracks.constData()];
        // What its flags say is heeded where the pictures do not speak clearly against it.
        using enum MediaTrack::FieldOrder;
        const MediaTrack::FieldOrder seen = m_scan.fieldOrder();
        if (track.fieldOrder == Unknown || seen == TopFirst || seen == BottomFirst) {
            track.fieldOrder = seen;
            track.fieldsAreSeen = true;
        }
        findKeyPictures(0);
    });
    connect(&tool, &ToolProcess::errorLine, this, [this](const QByteArray &line) { m_scan.readLine(line); });
}

/// Where each piece begins that is cut without encoding: a seek alone would lose what stands before the next key
/// picture in files without an index.
void TranscodeJob::findKeyPictures(qsizetype number)
{
    const TranscodePlan &plan = m_request.plan;
    if (number == 0)
        m_wantedPieces = plan.pieces;
    if (number >= plan.pieces.size() || !cutsAtKeyPictures(plan, m_request.information, m_request.tools.machine))
        return prepare();
    const double start = plan.pieces[number].start;
    if (start <= 0)
        return findKeyPictures(number + 1);
    const MediaInformation &film = m_request.information.first();
    const auto keys = std::make_shared<KeyPictures>(film);
    const ToolProcess &tool =
        run(KeyPictures::command(m_request.tools.prober, m_sources.front().argument(), film, start),
            [this, number, start, keys](const ToolEnding &ending) {
                if (isStopping())
                    return finishStopped();
                if (ending.isGood())
                    keys->finish();
                TranscodePlan::Piece &piece = m_request.plan.pieces[number];
                if (const auto key = keys->atOrBefore(start))
                    piece.start = std::min(copyStart(m_request.information.first(), *key), piece.end - shortestPiece);
                findKeyPictures(number + 1);
            });
    connect(&tool, &ToolProcess::outputLine, this, [keys](const QByteArray &line) { keys->readLine(line); });
}

}  // namespace kestrel
