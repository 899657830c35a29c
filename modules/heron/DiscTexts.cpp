#include "DiscTexts.h"

#include "foundation/LanguageTags.h"

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::TextKey;
using tarnwell::operator""_key;

namespace {

constexpr DiscWayRow wayRows[] = {
    {DiscWay::Rip, "Video or sound file"_key,
     "The chosen titles become files of the format beside, as small as you like."_key},
    {DiscWay::Mkv, "Titles, unchanged (MKV)"_key,
     "Picture, all sound, subtitles in their colours and chapters of the chosen titles, nothing encoded again."_key},
    {DiscWay::Image, "Disc image (ISO)"_key,
     "The whole disc, sector for sector, in one file that plays like the disc."_key},
    {DiscWay::Folder, "Disc folder with menus"_key, "All files of the disc in a folder, with its menus."_key},
    {DiscWay::Main, "One title as a disc folder"_key,
     "A disc of the chosen title alone, without menus, that players start at once."_key},
    {DiscWay::Mpeg, "Titles as MPEG-2 files"_key,
     "The film of the chosen titles as it stands on the disc; no chapters, no names of languages."_key},
    {DiscWay::Sound, "Sound only, unchanged (MKA)"_key,
     "All sound tracks of the chosen titles with their chapters."_key},
};

struct Word {
    const char *word;
    TextKey text;
};

constexpr Word codecs[] = {{"ac3", "Dolby Digital"_key}, {"dts", "DTS"_key}, {"lpcm", "PCM"_key}, {"mp2", "MPEG"_key}};

constexpr Word purposes[] = {{"visuallyImpaired", "for the visually impaired"_key},
                             {"commentary", "commentary"_key},
                             {"alternateCommentary", "another commentary"_key},
                             {"large", "large"_key},
                             {"children", "for children"_key},
                             {"captions", "for the hard of hearing"_key},
                             {"largeCaptions", "for the hard of hearing"_key},
                             {"childrenCaptions", "for children"_key},
                             {"forced", "forced"_key},
                             {"largeCommentary", "commentary"_key},
                             {"childrenCommentary", "commentary"_key}};

QString textOf(std::span<const Word> words, const QString &word)
{
    const auto found =
        std::find_if(words.begin(), words.end(), [&](const Word &row) { return word == QLatin1StringView(row.word); });
    return found == words.end() ? QString() : found->text.localized();
}

QString languageName(const QString &code, const QString &language)
{
    return code.isEmpty() ? "Unknown language"_key.localized() : foundation::languageDisplayName(code, language);
}

QString joined(QStringList parts)
{
    parts.removeAll(QString());
    return parts.join(u", "_s);
}

/// Bits a second as discs usually have it.
double rateOf(const disc::DiscAudio &track)
{
    if (track.codec == "lpcm"_L1)
        return 768'000.0 * std::max(track.channels, 1);
    if (track.codec == "dts"_L1)
        return 768'000;
    return track.channels > 2 ? 448'000 : 192'000;
}

double ripBytesOf(const disc::DiscTitle &title, const Preset &preset)
{
    if (preset.videoCodec == "copy"_L1)
        return double(title.bytes);
    // Of standard definition at the usual quality.
    const bool isModern =
        preset.videoCodec == "hevc"_L1 || preset.videoCodec == "av1"_L1 || preset.videoCodec == "vp9"_L1;
    const double picture = preset.takesVideo() ? (isModern ? 1'000'000 : 1'800'000) : 0;
    const bool isWhole = preset.audioCodec == "flac"_L1 || preset.audioCodec.startsWith("pcm_"_L1);
    const double sound = preset.takesAudio() ? (isWhole ? 900'000 : 192'000) : 0;
    return title.seconds * (picture + sound) / 8;
}

}  // namespace

std::span<const DiscWayRow> discWayRows()
{
    return wayRows;
}

QString soundText(const disc::DiscAudio &track, const QString &language)
{
    const QString channels = track.channels == 1   ? u"1.0"_s
                             : track.channels == 2 ? u"2.0"_s
                             : track.channels > 2  ? u"%1.1"_s.arg(track.channels - 1)
                                                   : QString();
    return joined({languageName(track.language, language), (textOf(codecs, track.codec) + u' ' + channels).trimmed(),
                   textOf(purposes, track.purpose)});
}

QString subtitleText(const disc::DiscSubtitle &track, const QString &language)
{
    return joined({languageName(track.language, language), textOf(purposes, track.purpose)});
}

QString titleFactsText(const disc::DiscTitle &title)
{
    QStringList parts{title.standard, title.aspect};
    if (title.chapters.size() > 1)
        parts.append(Sentence("%1 chapters"_key, {QString::number(title.chapters.size())}).localized());
    if (title.angles > 1)
        parts.append(Sentence("%1 angles"_key, {QString::number(title.angles)}).localized());
    return joined(parts);
}

qint64 resultBytes(DiscWay way, const Preset &preset, const disc::DiscContents &contents,
                   const QList<disc::DiscTitle> &titles)
{
    if (takesWholeDisc(way))
        return contents.bytes;
    return qint64(std::accumulate(titles.begin(), titles.end(), 0.0, [&](double bytes, const disc::DiscTitle &title) {
        if (way == DiscWay::Rip)
            return bytes + ripBytesOf(title, preset);
        if (way != DiscWay::Sound)
            return bytes + double(title.bytes);
        return std::accumulate(
            title.audio.begin(), title.audio.end(), bytes,
            [&](double sum, const disc::DiscAudio &track) { return sum + title.seconds * rateOf(track) / 8; });
    }));
}

qint64 neededBytes(const QList<DiscPlan> &plans, const disc::DiscContents &contents)
{
    qint64 results = 0, mostBeside = 0;
    for (const DiscPlan &plan : plans) {
        const disc::DiscTitle *title = titleOf(contents, plan);
        const QList<disc::DiscTitle> parts = title ? QList{chosenPart(plan, *title)} : QList<disc::DiscTitle>();
        const qint64 result = resultBytes(plan.way, plan.transcode.preset, contents, parts);
        results += result;
        mostBeside = std::max(mostBeside, expectedBytesOf(plan) - result);
    }
    return results + mostBeside;
}

}  // namespace kestrel
