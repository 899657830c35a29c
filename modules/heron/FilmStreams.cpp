#include "FilmStreams.h"

#include "foundation/LanguageTags.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

/// Those for which Matroska wants another code than the usual one of three letters.
constexpr std::pair<const char *, const char *> fileLanguages[] = {
    {"bod", "tib"}, {"ces", "cze"}, {"cym", "wel"}, {"deu", "ger"}, {"ell", "gre"}, {"eus", "baq"}, {"fas", "per"},
    {"fra", "fre"}, {"hye", "arm"}, {"isl", "ice"}, {"kat", "geo"}, {"mkd", "mac"}, {"mri", "mao"}, {"msa", "may"},
    {"mya", "bur"}, {"nld", "dut"}, {"ron", "rum"}, {"slk", "slo"}, {"sqi", "alb"}, {"zho", "chi"},
};

QString trackName(int number, const QString &language)
{
    return language.isEmpty() ? QString::number(number) : u"%1 (%2)"_s.arg(number).arg(language);
}

/// Wanted tracks of a title that has only `count`.
QList<int> beyond(const std::optional<QList<int>> &tracks, qsizetype count)
{
    QList<int> found = tracks.value_or(QList<int>());
    found.removeIf([count](int track) { return track <= count; });
    return found;
}

/// `number` from 1.
Sentence lacksSubtitles(int number, const QString &language)
{
    return {"Subtitle track %1, which this film does not have"_key, {trackName(number, language)}};
}

QString codecFor(const FilmStream &stream)
{
    // Matroska takes no sound in the disc's own arrangement of samples; these hold the same ones.
    return stream.codec != "pcm_dvd"_L1 ? u"copy"_s : stream.bits > 16 ? u"pcm_s24le"_s : u"pcm_s16le"_s;
}

QStringList head()
{
    return {u"-hide_banner"_s, u"-nostdin"_s, u"-nostats"_s,      u"-loglevel"_s, u"repeat+level+verbose"_s,
            u"-progress"_s,    u"pipe:1"_s,   u"-stats_period"_s, u"0.2"_s,       u"-y"_s};
}

QStringList tail(const QString &path)
{
    return {u"-max_muxing_queue_size"_s, u"4096"_s, u"-f"_s, u"matroska"_s, u"file:"_s + path};
}

}  // namespace

QStringList lookOptions(qint64 bytes)
{
    constexpr int microsecondsOfByte = 2;
    return {u"-probesize"_s, QString::number(bytes), u"-analyzeduration"_s,
            QString::number(bytes * microsecondsOfByte)};
}

ToolCommand filmStreamsCommand(const QString &proberPath, std::shared_ptr<ToolCommand> reader, qint64 look)
{
    ToolCommand command{.program = proberPath};
    // What was looked at is not kept.
    command.arguments = QStringList{u"-v"_s, u"error"_s, u"-fflags"_s, u"nobuffer"_s} + lookOptions(look) +
                        QStringList{u"-f"_s, u"mpeg"_s, u"-show_streams"_s, u"-of"_s, u"json"_s, u"-i"_s, u"pipe:0"_s};
    command.outputLimit = maximumReportBytes;
    command.collectsOutput = true;
    command.feeder = std::move(reader);
    return command;
}

QList<FilmStream> readFilmStreams(const QByteArray &json)
{
    QList<FilmStream> streams;
    for (const QJsonValue &value : QJsonDocument::fromJson(json).object()["streams"_L1].toArray()) {
        const QJsonObject object = value.toObject();
        FilmStream stream{.id = object["id"_L1].toString().toInt(nullptr, 0),
                          .codec = object["codec_name"_L1].toString(),
                          .bits = std::max(object["bits_per_sample"_L1].toInt(),
                                           object["bits_per_raw_sample"_L1].toString().toInt())};
        const QString kind = object["codec_type"_L1].toString();
        stream.kind = kind == "video"_L1      ? MediaTrack::Kind::Video
                      : kind == "audio"_L1    ? MediaTrack::Kind::Audio
                      : kind == "subtitle"_L1 ? MediaTrack::Kind::Subtitle
                                              : MediaTrack::Kind::Data;
        // Sound that was announced and never came has no rate.
        const bool isEmpty = stream.kind == MediaTrack::Kind::Audio && object["sample_rate"_L1].toString().toInt() == 0;
        if (!stream.codec.isEmpty() && !isEmpty)
            streams.append(stream);
    }
    return streams;
}

