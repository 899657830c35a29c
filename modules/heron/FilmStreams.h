#pragma once

#include "DiscPlan.h"

#include "jobs/ToolProcess.h"
#include "media/TranscodeCommand.h"

class QJsonArray;

namespace kestrel {

/// A track as it is in a title's film, which need not hold all that the disc's tables name.
struct FilmStream {
    int id = 0;  ///< as the disc has it: 0x80
    MediaTrack::Kind kind = MediaTrack::Kind::Data;
    QString codec;  ///< ffprobe's name
    int bits = 0;   ///< of a sample of uncompressed sound
};

/// How many bytes of a film are looked at for its tracks, some of which may begin late in it: the fewest and the most.
inline constexpr qint64 usualLook = 50'000'000, farthestLook = 16 * usualLook;
/// The options with which ffmpeg and ffprobe do that.
QStringList lookOptions(qint64 bytes);

/// Looks into the beginning of the film that `reader` writes.
ToolCommand filmStreamsCommand(const QString &proberPath, std::shared_ptr<ToolCommand> reader, qint64 look);
/// In the film's order; empty where the report is none.
QList<FilmStream> readFilmStreams(const QByteArray &json);

/// A language as files name it, "ger"; empty for none. `code` is the disc's, "de".
QString fileLanguage(const QString &code);

/// How many subtitles each track of an index beside the film has, in the order of its tracks.
QList<int> countSubtitles(const QByteArray &index);

/// How a title becomes a file with everything that belongs to it: its film first, then, with the subtitles and chapters
/// that are known once it was read, the file.
struct FilmPlan {
    QList<FilmStream> video;            ///< one or none
    QList<FilmStream> sound;            ///< in the file's order
    QList<disc::DiscAudio> soundFacts;  ///< of each of them
    QList<int> missing;                 ///< places in the disc's list of the sound that was wanted and is not there
    QList<tarnwell::Sentence> leftOut;  ///< first of these, then of what the disc has not got either
};

/// `takesVideo` false leaves the picture out.
FilmPlan planFilm(const DiscPlan &plan, const disc::DiscTitle &title, const QList<FilmStream> &streams,
                  bool takesVideo);

/// Where the steps of a title's file write and read; absolute.
struct FilmPaths {
    QString film = {};       ///< the first step's
    QString subtitles = {};  ///< the prefix of the pair of files; null for none
    QString chapters = {};
    QString output = {};
};

/// What of the subtitles goes into the file: places in the disc's list, and their places in the index.
struct FilmSubtitles {
    QList<int> places;
    QList<int> indexPlaces;
    QList<int> counts;  ///< how many pictures each of them has
    QList<tarnwell::Sentence> leftOut;
    bool lacksBurned = false;  ///< that which was to be drawn into the picture
};
/// Says of wanted ones that they are not there: of those that the title has not got, and of those that are not among
/// the streams that came.
QList<tarnwell::Sentence> lackingSubtitles(const DiscPlan &plan, const disc::DiscTitle &title,
                                           const QJsonArray &streams);
FilmSubtitles foundSubtitles(const DiscPlan &plan, const disc::DiscTitle &title, const QList<int> &counts);

/// The film comes on standard input.
QStringList filmArguments(const FilmPlan &film, const disc::DiscTitle &title, const FilmPaths &paths, qint64 look);
QStringList fileArguments(const FilmPlan &film, const disc::DiscTitle &title, const FilmSubtitles &subtitles,
                          const FilmPaths &paths);

/// What the file must show.
OutputExpectation expectedFile(const FilmPlan &film, const FilmSubtitles &subtitles, double seconds,
                               qsizetype chapters);

}  // namespace kestrel
