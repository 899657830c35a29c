#include "FilterGraph.h"

#include "AudioFilters.h"
#include "FilterText.h"
#include "VideoFilters.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using Plan = TranscodePlan;
using Kind = MediaTrack::Kind;

/// Of a track that goes through no graph.
QString soundLine(const Plan &plan, const SoundTrackPlan &sound, std::optional<double> seconds)
{
    if (!sound.encoder)
        return {};
    return (placedChannels(*sound.source) + soundFilters(plan, sound, seconds)).join(u',');
}

/// Chains of a graph, separated by semicolons; an empty list of filters still needs one.
class Graph {
public:
    Graph(const Plan &plan, const TrackPlan &tracks, const GraphInputs &inputs, std::optional<double> seconds)
        : m_plan(plan),
          m_tracks(tracks),
          m_inputs(inputs),
          m_seconds(seconds)
    {
    }

    FilterGraph build(bool withSound)
    {
        FilterGraph graph;
        const bool isEncoded = m_tracks.video && m_tracks.video->encoder;
        const bool isJoined = m_inputs.pieces.size() > 1;
        QString picture;
        if (isJoined)
            picture = joinPieces(isEncoded);
        else if (isEncoded)
            picture = addPiece(0);
        if (isEncoded)
            graph.pictures = addPictures(picture);
        else if (m_tracks.video)
            graph.pictures = u"0:%1"_s.arg(m_tracks.video->source->index);
        for (qsizetype number = 0; number < m_tracks.sounds.size(); ++number) {
            if (withSound)
                graph.sounds << addSound(number);
            else if (isJoined)
                m_chains << u"[joined%1]anullsink"_s.arg(number);
        }
        graph.graph = m_chains.join(u';');
        return graph;
    }

private:
    void chain(const QString &from, const QStringList &filters, const QString &to)
    {
        m_chains << from + (filters.isEmpty() ? u"null"_s : filters.join(u',')) + to;
    }

    const MediaTrack *pictureOf(const SourcePiece &piece) const
    {
        return piece.source == 0 ? m_tracks.video->source : m_inputs.sources.at(piece.source).firstOf(Kind::Video);
    }

    QString addPiece(qsizetype number)
    {
        const SourcePiece &piece = m_inputs.pieces.at(number);
        const MediaTrack &track = *pictureOf(piece);
        const bool isJoined = m_inputs.sources.size() > 1;
        const SourceFilters filters =
            sourceFilters(m_plan, m_tracks, track, m_plan.sources.at(piece.source), piece, isJoined);
        const QString input = u"[%1:%2]"_s.arg(number).arg(track.index);
        const QString result = u"[piece%1]"_s.arg(number);
        if (!isBitmapBurnt(m_tracks) || piece.source != 0) {
            chain(input, filters.before + filters.after, result);
            return result;
        }
        const QString bare = u"[bare%1]"_s.arg(number);
        const MediaTrack *subtitle = m_tracks.burned->source;
        const QString cues =
            subtitle ? u"[%1:%2]"_s.arg(number).arg(subtitle->index) : u"[%1:0]"_s.arg(m_inputs.subtitles + number);
        chain(input, filters.before, bare);
        // Cues for a picture with its bars stand at the foot of one without.
        QString overlay = cues + bare;
        if (subtitle && subtitle->width > 0 && subtitle->width != track.width && track.rotation == 0) {
            chain(cues, {u"scale=%1:-1"_s.arg(track.width)}, u"[cues%1]"_s.arg(number));
            overlay = bare + u"[cues%1]"_s.arg(number);
        } else {
            overlay = bare + cues;
        }
        chain(overlay, QStringList{u"overlay=x=(W-w)/2:y=H-h:eof_action=pass:format=auto"_s} + filters.after, result);
        return result;
    }

    /// Picture and sound of a piece end together, so that those of the next one begin together: what ends before is
    /// silent until then. Also without sound the pictures come at these times.
    QString joinPieces(bool hasPicture)
    {
        QString pieces, results = hasPicture ? u"[joined]"_s : QString();
        for (qsizetype piece = 0; piece < m_inputs.pieces.size(); ++piece) {
            if (hasPicture)
                pieces += addPiece(piece);
            for (qsizetype number = 0; number < m_tracks.sounds.size(); ++number)
                pieces += addPieceSound(piece, number);
        }
        for (qsizetype number = 0; number < m_tracks.sounds.size(); ++number)
            results += u"[joined%1]"_s.arg(number);
        m_chains << pieces +
                        u"concat=n=%1:v=%2:a=%3"_s.arg(m_inputs.pieces.size())
                            .arg(hasPicture ? 1 : 0)
                            .arg(m_tracks.sounds.size()) +
                        results;
        return u"[joined]"_s;
    }