QString fileLanguage(const QString &code)
{
    const QString usual = foundation::isoLanguageCode(code);
    for (const auto &[iso, file] : fileLanguages) {
        if (usual == QLatin1StringView(iso))
            return QString::fromLatin1(file);
    }
    return usual.isEmpty() ? code : usual;
}

QList<int> countSubtitles(const QByteArray &index)
{
    QList<int> counts;
    for (const QByteArray &line : index.split('\n')) {
        if (line.startsWith("id:"))
            counts.append(0);
        else if (line.startsWith("timestamp:") && !counts.isEmpty())
            ++counts.last();
    }
    return counts;
}

FilmPlan planFilm(const DiscPlan &plan, const disc::DiscTitle &title, const QList<FilmStream> &streams, bool takesVideo)
{
    FilmPlan film;
    const auto leaveOut = [&](const QString &name) {
        film.leftOut.append({"Sound track %1, which this film does not have"_key, {name}});
    };
    for (const FilmStream &stream : streams) {
        if (takesVideo && stream.kind == MediaTrack::Kind::Video && film.video.isEmpty())
            film.video.append(stream);
    }
    for (const int place : chosenSound(plan, title)) {
        const disc::DiscAudio &track = title.audio[place];
        const auto found = std::find_if(streams.begin(), streams.end(), [&](const FilmStream &stream) {
            return stream.kind == MediaTrack::Kind::Audio && stream.id == track.streamId;
        });
        if (found == streams.end()) {
            leaveOut(trackName(place + 1, track.language));
            film.missing.append(place);
            continue;
        }
        film.sound.append(*found);
        film.soundFacts.append(track);
    }
    for (const int track : beyond(plan.soundTracks, title.audio.size()))
        leaveOut(QString::number(track));
    return film;
}

QList<Sentence> lackingSubtitles(const DiscPlan &plan, const disc::DiscTitle &title, const QJsonArray &streams)
{
    QList<Sentence> lacking;
    for (const int place : chosenSubtitles(plan, title)) {
        if (!streams.contains(title.subtitles[place].streamId))
            lacking.append(lacksSubtitles(place + 1, title.subtitles[place].language));
    }
    for (const int track : beyond(plan.subtitleTracks, title.subtitles.size()))
        lacking.append(lacksSubtitles(track, {}));
    return lacking;
}

FilmSubtitles foundSubtitles(const DiscPlan &plan, const disc::DiscTitle &title, const QList<int> &counts)
{
    FilmSubtitles subtitles;
    const QList<int> chosen = chosenSubtitles(plan, title);
    int indexPlace = 0;
    // Who reads the index sees only tracks with something in them.
    for (int place = 0; place < title.subtitles.size(); ++place) {
        if (counts.value(place) == 0) {
            if (chosen.contains(place) && place != plan.burnedSubtitle - 1)
                subtitles.leftOut.append(lacksSubtitles(place + 1, title.subtitles[place].language));
            continue;
        }
        if (chosen.contains(place)) {
            subtitles.places.append(place);
            subtitles.indexPlaces.append(indexPlace);
            subtitles.counts.append(counts[place]);
        }
        ++indexPlace;
    }
    for (const int track : beyond(plan.subtitleTracks, title.subtitles.size()))
        subtitles.leftOut.append(lacksSubtitles(track, {}));
    subtitles.lacksBurned = plan.burnedSubtitle > 0 && !subtitles.places.contains(plan.burnedSubtitle - 1);
    return subtitles;
}

