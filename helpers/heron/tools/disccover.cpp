// disccover [--title N] [--ffmpeg PATH] SOURCE TARGET: writes a picture that stands for the film, or for one of its
// titles.
// disccover --check [--ffmpeg PATH] SOURCE: looks for a picture at the film's begin, in its middle and at its end, and
// tells the seconds of those where none could be decoded.

#include "DiscTables.h"
#include "FrameDecoder.h"
#include "PictureSearch.h"
#include "ToolRun.h"
#include "helpers/heron/CoverChoice.h"

#include <QCommandLineParser>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace kestrel::disc;

namespace {

// Where somebody acts: neither what comes before the film nor its credits.
const QList<double> shares{0.06, 0.12, 0.18, 0.24, 0.3, 0.36, 0.42, 0.48, 0.54, 0.6, 0.66, 0.72};

QString ffmpegBesides(const QString &tool)
{
    const QString bundled = QFileInfo(QFileInfo(u"/proc/self/exe"_s).canonicalFilePath()).path() +
                            u"/../../../transcoder.bundle/Contents/Resources/ffmpeg"_s;
    return !tool.isEmpty() ? tool : QFileInfo(bundled).isExecutable() ? bundled : u"ffmpeg"_s;
}

std::optional<DiscError> makeCover(const DiscTitle &title, const QList<TitleCell> &cells, FilmFile film,
                                   const FrameDecoder &decoder, const QString &target)
{
    QByteArray video;
    for (const quint32 place : placesIn(cells, shares))
        video += pictureAt(film, place);
    if (video.isEmpty())
        return DiscError::NoPicture;
    const QList<QByteArray> pictures = decoder.shades(video);
    const auto worth = [](const QByteArray &picture) { return worthOfPicture(picture, FrameDecoder::width); };
    const auto best = std::max_element(pictures.begin(), pictures.end(),
                                       [&](const auto &one, const auto &other) { return worth(one) < worth(other); });
    if (best == pictures.end())
        return DiscError::NoPicture;
    const int height = title.height;
    const int width = (title.aspect == u"16:9" ? height * 16 / 9 : height * 4 / 3) & ~1;
    const int number = static_cast<int>(best - pictures.begin());
    if (!decoder.save(video, number, width, height, target) || QFileInfo(target).size() == 0)
        return DiscError::Write;
    return std::nullopt;
}

QJsonArray placesWithoutPicture(const DiscTitle &title, const QList<TitleCell> &cells, FilmFile film,
                                const FrameDecoder &decoder)
{
    QJsonArray seconds;
    for (const double share : {0.0, 0.5, 1.0}) {
        const QByteArray video = pictureAt(film, placeBefore(cells, share));
        if (video.isEmpty() || decoder.shades(video).isEmpty())
            seconds.append(share * title.seconds);
    }
    return seconds;
}

}  // namespace

int main(int argumentCount, char **argumentValues)
{
    ToolRun run(ToolRun::Output::Lines);
    QStringList arguments;
    for (int i = 0; i < argumentCount; ++i)
        arguments.append(QFile::decodeName(argumentValues[i]));
    QCommandLineParser parser;
    parser.addOptions({{u"title"_s, {}, u"number"_s}, {u"ffmpeg"_s, {}, u"path"_s}, {u"check"_s, {}}});
    const bool isGood = parser.parse(arguments);
    const bool checks = parser.isSet(u"check"_s);
    if (!isGood || parser.positionalArguments().size() != (checks ? 1 : 2))
        return run.fail(DiscError::Usage);
    run.limit({.seconds = 120, .processorSeconds = 15, .memory = qint64(1) << 30});

    const auto source = DiscSource::open(parser.positionalArguments()[0]);
    if (!source)
        return run.fail(source.reason());
    const auto tables = readTables(*source);
    if (!tables)
        return run.fail(tables.reason());
    const DiscTitle *title =
        parser.isSet(u"title"_s) ? tables->title(parser.value(u"title"_s).toInt()) : tables->contents.mainTitle();
    if (!title)
        return run.fail(DiscError::NoTitle);
    const TitleLayout &layout = *tables->layoutOf(title->number);
    auto film = FilmFile::open(*source, layout.titleSet);
    if (!film)
        return run.fail(film.reason());
    const QList<TitleCell> cells = layout.played(1, 1, 999);
    const FrameDecoder decoder(ffmpegBesides(parser.value(u"ffmpeg"_s)));
    if (checks) {
        const QJsonArray missing = placesWithoutPicture(*title, cells, std::move(*film), decoder);
        run.line({{u"result"_s, QJsonObject{{u"title"_s, title->number}, {u"missing"_s, missing}}}});
        return 0;
    }
    const auto error = makeCover(*title, cells, std::move(*film), decoder, parser.positionalArguments()[1]);
    if (error)
        return run.fail(*error);
    run.line({{u"result"_s, QJsonObject{{u"title"_s, title->number}}}});
    return 0;
}
