#include "SubtitleInputs.h"

#include "FilterText.h"
#include "TrackArguments.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using tarnwell::operator""_key;

class SubtitleInputBuilder {
public:
    SubtitleInputBuilder(const TranscodePlan &plan, const MediaInformation &source, TrackPlan &tracks,
                         const QList<SourcePiece> &pieces, int film, int first)
        : m_plan(plan),
          m_source(source),
          m_tracks(tracks),
          m_piece(pieces.size() == 1 ? pieces.first() : SourcePiece()),
          m_isChanged(cueTimes(plan, pieces)),
          m_film(film),
          m_first(first)
    {
    }

    SubtitleInputs build(const QString &workFolder)
    {
        addRun(workFolder);
        for (const SubtitleTrackPlan &subtitle : m_tracks.subtitles)
            m_result.maps << mapOf(subtitle);
        return m_result;
    }

private:
    /// What is both made into others and moved in time: what ffmpeg makes cannot be moved in the same run.
    void addRun(const QString &workFolder)
    {
        const auto isMade = [](const SubtitleTrackPlan &subtitle) { return subtitle.encoder != "copy"_L1; };
        if (!m_isChanged || std::ranges::none_of(m_tracks.subtitles, isMade))
            return;
        QStringList inputs{u"-i"_s, u"file:"_s + m_plan.sources.first()}, maps;
        int input = 0, made = 0;
        for (SubtitleTrackPlan &subtitle : m_tracks.subtitles) {
            if (!isMade(subtitle))
                continue;
            if (subtitle.file >= 0)
                inputs += subtitleFileInput(m_plan.externalSubtitles.at(subtitle.file).path, {});
            maps << u"-map"_s << (subtitle.source ? u"0:%1"_s.arg(subtitle.source->index) : u"%1:s:0"_s.arg(++input))
                 << u"-c:s:%1"_s.arg(made) << subtitle.encoder;
            subtitle.encoder = u"copy"_s;
            subtitle.made = made++;
        }
        const bool isFilm = m_tracks.container->has(Container::HandlerNames);
        m_madePath = workFolder + (isFilm ? u"/subtitles.mp4"_s : u"/subtitles.mks"_s);
        m_result.runs.append({.arguments = commonHead() + inputs + maps +
                                           QStringList{u"-map_chapters"_s, u"-1"_s, u"-f"_s,
                                                       isFilm ? u"mp4"_s : u"matroska"_s, u"file:"_s + m_madePath},
                              .stage = {"Subtitles"_key},
                              .share = 0,
                              .seconds = 0});
    }

    QString mapOf(const SubtitleTrackPlan &subtitle)
    {
        if (subtitle.made >= 0) {
            if (m_made < 0)
                m_made = add(pieceInput(m_piece, m_source, m_madePath, false));
            return u"%1:%2"_s.arg(m_made).arg(subtitle.made);
        }
        if (!subtitle.source)
            return u"%1:s:0"_s.arg(add(subtitleFileInput(m_plan.externalSubtitles.at(subtitle.file).path, m_piece)));
        if (m_film < 0)
            m_film = add(pieceInput({}, m_source, m_plan.sources.first(), false));
        return u"%1:%2"_s.arg(m_film).arg(subtitle.source->index);
    }

    int add(const QStringList &input)
    {
        m_result.arguments += input;
        return m_first + m_result.count++;
    }

    const TranscodePlan &m_plan;
    const MediaInformation &m_source;
    TrackPlan &m_tracks;
    const SourcePiece m_piece;
    const bool m_isChanged;
    int m_film;
    const int m_first;
    int m_made = -1;
    QString m_madePath;
    SubtitleInputs m_result;
};

}  // namespace

SubtitleInputs subtitleInputs(const TranscodePlan &plan, const MediaInformation &source, TrackPlan &tracks,
                              const QList<SourcePiece> &pieces, const QString &workFolder, int film, int first)
{
    return SubtitleInputBuilder(plan, source, tracks, pieces, film, first).build(workFolder);
}

QStringList subtitleFileInput(const QString &path, const SourcePiece &piece)
{
    // Without this the first cue would come at the beginning. It is read whole: not all of these can be sought in.
    QStringList arguments{u"-seek_timestamp"_s, u"1"_s};
    if (piece.start && *piece.start > 0)
        arguments << u"-itsoffset"_s << numberText(-*piece.start);
    return arguments << u"-i"_s << u"file:"_s + path;
}

}  // namespace kestrel
