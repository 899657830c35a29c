#include "ConvertOptions.h"

#include "foundation/FileNames.h"
#include "foundation/UserDefaults.h"
#include "media/OwnPresets.h"
#include "media/SubtitleFile.h"
#include "modules/marlin/Conversion.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kestrel::cli {

namespace {

using foundation::absoluteFileName;
using Request = ConvertRequest;

bool readSize(const QString &text, int &width, int &height)
{
    const QStringList parts = text.split(u'x');
    return parts.size() == 2 && readNumber(parts[0], 2, 16384, width) && readNumber(parts[1], 2, 16384, height);
}

/// "0.1,0.1,0.8,0.8": parts of the picture's width and height.
bool readArea(const QString &text, QRectF &area)
{
    const QStringList parts = text.split(u',');
    double x = 0, y = 0, width = 0, height = 0;
    if (parts.size() != 4 || !readNumber(parts[0], 0, 1, x) || !readNumber(parts[1], 0, 1, y) ||
        !readNumber(parts[2], 0.01, 1, width) || !readNumber(parts[3], 0.01, 1, height))
        return false;
    area = {x, y, width, height};
    return x + width <= 1.0001 && y + height <= 1.0001;
}

/// "1:00-2:30".
bool readPiece(const QString &text, TranscodePlan::Piece &piece)
{
    const QStringList parts = text.split(u'-');
    return parts.size() == 2 && readTime(parts[0], piece.start) && readTime(parts[1], piece.end) &&
           piece.end > piece.start;
}

bool readNumbers(const QString &text, std::optional<QList<int>> &numbers)
{
    numbers.emplace();
    if (text == "none"_L1)
        return true;
    if (text == "all"_L1) {
        numbers.reset();
        return true;
    }
    for (const QString &part : text.split(u',')) {
        int number = 0;
        if (!readNumber(part, 1, 256, number))
            return false;
        numbers->append(number);
    }
    return true;
}

/// "film.fr.srt" or "film.srt:fr".
bool addSubtitleFile(const QString &text, TranscodePlan::SubtitleUse use, TranscodePlan &plan)
{
    QString path = text, language;
    if (!QFileInfo::exists(path) && path.contains(u':')) {
        language = path.section(u':', -1);
        path = path.section(u':', 0, -2);
    }
    if (!QFileInfo(path).isFile())
        return false;
    plan.externalSubtitles.append(subtitleFile(absoluteFileName(path), use));
    if (!language.isEmpty())
        plan.externalSubtitles.last().language = language;
    return true;
}

/// A folder that was named goes before what a preset brings along.
bool goesWhereTold(Request &request)
{
    if (!request.folder.isNull())
        request.plan.besideSource = false;
    return true;
}

/// By its id, of the user's own ones also by the name.
bool choosePreset(const QString &value, Request &request)
{
    if (const Preset *preset = presetOfId(value)) {
        request.plan.preset = *preset;
        return true;
    }
    const OwnPresets own(foundation::UserDefaults::standardUserDefaults(), ownPresetsKey.toString());
    for (const Preset &preset : own.presets()) {
        if (preset.id == value || preset.name == value) {
            own.apply(preset.id, request.plan);
            return goesWhereTold(request);
        }
    }
    return false;
}

bool readPresetFile(const QString &path, Request &request)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && applyPresetFile(file.read(maximumPresetFileBytes + 1), request.plan) &&
           goesWhereTold(request);
}

template <auto Member, bool value>
bool setSwitch(const QString &, Request &request)
{
    request.plan.*Member = value;
    return true;
}

TranscodePlan::Watermark &watermark(Request &request)
{
    if (!request.plan.watermark)
        request.plan.watermark.emplace();
    return *request.plan.watermark;
}

