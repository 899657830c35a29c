#include "PictureScan.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

ToolCommand PictureScan::command(const QString &transcoderPath, const QString &argument, const MediaInformation &film)
{
    const MediaTrack *video = film.firstOf(MediaTrack::Kind::Video);
    QStringList arguments = {u"-hide_banner"_s, u"-nostdin"_s,          u"-nostats"_s,
                             u"-loglevel"_s,    u"repeat+level+info"_s, u"-protocol_whitelist"_s,
                             u"file"_s,         u"-noautorotate"_s};
    constexpr double shortFilm = 10;  // seconds
    if (film.duration.value_or(0) > shortFilm)
        arguments += {u"-ss"_s, QString::number(*film.duration / 2, 'f', 3)};
    arguments += {u"-i"_s,        argument,
                  u"-map"_s,      video ? "0:"_L1 + QString::number(video->index) : u"0:V:0"_s,
                  u"-vf"_s,       u"idet,cropdetect=limit=24:round=2:reset=0"_s,
                  u"-frames:v"_s, u"100"_s,
                  u"-f"_s,        u"null"_s,
                  u"-"_s};
    return {.program = transcoderPath, .arguments = arguments, .timeLimit = std::chrono::seconds(20)};
}

bool PictureScan::isWorthwhile(const MediaTrack &video)
{
    constexpr QLatin1StringView codecs[] = {"mpeg2video"_L1, "h264"_L1,   "mpeg4"_L1, "dvvideo"_L1,  "mjpeg"_L1,
                                            "rawvideo"_L1,   "prores"_L1, "dnxhd"_L1, "huffyuv"_L1,  "ffv1"_L1,
                                            "ffvhuff"_L1,    "vc1"_L1,    "wmv3"_L1,  "msmpeg4v3"_L1};
    constexpr int heights[] = {480, 486, 512, 576, 608, 1080, 1088};
    // MPEG-2 always tells something; discs often say "progressive" of everything.
    using enum MediaTrack::FieldOrder;
    const bool isOpen =
        video.fieldOrder == Unknown || (video.fieldOrder == Progressive && video.codec == "mpeg2video"_L1);
    return isOpen && video.frameRate < 31 &&
           std::find(std::begin(codecs), std::end(codecs), video.codec) != std::end(codecs) &&
           std::find(std::begin(heights), std::end(heights), video.height) != std::end(heights);
}

void PictureScan::readLine(const QByteArray &line)
{
    if (line.contains("Multi frame detection:")) {
        static const QRegularExpression counts(
            u"TFF:\\s*(\\d+)\\s+BFF:\\s*(\\d+)\\s+Progressive:\\s*(\\d+)\\s+Undetermined:\\s*(\\d+)"_s);
        const auto match = counts.match(QString::fromLatin1(line));
        m_topFirst = match.captured(1).toInt();
        m_bottomFirst = match.captured(2).toInt();
        m_progressive = match.captured(3).toInt();
        m_undetermined = match.captured(4).toInt();
    } else if (line.contains("crop=")) {
        static const QRegularExpression crop(u"crop=(\\d+):(\\d+):(\\d+):(\\d+)"_s);
        const auto match = crop.match(QString::fromLatin1(line));
        if (match.hasMatch() && match.captured(1).toInt() > 0 && match.captured(2).toInt() > 0)
            m_picture = {match.captured(3).toInt(), match.captured(4).toInt(), match.captured(1).toInt(),
                         match.captured(2).toInt()};
    }
}

MediaTrack::FieldOrder PictureScan::fieldOrder() const
{
    using enum MediaTrack::FieldOrder;
    const int enough = (m_topFirst + m_bottomFirst + m_progressive + m_undetermined) * 9 / 10;
    if (m_topFirst > enough && m_bottomFirst == 0)
        return TopFirst;
    if (m_bottomFirst > enough && m_topFirst == 0)
        return BottomFirst;
    return m_progressive > enough ? Progressive : Unknown;
}

}  // namespace kestrel