QStringList filmArguments(const FilmPlan &film, const disc::DiscTitle &title, const FilmPaths &paths, qint64 look)
{
    QStringList arguments = head() + QStringList{u"-fflags"_s, u"+genpts"_s} + lookOptions(look) +
                            QStringList{u"-f"_s, u"mpeg"_s, u"-i"_s, u"pipe:0"_s};
    const auto map = [&](const FilmStream &stream) { arguments << u"-map"_s << u"0:i:0x%1"_s.arg(stream.id, 0, 16); };
    for (const FilmStream &stream : film.video)
        map(stream);
    for (const FilmStream &stream : film.sound)
        map(stream);
    arguments << u"-c:v"_s << u"copy"_s;
    if (!film.video.isEmpty())
        arguments << u"-aspect"_s << title.aspect;
    for (qsizetype index = 0; index < film.sound.size(); ++index)
        arguments << u"-c:a:%1"_s.arg(index) << codecFor(film.sound[index]);
    return arguments + tail(paths.film);
}

QStringList fileArguments(const FilmPlan &film, const disc::DiscTitle &title, const FilmSubtitles &subtitles,
                          const FilmPaths &paths)
{
    QStringList arguments = head() + QStringList{u"-protocol_whitelist"_s, u"file"_s, u"-i"_s, u"file:"_s + paths.film};
    const bool hasSubtitles = !subtitles.places.isEmpty();
    if (hasSubtitles)
        arguments << u"-protocol_whitelist"_s << u"file"_s << u"-i"_s << u"file:"_s + paths.subtitles + u".idx"_s;
    arguments << u"-protocol_whitelist"_s << u"file"_s << u"-f"_s << u"ffmetadata"_s << u"-i"_s
              << u"file:"_s + paths.chapters << u"-map"_s << u"0"_s;
    for (const int place : subtitles.indexPlaces)
        arguments << u"-map"_s << u"1:s:%1"_s.arg(place);
    const QString chapterInput = hasSubtitles ? u"2"_s : u"1"_s;
    arguments << u"-map_metadata:g"_s << u"-1"_s << u"-map_metadata:s"_s << u"-1"_s << u"-map_chapters"_s
              << chapterInput << u"-c"_s << u"copy"_s;
    const auto describe = [&](const QString &track, const QString &language, const QString &disposition) {
        if (!language.isEmpty())
            arguments << u"-metadata:s:"_s + track << u"language="_s + fileLanguage(language);
        arguments << u"-disposition:"_s + track << disposition;
    };
    for (qsizetype index = 0; index < film.soundFacts.size(); ++index) {
        const disc::DiscAudio &track = film.soundFacts[index];
        const QString special = track.purpose == "visuallyImpaired"_L1   ? u"visual_impaired"_s
                                : track.purpose.endsWith("ommentary"_L1) ? u"comment"_s
                                                                         : u"0"_s;
        describe(u"a:%1"_s.arg(index), track.language, index == 0 ? u"default"_s : special);
    }
    for (qsizetype index = 0; index < subtitles.places.size(); ++index) {
        const disc::DiscSubtitle &track = title.subtitles[subtitles.places[index]];
        const QString special = track.purpose == "forced"_L1           ? u"forced"_s
                                : track.purpose.endsWith("aptions"_L1) ? u"hearing_impaired"_s
                                                                       : u"0"_s;
        describe(u"s:%1"_s.arg(index), track.language, special);
    }
    return arguments + tail(paths.output);
}

OutputExpectation expectedFile(const FilmPlan &film, const FilmSubtitles &subtitles, double seconds, qsizetype chapters)
{
    OutputExpectation expected;
    for (const FilmStream &stream : film.video)
        expected.tracks.append({stream.kind, stream.codec});
    for (const FilmStream &stream : film.sound)
        expected.tracks.append({stream.kind, codecFor(stream) == "copy"_L1 ? stream.codec : codecFor(stream)});
    for (const int count : subtitles.counts)
        expected.tracks.append({MediaTrack::Kind::Subtitle, u"dvd_subtitle"_s, count});
    expected.seconds = seconds;
    expected.chapters = chapters;
    return expected;
}

}  // namespace kestrel
