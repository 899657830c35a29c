#include "TitleFileJob.h"

#include "jobs/OutputFile.h"
#include "media/ChapterFile.h"

#include <QFile>
#include <QJsonArray>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

QByteArray readIndex(const QString &path)
{
    constexpr qint64 maximumBytes = 16 * 1024 * 1024;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(maximumBytes) : QByteArray();
}

/// As the film's own clock has them; the last one lasts until its end.
QList<MediaChapter> chaptersIn(const QJsonObject &result, int first)
{
    QList<MediaChapter> chapters;
    for (const QJsonValue &start : result["chapters"_L1].toArray()) {
        if (!chapters.isEmpty())
            chapters.last().end = start.toDouble();
        chapters.append({.start = start.toDouble(),
                         .title = Sentence("Chapter %1"_key, {QString::number(first + chapters.size())}).localized()});
    }
    if (!chapters.isEmpty())
        chapters.last().end = std::max(result["seconds"_L1].toDouble(), chapters.last().start);
    return chapters;
}

}  // namespace

bool TitleFileJob::takesVideo() const
{
    return request().plan.way == DiscWay::Mkv;
}

QString TitleFileJob::openTarget()
{
    m_output = std::make_shared<OutputFile>(request().folder, outputName(), takesVideo() ? u"mkv"_s : u"mka"_s);
    if (m_output->isValid())
        return m_output->partPath();
    fail(m_output->reason());
    return {};
}

void TitleFileJob::makeFile(const QList<FilmStream> &streams)
{
    m_film = planFilm(request().plan, title(), streams, takesVideo());
    if (m_film.video.isEmpty() && m_film.sound.isEmpty())
        return fail("This title has no sound to keep."_key);
    m_workFolder = std::make_unique<OutputFile>(request().folder, outputName(), QString(), OutputFile::Kind::Folder);
    if (!m_workFolder->isValid())
        return fail(m_workFolder->reason());
    const QString folder = m_workFolder->partPath();
    m_paths = {.film = folder + u"/film.mkv"_s,
               .subtitles = takesVideo() && !title().subtitles.isEmpty() ? folder + u"/lines"_s : QString(),
               .chapters = folder + u"/chapters.txt"_s,
               .output = openTarget()};
    if (m_paths.output.isNull())
        return;
    const QStringList options =
        m_paths.subtitles.isNull() ? QStringList() : QStringList{u"--subtitles"_s, m_paths.subtitles};
    const ToolCommand command{.program = request().tools.transcode.transcoder,
                              .arguments = filmArguments(m_film, title(), m_paths, look()),
                              .silenceLimit = request().tools.transcode.silenceLimit,
                              .feeder = titleReader(options)};
    tellStage({});
    runDiscTool(command, 0.6 * shareOfFile(), [this](const ToolEnding &ending) {
        if (isGoodStep(ending))
            addCompanions();
    });
}

void TitleFileJob::addCompanions()
{
    tellLosses();
    tellLeftOut(m_film);
    const QJsonObject result = lines().result;
    const auto chapters = chaptersIn(result, request().plan.firstChapter);
    if (takesVideo())
        m_subtitles = foundSubtitles(request().plan, title(), countSubtitles(readIndex(m_paths.subtitles + u".idx"_s)));
    for (const Sentence &leftOut : m_subtitles.leftOut)
        addLeftOut(leftOut);
    if (m_subtitles.lacksBurned)
        addProblem("The subtitles that were to be drawn into the picture are not in this film."_key);
    QSaveFile file(m_paths.chapters);
    if (!file.open(QIODevice::WriteOnly) || file.write(chapterFile(chapters)) < 0 || !file.commit())
        return fail("The output could not be written."_key);
    const double seconds = filmSeconds(request().plan, title());
    runConverter(
        fileArguments(m_film, title(), m_subtitles, m_paths), 0.35 * shareOfFile(), seconds,
        [this, seconds, chapterCount = chosenChapters(request().plan, title()).size()](const ToolEnding &ending) {
            if (!isGoodStep(ending))
                return;
            QFile::remove(m_paths.film);
            checkFile(m_paths.output, expectedFile(m_film, m_subtitles, seconds, chapterCount), told());
        });
}

void TitleFileJob::fileIsGood()
{
    place(std::exchange(m_output, nullptr));
}

}  // namespace kestrel
