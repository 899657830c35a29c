// disctitle [--title N] [--chapters FIRST-LAST] [--angle N] [--tracks FROM=TO,…] [--subtitles PREFIX] [--navigation]
//     [--streams] SOURCE
// Writes the program stream of a title to standard output, on one clock, and JSON lines about it to standard error;
// with --tracks only those streams of sound and subtitles, under these numbers (0x81=0x80); with --streams only says,
// on standard output, what an encoder must know about the title.

#include "PictureSearch.h"
#include "TitleExport.h"

#include <QCommandLineParser>
#include <QFile>
#include <QJsonArray>

using namespace Qt::StringLiterals;
using namespace kestrel::disc;

namespace {

// Of sound and subtitles; the pictures have 0x1e0.
constexpr int firstTrackId = 0x20, lastTrackId = 0x1df;

struct Request {
    TitleWish wish;
    bool wantsStreams = false;
    QString source;
};

std::optional<Request> requestOf(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.addOptions({{u"title"_s, {}, u"number"_s},
                       {u"chapters"_s, {}, u"range"_s},
                       {u"angle"_s, {}, u"number"_s},
                       {u"tracks"_s, {}, u"streams"_s},
                       {u"subtitles"_s, {}, u"prefix"_s},
                       {u"navigation"_s, {}},
                       {u"streams"_s, {}}});
    if (!parser.parse(arguments) || parser.positionalArguments().size() != 1)
        return std::nullopt;
    Request request;
    bool isGood = true;
    const auto number = [&](const QString &text, int otherwise) {
        if (text.isEmpty())
            return otherwise;
        bool isNumber = false;
        const int value = text.toInt(&isNumber);
        isGood &= isNumber && value >= 1 && value <= 999;
        return value;
    };
    request.wish.title = number(parser.value(u"title"_s), 0);
    request.wish.angle = number(parser.value(u"angle"_s), 1);
    if (parser.isSet(u"tracks"_s))
        request.wish.streams.emplace();
    for (const QString &track : parser.value(u"tracks"_s).split(u',', Qt::SkipEmptyParts)) {
        const int from = track.section(u'=', 0, 0).toInt(nullptr, 0), to = track.section(u'=', -1).toInt(nullptr, 0);
        const auto isStream = [](int id) { return id >= firstTrackId && id <= lastTrackId; };
        isGood &= isStream(from) && isStream(to);
        request.wish.streams->emplace(from, to);
    }
    const QString chapters = parser.value(u"chapters"_s);
    request.wish.firstChapter = number(chapters.section(u'-', 0, 0), 1);
    request.wish.lastChapter = number(chapters.section(u'-', -1), 999);
    request.wish.subtitlePrefix = parser.value(u"subtitles"_s);
    request.wish.keepsNavigation = parser.isSet(u"navigation"_s);
    request.wantsStreams = parser.isSet(u"streams"_s);
    request.source = parser.positionalArguments().first();
    return isGood ? std::optional(request) : std::nullopt;
}

QJsonArray cellsOf(const QList<TitleCell> &cells)
{
    QJsonArray array;
    double start = 0;
    for (const TitleCell &cell : cells) {
        array.append(QJsonObject{{u"start"_s, start},
                                 {u"seconds"_s, cell.seconds},
                                 {u"chapter"_s, cell.chapter},
                                 {u"firstSector"_s, qint64(cell.firstSector)},
                                 {u"lastSector"_s, qint64(cell.lastSector)},
                                 {u"ownClock"_s, cell.hasOwnClock},
                                 {u"still"_s, cell.stillSeconds}});
        start += cell.seconds + cell.standingSeconds();
    }
    return array;
}

// The title as discinfo has it, and what only its film or its use with an encoder tells.
QJsonObject streamsOf(const DiscTitle &title, const QList<TitleCell> &cells, FilmFile &film)
{
    constexpr int sectorsAPlace = 1024;
    PictureFlags flags;
    for (const quint32 place : placesIn(cells, {0.1, 0.4, 0.7}))
        flags.count(videoAt(film, place, sectorsAPlace));
    QJsonObject object = toJson(title);
    QJsonArray subtitles = object[u"subtitles"].toArray();
    for (qsizetype i = 0; i < subtitles.size(); ++i) {
        QJsonObject track = subtitles[i].toObject();
        track.insert(u"extradata"_s, title.subtitles[i].codecData(title.width, title.height));
        subtitles[i] = track;
    }
    object.insert(u"subtitles"_s, subtitles);
    object.insert(u"cells"_s, cellsOf(cells));
    object.insert(u"frameRate"_s, title.standard == u"PAL" ? u"25"_s : u"30000/1001"_s);
    object.insert(u"pulldown"_s, flags.isPulledDown());
    object.insert(u"progressive"_s, flags.isProgressive());
    return object;
}

}  // namespace

int main(int argumentCount, char **argumentValues)
{
    QStringList arguments;
    for (int i = 0; i < argumentCount; ++i)
        arguments.append(QFile::decodeName(argumentValues[i]));
    const std::optional<Request> request = requestOf(arguments);
    ToolRun run(request && !request->wantsStreams ? ToolRun::Output::Film : ToolRun::Output::Lines);
    if (!request)
        return run.fail(DiscError::Usage);
    run.limit({.memory = qint64(1) << 30});

    const auto source = DiscSource::open(request->source);
    if (!source)
        return run.fail(source.reason());
    const auto tables = readTables(*source);
    if (!tables)
        return run.fail(tables.reason());
    const DiscTitle *title = request->wish.title ? tables->title(request->wish.title) : tables->contents.mainTitle();
    if (!title || request->wish.angle > title->angles)
        return run.fail(DiscError::NoTitle);
    const TitleLayout &layout = *tables->layoutOf(title->number);
    const QList<TitleCell> cells =
        layout.played(request->wish.angle, request->wish.firstChapter, request->wish.lastChapter);
    if (cells.isEmpty())
        return run.fail(DiscError::NoTitle);
    auto film = FilmFile::open(*source, layout.titleSet);
    if (!film)
        return run.fail(film.reason());
    if (request->wantsStreams) {
        run.line(streamsOf(*title, cells, *film));
        return 0;
    }
    return TitleExport(run, *title, cells, request->wish, std::move(*film)).write();
}
