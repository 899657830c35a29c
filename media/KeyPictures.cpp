#include "KeyPictures.h"

#include "MediaProber.h"

#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr double sameTime = 0.002;   // clocks of files count milliseconds
constexpr double longestGroup = 30;  // seconds from one to the next, as encoders make them

}  // namespace

KeyPictures::KeyPictures(const MediaInformation &film) : m_start(film.start) {}

ToolCommand KeyPictures::command(const QString &proberPath, const QString &argument, const MediaInformation &film,
                                 std::optional<double> seconds)
{
    const MediaTrack *video = film.firstOf(MediaTrack::Kind::Video);
    QStringList arguments = QStringList{u"-v"_s, u"error"_s} + inputOptions();
    arguments << u"-select_streams"_s << (video ? QString::number(video->index) : u"V:0"_s) << u"-show_entries"_s
              << u"packet=pts_time,dts_time,flags"_s << u"-of"_s << u"csv=p=0"_s;
    if (seconds) {
        constexpr double pastIt = 1;  // pictures stand in another order than they are seen
        const auto text = [&film](double time) { return QString::number(film.start + time, 'f', 3); };
        const QString from = *seconds > longestGroup ? text(*seconds - longestGroup) : QString();
        arguments << u"-read_intervals"_s << from + u'%' + text(*seconds + pastIt);
    }
    return {.program = proberPath, .arguments = arguments << u"-i"_s << argument, .timeLimit = std::chrono::minutes(2)};
}

/// "12.040000,11.960000,K__"; a time that is not there is "N/A".
bool KeyPictures::readLine(const QByteArray &line)
{
    const QList<QByteArray> parts = line.split(',');
    bool isNumber = false;
    double time = parts.value(0).toDouble(&isNumber);
    if (!isNumber)
        time = parts.value(1).toDouble(&isNumber);
    if (!isNumber || m_times.size() >= mostKept)
        return false;
    time = std::max(0.0, time - m_start);
    m_reach = std::max(m_reach, time);
    const bool isKey = parts.value(2).startsWith('K');
    if (isKey)
        m_times.append(time);
    return isKey;
}

void KeyPictures::finish()
{
    m_reach = std::numeric_limits<double>::infinity();
}

std::optional<double> KeyPictures::atOrBefore(double seconds) const
{
    std::optional<double> found;
    for (const double time : m_times) {
        if (time <= seconds + sameTime && time >= found.value_or(0))
            found = time;
    }
    return seconds <= m_reach + sameTime ? found : std::nullopt;
}

std::optional<double> KeyPictures::after(double seconds) const
{
    std::optional<double> found;
    for (const double time : m_times) {
        if (time > seconds + sameTime && (!found || time < *found))
            found = time;
    }
    return found;
}

double copyStart(const MediaInformation &film, double keyPicture)
{
    if (keyPicture <= 0)
        return 0;
    // Without an index it begins at the next one.
    for (const QStringView format : {u"mpegts", u"mpeg"}) {
        if (film.format == format)
            return keyPicture - sameTime / 2;
    }
    // Where pictures are reordered it seeks to 0.13 s before what it is told, in case the index has their other times.
    constexpr double reorderedBy = 0.14;
    const MediaTrack *video = film.firstOf(MediaTrack::Kind::Video);
    return keyPicture + (video && video->isReordered ? reorderedBy : 0);
}

}  // namespace kestrel