    QString addPieceSound(qsizetype piece, qsizetype number)
    {
        const SoundTrackPlan &sound = m_tracks.sounds.at(number);
        const SourcePiece &from = m_inputs.pieces.at(piece);
        const QString result = u"[sound%1_%2]"_s.arg(number).arg(piece);
        const QString layout = sound.layout.isNull() ? sound.source->channelLayout : sound.layout;
        const int rate = sound.sampleRate > 0 ? sound.sampleRate : sound.source->sampleRate;
        const int index = sound.joined.value(from.source, sound.source->index);
        const QList<MediaTrack> &tracks = m_inputs.sources.at(from.source).tracks;
        const auto track = std::ranges::find(tracks, index, &MediaTrack::index);
        QString format = track == tracks.end() ? QString() : (placedChannels(*track) << QString()).join(u',');
        format += u"aformat=sample_rates=%1"_s.arg(rate > 0 ? rate : 48000);
        if (!layout.isEmpty())
            format += u":channel_layouts="_s + layout;
        // Joining fills up all but the last piece, as far as its picture goes.
        constexpr double beginning = 0.1;
        const bool isFilled = m_tracks.video && piece + 1 < m_inputs.pieces.size();
        const QString silence =
            u"anullsrc=duration=%1,"_s.arg(numberText(isFilled ? beginning : from.seconds.value_or(beginning)));
        m_chains << (index >= 0 ? u"[%1:%2]"_s.arg(piece).arg(index) : silence) + format + result;
        return result;
    }

    QString addPictures(const QString &from)
    {
        const VideoTrackPlan &video = *m_tracks.video;
        const QStringList filters = resultFilters(m_plan, video, m_seconds);
        const QStringList final = encoderFilters(video, m_seconds);
        if (m_inputs.watermark < 0) {
            chain(from, filters + final, u"[picture]"_s);
            return u"[picture]"_s;
        }
        chain(from, filters, u"[unmarked]"_s);
        m_chains << watermarkGraph(*m_plan.watermark, video.size, m_inputs.watermark, u"unmarked"_s, u"marked"_s);
        chain(u"[marked]"_s, final, u"[picture]"_s);
        return u"[picture]"_s;
    }

    QString addSound(qsizetype number)
    {
        const SoundTrackPlan &sound = m_tracks.sounds.at(number);
        if (m_inputs.pieces.size() == 1)
            return u"0:%1"_s.arg(sound.source->index);
        const QString joined = u"[joined%1]"_s.arg(number), result = u"[sound%1]"_s.arg(number);
        const QStringList filters = soundFilters(m_plan, sound, m_seconds);
        if (filters.isEmpty())
            return joined;
        chain(joined, filters, result);
        return result;
    }

    const Plan &m_plan;
    const TrackPlan &m_tracks;
    const GraphInputs &m_inputs;
    std::optional<double> m_seconds;
    QStringList m_chains;
};

}  // namespace

bool isBitmapBurnt(const TrackPlan &tracks)
{
    if (!tracks.burned)
        return false;
    return tracks.burned->source
               ? tracks.burned->source->isBitmap
               : tracks.burned->codec == "hdmv_pgs_subtitle"_L1 || tracks.burned->codec == "dvd_subtitle"_L1;
}

FilterGraph filterGraph(const Plan &plan, const TrackPlan &tracks, const GraphInputs &inputs,
                        std::optional<double> seconds, bool withSound)
{
    const bool isSimple = inputs.pieces.size() == 1 && inputs.watermark < 0 && !isBitmapBurnt(tracks);
    if (!isSimple) {
        FilterGraph graph = Graph(plan, tracks, inputs, seconds).build(withSound);
        if (inputs.pieces.size() == 1) {
            for (const SoundTrackPlan &sound : tracks.sounds)
                graph.soundFilterLines << soundLine(plan, sound, seconds);
        }
        return graph;
    }
    FilterGraph graph;
    if (tracks.video) {
        graph.pictures = u"0:%1"_s.arg(tracks.video->source->index);
        if (tracks.video->encoder) {
            const SourceFilters filters =
                sourceFilters(plan, tracks, *tracks.video->source, plan.sources.first(), inputs.pieces.first(), false);
            graph.pictureFilters = (filters.before + filters.after + resultFilters(plan, *tracks.video, seconds) +
                                    encoderFilters(*tracks.video, seconds))
                                       .join(u',');
        }
    }
    for (const SoundTrackPlan &sound : tracks.sounds) {
        graph.sounds << u"0:%1"_s.arg(sound.source->index);
        graph.soundFilterLines << soundLine(plan, sound, seconds);
    }
    return graph;
}

}  // namespace kestrel
