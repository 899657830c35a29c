#include "TitleAttributes.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel::disc {

namespace {

QString languageOf(int type, quint16 code)
{
    const QChar first = QLatin1Char(static_cast<char>(code >> 8)), second = QLatin1Char(static_cast<char>(code));
    const auto isLetter = [](QChar letter) { return letter.toLower() >= u'a' && letter.toLower() <= u'z'; };
    if (type != 1 || !isLetter(first) || !isLetter(second))
        return {};
    return QString(first.toLower()) + second.toLower();
}

QString wordOf(std::initializer_list<const char16_t *> words, unsigned number)
{
    return number < words.size() ? QString::fromUtf16(words.begin()[number]) : QString();
}

QString purposeOfSound(unsigned extension)
{
    return wordOf({u"", u"normal", u"visuallyImpaired", u"commentary", u"alternateCommentary"}, extension);
}

QString purposeOfSubtitles(unsigned extension)
{
    return wordOf({u"", u"normal", u"large", u"children", u"", u"captions", u"largeCaptions", u"childrenCaptions", u"",
                   u"forced", u"", u"", u"", u"commentary", u"largeCommentary", u"childrenCommentary"},
                  extension);
}

// As standard definition television mixes it: luminance 16 to 235.
quint32 rgbOf(quint32 color)
{
    const double luminance = 1.164 * (int(color >> 16 & 0xff) - 16);
    const double red = int(color >> 8 & 0xff) - 128, blue = int(color & 0xff) - 128;
    const auto byte = [](double value) { return static_cast<quint32>(std::clamp(std::lround(value), 0L, 255L)); };
    return byte(luminance + 1.596 * red) << 16 | byte(luminance - 0.813 * red - 0.391 * blue) << 8 |
           byte(luminance + 2.018 * blue);
}

}  // namespace

void describeVideo(const video_attr_t &video, DiscTitle &title)
{
    const bool isPal = video.video_format == 1;
    title.standard = isPal ? u"PAL"_s : u"NTSC"_s;
    title.aspect = video.display_aspect_ratio == 3 ? u"16:9"_s : u"4:3"_s;
    const int widths[] = {720, 704, 352, 352};
    title.width = widths[video.picture_size];
    title.height = (isPal ? 576 : 480) / (video.picture_size == 3 ? 2 : 1);
}

void describeSound(const vtsi_mat_t &set, const pgc_t &chain, DiscTitle &title)
{
    struct Codec {
        const char16_t *name;
        int firstStream;
    };
    const auto codecOf = [](unsigned format) -> Codec {
        switch (format) {
            case 2:
            case 3:
                return {u"mp2", 0x1c0};
            case 4:
                return {u"lpcm", 0xa0};
            case 6:
                return {u"dts", 0x88};
            default:
                return {u"ac3", 0x80};
        }
    };
    for (int i = 0; i < std::min<int>(set.nr_of_vts_audio_streams, 8); ++i) {
        if (!(chain.audio_control[i] & 0x8000))
            continue;
        const audio_attr_t &sound = set.vts_audio_attr[i];
        const Codec codec = codecOf(sound.audio_format);
        title.audio.append({.language = languageOf(sound.lang_type, sound.lang_code),
                            .codec = QString::fromUtf16(codec.name),
                            .channels = sound.channels + 1,
                            .purpose = purposeOfSound(sound.code_extension),
                            .streamId = codec.firstStream + (chain.audio_control[i] >> 8 & 7)});
    }
}

void describeSubtitles(const vtsi_mat_t &set, const pgc_t &chain, DiscTitle &title)
{
    // One by one: the table is packed, and iterators over it would be over a copy.
    std::array<quint32, 16> palette = {};
    for (size_t i = 0; i < palette.size(); ++i)
        palette[i] = rgbOf(chain.palette[i]);
    for (int i = 0; i < std::min<int>(set.nr_of_vts_subp_streams, 32); ++i) {
        const quint32 control = chain.subp_control[i];
        if (!(control & 0x80000000))
            continue;
        const subp_attr_t &subtitle = set.vts_subp_attr[i];
        const int stream = title.aspect == u"16:9"_s ? control >> 16 & 0x1f : control >> 24 & 0x1f;
        title.subtitles.append({.language = languageOf(subtitle.type, subtitle.lang_code),
                                .purpose = purposeOfSubtitles(subtitle.code_extension),
                                .palette = palette,
                                .streamId = 0x20 + stream});
    }
}

}  // namespace kestrel::disc
