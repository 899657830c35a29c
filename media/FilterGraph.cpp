#include "FilterGraph.h"

#include "AudioFilters.h"
#include "FilterText.h"
#include "VideoFilters.h"

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using Plan = TranscodePlan;
using Kind = MediaTrack::Kind;

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
        if (isEncoded)
            graph.pictures = addPictures();
        else if (m_tracks.video)
            graph.pictures = u"0:%1"_s.arg(m_tracks.video->source->index);
        for (qsizetype number = 0; withSound && number < m_tracks.sounds.size(); ++number)
            graph.sounds << addSound(number);
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

    QString addPictures()
    {
        QString last;
        for (qsizetype number = 0; number < m_inputs.pieces.size(); ++number)
            last += addPiece(number);
        const VideoTrackPlan &video = *m_tracks.video;
        const QStringList common = resultFilters(m_plan, video, m_seconds);
        const QStringList final = encoderFilters(video, m_seconds);
        QStringList filters = common;
        if (m_inputs.pieces.size() > 1)
            filters.prepend(u"concat=n=%1:v=1:a=0"_s.arg(m_inputs.pieces.size()));
        if (m_inputs.watermark < 0) {
            chain(last, filters + final, u"[picture]"_s);
            return u"[picture]"_s;
        }
        chain(last, filters, u"[unmarked]"_s);
        m_chains << watermarkGraph(*m_plan.watermark, video.size, m_inputs.watermark, u"unmarked"_s, u"marked"_s);
        chain(u"[marked]"_s, final, u"[picture]"_s);
        return u"[picture]"_s;
    }

    QString addSound(qsizetype number)
    {
        const SoundTrackPlan &sound = m_tracks.sounds.at(number);
        const QStringList filters = soundFilters(m_plan, sound, m_seconds);
        if (m_inputs.pieces.size() == 1)
            return u"0:%1"_s.arg(sound.source->index);
        QString last;
        const QString layout = sound.layout.isNull() ? sound.source->channelLayout : sound.layout;
        const int rate = sound.sampleRate > 0 ? sound.sampleRate : sound.source->sampleRate;
        for (qsizetype piece = 0; piece < m_inputs.pieces.size(); ++piece) {
            const int source = m_inputs.pieces.at(piece).source;
            const int index = source == 0 ? sound.source->index : soundOf(source, number);
            const QString result = u"[sound%1_%2]"_s.arg(number).arg(piece);
            QString format = u"aformat=sample_rates=%1"_s.arg(rate > 0 ? rate : 48000);
            if (!layout.isEmpty())
                format += u":channel_layouts="_s + layout;
            m_chains << u"[%1:%2]%3%4"_s.arg(QString::number(piece), QString::number(index), format, result);
            last += result;
        }
        const QString result = u"[sound%1]"_s.arg(number);
        chain(last, QStringList{u"concat=n=%1:v=0:a=1"_s.arg(m_inputs.pieces.size())} + filters, result);
        return result;
    }

    int soundOf(int source, qsizetype number) const
    {
        const QList<MediaTrack> sounds = m_inputs.sources.at(source).tracksOf(Kind::Audio);
        return sounds.isEmpty() ? 0 : sounds.at(std::min(number, sounds.size() - 1)).index;
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
                graph.soundFilterLines << (sound.encoder ? soundFilters(plan, sound, seconds).join(u',') : QString());
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
        graph.soundFilterLines << (sound.encoder ? soundFilters(plan, sound, seconds).join(u',') : QString());
    }
    return graph;
}

}  // namespace kestrel
