#include "CommandInputs.h"

#include "ChapterFile.h"
#include "FilterText.h"
#include "TrackArguments.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using tarnwell::operator""_key;

class InputBuilder {
public:
    InputBuilder(const TranscodePlan &plan, const QList<MediaInformation> &sources, TrackPlan &tracks,
                 const QList<SourcePiece> &pieces, const TranscodePaths &paths)
        : m_plan(plan),
          m_sources(sources),
          m_tracks(tracks),
          m_pieces(pieces),
          m_paths(paths)
    {
    }

    CommandInputs build()
    {
        addCoverRuns();
        addSubtitleRun();
        addInputs();
        return m_result;
    }

private:
    /// Covers are attached from files of their own where the container has no other way.
    void addCoverRuns()
    {
        if (m_tracks.covers.isEmpty() || !m_tracks.container->has(Container::AttachedCovers))
            return;
        const MediaTrack &cover = *m_tracks.covers.first();
        m_result.coverPath = m_paths.workFolder + (cover.codec == "png"_L1 ? u"/cover.png"_s : u"/cover.jpg"_s);
        QStringList arguments = commonHead() + QStringList{u"-i"_s, u"file:"_s + m_plan.sources.first()};
        arguments << u"-map"_s << u"0:%1"_s.arg(cover.index) << u"-c"_s << u"copy"_s << u"-frames:v"_s << u"1"_s
                  << u"-f"_s << u"image2pipe"_s << u"file:"_s + m_result.coverPath;
        m_result.runs.append({.arguments = arguments, .stage = {"Cover"_key}, .share = 0, .seconds = 0});
    }

    /// Subtitles that are both cut and made into others: what ffmpeg makes cannot be cut in the same run.
    void addSubtitleRun()
    {
        const auto isMade = [](const SubtitleTrackPlan &subtitle) { return subtitle.encoder != "copy"_L1; };
        if (!cutLength(m_plan, m_pieces) || std::ranges::none_of(m_tracks.subtitles, isMade))
            return;
        QStringList inputs{u"-i"_s, u"file:"_s + m_plan.sources.first()}, maps;
        int input = 0, made = 0;
        for (SubtitleTrackPlan &subtitle : m_tracks.subtitles) {
            if (!isMade(subtitle))
                continue;
            if (subtitle.file >= 0)
                inputs << u"-i"_s << u"file:"_s + m_plan.externalSubtitles.at(subtitle.file).path;
            maps << u"-map"_s << (subtitle.source ? u"0:%1"_s.arg(subtitle.source->index) : u"%1:s:0"_s.arg(++input))
                 << u"-c:s:%1"_s.arg(made) << subtitle.encoder;
            subtitle.encoder = u"copy"_s;
            subtitle.made = made++;
        }
        const bool isFilm = m_tracks.container->has(Container::HandlerNames);
        m_subtitlePath = m_paths.workFolder + (isFilm ? u"/subtitles.mp4"_s : u"/subtitles.mks"_s);
        m_result.runs.append({.arguments = commonHead() + inputs + maps +
                                           QStringList{u"-map_chapters"_s, u"-1"_s, u"-f"_s,
                                                       isFilm ? u"mp4"_s : u"matroska"_s, u"file:"_s + m_subtitlePath},
                              .stage = {"Subtitles"_key},
                              .share = 0,
                              .seconds = 0});
    }

