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
        addInputs();
        return m_result;
    }

private:
    /// Covers are attached, or written as tags, from files of their own where the container has no other way.
    void addCoverRuns()
    {
        if (m_tracks.covers.isEmpty() || m_tracks.container->has(Container::Covers))
            return;
        const MediaTrack &cover = *m_tracks.covers.first();
        const bool isPng = cover.codec == "png"_L1;
        const QString path = m_paths.workFolder + (isPng ? u"/cover.png"_s : u"/cover.jpg"_s);
        QStringList arguments = commonHead() + QStringList{u"-i"_s, u"file:"_s + m_plan.sources.first()};
        arguments << u"-map"_s << u"0:%1"_s.arg(cover.index) << u"-c"_s << u"copy"_s << u"-frames:v"_s << u"1"_s
                  << u"-f"_s << u"image2pipe"_s << u"file:"_s + path;
        TranscodeRun run{.arguments = arguments, .stage = {"Cover"_key}, .share = 0, .seconds = 0};
        if (m_tracks.container->has(Container::AttachedCovers))
            m_result.coverPath = path;
        else
            run.coverTag = {.picturePath = path,
                            .tagPath = m_paths.workFolder + u"/cover.txt"_s,
                            .mimeType = isPng ? u"image/png"_s : u"image/jpeg"_s,
                            .width = cover.width,
                            .height = cover.height};
        m_result.runs.append(run);
    }

    void addInputs()
    {
        const bool copiesPictures = m_tracks.video && !m_tracks.video->encoder;
        for (const SourcePiece &piece : m_pieces)
            m_result.arguments << threadArguments(m_plan)
                               << pieceInput(piece, m_sources.at(piece.source), m_plan.sources.at(piece.source),
                                             copiesPictures);
        m_inputCount = int(m_pieces.size());
        m_result.subtitles = subtitleInputs(m_plan, m_sources.first(), m_tracks, m_pieces, m_paths.workFolder,
                                            m_inputCount == 1 ? 0 : -1, m_inputCount);
        m_result.arguments += m_result.subtitles.arguments;
        m_result.runs += m_result.subtitles.runs;
        m_inputCount += m_result.subtitles.count;
        m_result.graph = {.pieces = m_pieces, .sources = m_sources};
        if (m_tracks.burned && m_tracks.burned->file >= 0 && isBitmapBurnt(m_tracks)) {
            m_result.graph.subtitles = m_inputCount;
            const QString path = m_plan.externalSubtitles.at(m_tracks.burned->file).path;
            for (const SourcePiece &piece : m_pieces)
                m_result.arguments += subtitleFileInput(path, piece);
            m_inputCount += int(m_pieces.size());
        }
        const bool hasMark = m_plan.watermark && !m_plan.watermark->imagePath.isEmpty();
        if (hasMark && m_tracks.video && m_tracks.video->encoder) {
            m_result.arguments << u"-i"_s << u"file:"_s + m_plan.watermark->imagePath;
            m_result.graph.watermark = m_inputCount++;
        }
        m_result.firstPassArguments = m_result.arguments;
        for (const TranscodeRun &run : std::as_const(m_result.runs)) {
            if (run.coverTag)
                m_result.coverInput = addTagInput(run.coverTag->tagPath);
        }
        addChapterInput();
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
            m_result.chapterInput = addTagInput(path);
        }
    }

    int addTagInput(const QString &path)
    {
        m_result.arguments << u"-f"_s << u"ffmetadata"_s << u"-i"_s << u"file:"_s + path;
        return m_inputCount++;
    }

    const TranscodePlan &m_plan;
    const QList<MediaInformation> &m_sources;
    TrackPlan &m_tracks;
    const QList<SourcePiece> &m_pieces;
    const TranscodePaths &m_paths;
    CommandInputs m_result;
    int m_inputCount = 0;
};

}  // namespace

CommandInputs commandInputs(const TranscodePlan &plan, const QList<MediaInformation> &sources, TrackPlan &tracks,
                            const QList<SourcePiece> &pieces, const TranscodePaths &paths)
{
    return InputBuilder(plan, sources, tracks, pieces, paths).build();
}

QStringList threadArguments(const TranscodePlan &plan)
{
    if (plan.threads <= 0)
        return {};
    return {u"-threads"_s, QString::number(plan.threads)};
}

}  // namespace kestrel