constexpr Option<Request> options[] = {
    {"preset", "ID", "what to make, as \"presets\" lists it (mp4-h264)", &choosePreset,
     "\"presets --all\" lists what there is"},
    {"preset-file", "FILE", "a preset that was exported, with its options", &readPresetFile},
    {"to", "FOLDER", "where the results go (the settings' folder)",
     [](const QString &value, Request &request) {
         request.folder = absoluteFileName(value);
         return goesWhereTold(request) && foundation::fileFacts(request.folder).kind == foundation::FileKind::Folder;
     },
     noFolder},
    {"beside-source", nullptr, "results go beside their sources", &setSwitch<&TranscodePlan::besideSource, true>},
    {"name", "PATTERN", "of the results: {name}, {preset}, {folder}, {date}",
     [](const QString &value, Request &request) {
         request.plan.namePattern = value;
         return !value.isEmpty() && !value.contains(u'/');
     }},
    {"join", nullptr, "make one file of all sources, in their order",
     [](const QString &, Request &request) {
         request.joins = true;
         return true;
     }},
    {"chapter-per-source", nullptr, "with --join: a chapter for each",
     &setSwitch<&TranscodePlan::chapterPerSource, true>},
    {"no-chapter-per-source", nullptr, "with --join: only the chapters that the sources have",
     &setSwitch<&TranscodePlan::chapterPerSource, false>},

    {"quality", "NUMBER", "constant quality; lower is better",
     [](const QString &value, Request &request) {
         request.plan.rateControl = TranscodePlan::RateControl::Quality;
         return readNumber(value, 0, 63, request.plan.quality);
     }},
    {"video-rate", "BITS", "bits a second: 2M, 800k",
     [](const QString &value, Request &request) {
         request.plan.rateControl = TranscodePlan::RateControl::BitRate;
         return readBytes(value, request.plan.videoBitRate);
     }},
    {"size", "BYTES", "at most so large, in two passes: 25M",
     [](const QString &value, Request &request) {
         request.plan.rateControl = TranscodePlan::RateControl::Size;
         return readBytes(value, request.plan.maximumBytes);
     }},
    {"best", nullptr, "slower and better", &setSwitch<&TranscodePlan::best, true>},
    {"speed", "STEP", "-2 (smaller, slower) to 2 (larger, faster)",
     [](const QString &value, Request &request) { return readNumber(value, -2, 2, request.plan.speed); }},
    {"no-best", nullptr, "as quick and good as usual", &setSwitch<&TranscodePlan::best, false>},
    {"hardware", nullptr, "encode in hardware where it is there", &setSwitch<&TranscodePlan::hardware, true>},
    {"no-hardware", nullptr, "encode in software", &setSwitch<&TranscodePlan::hardware, false>},
    {"copy", nullptr, "keep tracks that fit as they are", &setSwitch<&TranscodePlan::copies, true>},
    {"no-copy", nullptr, "encode also what would fit as it is", &setSwitch<&TranscodePlan::copies, false>},
    {"threads", "NUMBER", "processors to use (all)",
     [](const QString &value, Request &request) { return readNumber(value, 0, 256, request.plan.threads); }},

    {"resolution", "WxH", "at most so large: 1280x720",
     [](const QString &value, Request &request) {
         return readSize(value, request.plan.maximumWidth, request.plan.maximumHeight);
     }},
    {"rate", "NUMBER", "pictures a second",
     [](const QString &value, Request &request) { return readNumber(value, 1, 240, request.plan.frameRate); }},
    {"deinterlace", "HOW", "auto, off, on, double or film",
     [](const QString &value, Request &request) {
         return readChoice(value, {"auto", "off", "on", "double", "film"}, request.plan.deinterlace);
     }},
    {"hdr", "HOW", "auto, keep or sdr",
     [](const QString &value, Request &request) {
         return readChoice(value, {"auto", "keep", "sdr"}, request.plan.dynamicRange);
     }},
    {"crop", "X,Y,W,H", "in parts of the picture: 0,0.1,1,0.8",
     [](const QString &value, Request &request) { return readArea(value, request.plan.crop); }},
    {"turn", "HOW", "none, right, left or around",
     [](const QString &value, Request &request) {
         return readChoice(value, {"none", "right", "left", "around"}, request.plan.turn);
     }},
    {"mirror", nullptr, "left and right change places", &setSwitch<&TranscodePlan::mirrored, true>},
    {"brightness", "NUMBER", "-1 to 1",
     [](const QString &value, Request &request) { return readNumber(value, -1, 1, request.plan.brightness); }},
    {"contrast", "NUMBER", "0 to 2",
     [](const QString &value, Request &request) { return readNumber(value, 0, 2, request.plan.contrast); }},
    {"saturation", "NUMBER", "0 to 3",
     [](const QString &value, Request &request) { return readNumber(value, 0, 3, request.plan.saturation); }},
    {"watermark", "TEXT", "a text over the picture",
     [](const QString &value, Request &request) {
         watermark(request).text = value;
         return !value.isEmpty();
     }},
    {"watermark-picture", "FILE", "a picture over the picture",
     [](const QString &value, Request &request) {
         watermark(request).imagePath = absoluteFileName(value);
         return QFileInfo(value).isFile();
     }},
    {"watermark-corner", "WHERE", "top-left, top-right, bottom-left, bottom-right or middle",
     [](const QString &value, Request &request) {
         static constexpr std::pair<QLatin1StringView, Qt::Alignment> corners[] = {
             {"top-left"_L1, Qt::AlignTop | Qt::AlignLeft},
             {"top-right"_L1, Qt::AlignTop | Qt::AlignRight},
             {"bottom-left"_L1, Qt::AlignBottom | Qt::AlignLeft},
             {"bottom-right"_L1, Qt::AlignBottom | Qt::AlignRight},
             {"middle"_L1, Qt::AlignCenter}};
         for (const auto &[name, corner] : corners) {
             if (value == name) {
                 watermark(request).corner = corner;
                 return true;
             }
         }
         return false;
     }},
    {"watermark-size", "NUMBER", "0.01 to 1, of the picture's width",
     [](const QString &value, Request &request) { return readNumber(value, 0.01, 1, watermark(request).size); }},
    {"watermark-opacity", "NUMBER", "0 to 1",
     [](const QString &value, Request &request) { return readNumber(value, 0, 1, watermark(request).opacity); }},

    {"cut", "FROM-TO", "keep this piece; may be given again, up to 64 times: 1:00-2:30",
     [](const QString &value, Request &request) {
         TranscodePlan::Piece piece;
         const bool isPiece = readPiece(value, piece);
         request.plan.pieces.append(piece);
         return isPiece && request.plan.pieces.size() <= TranscodePlan::mostPieces;
     }},
    {"keyframe-cuts", nullptr, "cut at keyframes, without encoding", &setSwitch<&TranscodePlan::exactCuts, false>},
    {"tempo", "FACTOR", "0.25 to 4: 2 is twice as fast",
     [](const QString &value, Request &request) { return readNumber(value, 0.25, 4, request.plan.speedFactor); }},
    {"fade-in", "SECONDS", "of picture and sound",
     [](const QString &value, Request &request) { return readNumber(value, 0, 60, request.plan.fadeIn); }},
    {"fade-out", "SECONDS", "of picture and sound",
     [](const QString &value, Request &request) { return readNumber(value, 0, 60, request.plan.fadeOut); }},

    {"audio", "TRACKS", "all, none, or by number: 1,3",
     [](const QString &value, Request &request) { return readNumbers(value, request.audioNumbers); }},
    {"audio-languages", "LIST", "only these, where a file has one of them: en,de",
     [](const QString &value, Request &request) {
         request.plan.soundLanguages = value;
         return !value.isEmpty();
     }},
    {"mix", "HOW", "source, mono, stereo or 5.1",
     [](const QString &value, Request &request) {
         return readChoice(value, {"source", "mono", "stereo", "5.1"}, request.plan.mix);
     }},
    {"normalize", nullptr, "even the loudness out", &setSwitch<&TranscodePlan::normalizes, true>},
    {"volume", "DECIBELS", "-60 to 60",
     [](const QString &value, Request &request) { return readNumber(value, -60, 60, request.plan.volume); }},
    {"audio-rate", "BITS", "bits a second and track: 192k",
     [](const QString &value, Request &request) { return readBytes(value, request.plan.audioBitRate); }},
    {"subtitles", "TRACKS", "all, none, or by number: 1,3",
     [](const QString &value, Request &request) { return readNumbers(value, request.subtitleNumbers); }},
    {"subtitle-languages", "LIST", "only these, or none: en,de",
     [](const QString &value, Request &request) {
         request.plan.subtitleLanguages = value;
         return !value.isEmpty();
     }},
    {"burn", "TRACK", "draw this subtitle into the picture",
     [](const QString &value, Request &request) { return readNumber(value, 1, 256, request.burnedSubtitle); }},
    {"subtitle-file", "FILE[:LANGUAGE]", "add these subtitles",
     [](const QString &value, Request &request) {
         return addSubtitleFile(value, TranscodePlan::SubtitleUse::Keep, request.plan);
     }},
    {"burn-file", "FILE", "draw these subtitles into the picture",
     [](const QString &value, Request &request) {
         return addSubtitleFile(value, TranscodePlan::SubtitleUse::Burn, request.plan);
     }},

    {"safe", nullptr, "decode the whole result before it counts as done", &setSwitch<&TranscodePlan::safeMode, true>},
    {"no-safe", nullptr, "look at the result, but do not decode it all", &setSwitch<&TranscodePlan::safeMode, false>},
    {"keep-date", nullptr, "give the results their sources' dates", &setSwitch<&TranscodePlan::keepsDate, true>},
};

}  // namespace

std::span<const Option<ConvertRequest>> convertOptions()
{
    return options;
}

}  // namespace kestrel::cli