    void addInputs()
    {
        const bool copiesPictures = m_tracks.video && !m_tracks.video->encoder;
        for (const SourcePiece &piece : m_pieces)
            m_result.arguments << threadArguments(m_plan)
                               << pieceInput(piece, m_sources.at(piece.source), m_plan.sources.at(piece.source),
                                             copiesPictures);
        m_inputCount = int(m_pieces.size());
        if (!m_subtitlePath.isEmpty()) {
            m_result.arguments += pieceInput(m_pieces.first(), m_sources.first(), m_subtitlePath, false);
            m_madeInput = m_inputCount++;
        }
        for (const SubtitleTrackPlan &subtitle : m_tracks.subtitles) {
            if (subtitle.made >= 0)
                m_result.subtitleMaps << u"%1:%2"_s.arg(m_madeInput).arg(subtitle.made);
            else if (subtitle.source)
                m_result.subtitleMaps << u"0:%1"_s.arg(subtitle.source->index);
            else
                m_result.subtitleMaps << u"%1:s:0"_s.arg(addSubtitleInput(subtitle.file, m_pieces.first()));
        }
        m_result.graph = {.pieces = m_pieces, .sources = m_sources};
        if (m_tracks.burned && m_tracks.burned->file >= 0 && isBitmapBurnt(m_tracks)) {
            m_result.graph.subtitles = m_inputCount;
            for (const SourcePiece &piece : m_pieces)
                addSubtitleInput(m_tracks.burned->file, piece);
        }
        const bool hasMark = m_plan.watermark && !m_plan.watermark->imagePath.isEmpty();
        if (hasMark && m_tracks.video && m_tracks.video->encoder) {
            m_result.arguments << u"-i"_s << u"file:"_s + m_plan.watermark->imagePath;
            m_result.graph.watermark = m_inputCount++;
        }
        m_result.firstPassArguments = m_result.arguments;
        addChapterInput();
    }

    int addSubtitleInput(int file, const SourcePiece &piece)
    {
        // Without this the first cue would come at the beginning. It is read whole: not all of these can be sought in.
        m_result.arguments << u"-seek_timestamp"_s << u"1"_s;
        if (piece.start && *piece.start > 0)
            m_result.arguments << u"-itsoffset"_s << numberText(-*piece.start);
        m_result.arguments << u"-i"_s << u"file:"_s + m_plan.externalSubtitles.at(file).path;
        return m_inputCount++;
    }

    void addChapterInput()
    {
        m_result.chapters = m_sources.first().chapters.size();
        m_result.chapterInput = 0;
        // MP4 keeps the titles of chapters in a text track, which readers miss where no chapter has one.
        const bool lacksNames =
            m_tracks.container->has(Container::HandlerNames) &&
            std::ranges::any_of(m_sources.first().chapters, &QString::isEmpty, &MediaChapter::title);
        const bool isChanged =
            !m_plan.pieces.isEmpty() || m_sources.size() > 1 || m_plan.speedFactor != 1 || lacksNames;
        if (!m_tracks.keepsChapters) {
            m_result.chapters = 0;
            m_result.chapterInput = -1;
        } else if (isChanged) {
            const QList<MediaChapter> chapters = resultChapters(m_plan, m_sources, m_pieces);
            const QString path = m_paths.workFolder + u"/chapters.txt"_s;
            m_result.chapters = chapters.size();
            m_result.chapterInput = -1;
            if (chapters.isEmpty())
                return;
            m_result.files.insert(path, chapterFile(chapters));
            m_result.arguments << u"-f"_s << u"ffmetadata"_s << u"-i"_s << u"file:"_s + path;
            m_result.chapterInput = m_inputCount++;
        }
    }

    const TranscodePlan &m_plan;
    const QList<MediaInformation> &m_sources;
    TrackPlan &m_tracks;
    const QList<SourcePiece> &m_pieces;
    const TranscodePaths &m_paths;
    CommandInputs m_result;
    int m_inputCount = 0;
    QString m_subtitlePath;  ///< of subtitles that were made before
    int m_madeInput = -1;
};

}  // namespace

CommandInputs commandInputs(const TranscodePlan &plan, const QList<MediaInformation> &sources, TrackPlan &tracks,
                            const QList<SourcePiece> &pieces, const TranscodePaths &paths)
{
    return InputBuilder(plan, sources, tracks, pieces, paths).build();
}

std::optional<double> cutLength(const TranscodePlan &plan, const QList<SourcePiece> &pieces)
{
    const bool isOnePiece = !plan.pieces.isEmpty() && pieces.size() == 1;
    return isOnePiece ? std::optional(*pieces.first().end - *pieces.first().start) : std::nullopt;
}

QStringList threadArguments(const TranscodePlan &plan)
{
    if (plan.threads <= 0)
        return {};
    return {u"-threads"_s, QString::number(plan.threads)};
}

}  // namespace kestrel
