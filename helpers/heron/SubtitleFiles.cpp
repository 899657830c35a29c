#include "SubtitleFiles.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace kestrel::disc {

namespace {

QByteArray timeText(qint64 ticks)
{
    const qint64 milliseconds = std::max<qint64>(0, ticks) / 90;
    return u"%1:%2:%3:%4"_s.arg(milliseconds / 3600000, 2, 10, QLatin1Char('0'))
        .arg(milliseconds / 60000 % 60, 2, 10, QLatin1Char('0'))
        .arg(milliseconds / 1000 % 60, 2, 10, QLatin1Char('0'))
        .arg(milliseconds % 1000, 3, 10, QLatin1Char('0'))
        .toLatin1();
}

}  // namespace

SubtitleFiles::SubtitleFiles(const QString &prefix, const DiscTitle &title, qint64 zero)
    : m_title(title),
      m_zero(zero),
      m_pictures(prefix + u".sub"_s),
      m_index(prefix + u".idx"_s)
{
    for (const DiscSubtitle &track : title.subtitles)
        m_tracks[track.streamId];
}

bool SubtitleFiles::open()
{
    return m_pictures.open(QIODevice::WriteOnly) && m_index.open(QIODevice::WriteOnly);
}

bool SubtitleFiles::add(Sector sector, const Packet &packet)
{
    const auto found = m_tracks.find(packet.streamId);
    if (found == m_tracks.end())
        return true;
    Track &track = found->second;
    const qint64 size = static_cast<qint64>(packet.payload.size());
    // Its first packet has the time, and the size of the whole in its first two bytes.
    if (packet.pts && size >= 4) {
        track.bytesLeft = packet.payload[0] << 8 | packet.payload[1];
        track.entries += "timestamp: " + timeText(*packet.pts - m_zero) +
                         ", filepos: " + QByteArray::number(m_pictures.pos(), 16).rightJustified(9, '0') + '\n';
        ++track.count;
    } else if (track.bytesLeft <= 0) {
        return true;  // the end of one whose beginning is not here
    }
    track.bytesLeft -= size;
    return m_pictures.write(reinterpret_cast<const char *>(sector.data()), sectorBytes) == sectorBytes;
}

bool SubtitleFiles::close()
{
    QByteArray text = "# VobSub index file, v7 (do not modify this line!)\n";
    text += m_title.subtitles.isEmpty() ? QByteArray()
                                        : m_title.subtitles.first().codecData(m_title.width, m_title.height).toLatin1();
    for (const DiscSubtitle &track : m_title.subtitles) {
        const QString language = track.language.isEmpty() ? u"--"_s : track.language;
        // By the number that its packets have. Two tracks of one number are the first of them only.
        text += u"\nid: %1, index: %2\n"_s.arg(language).arg(track.streamId & 0x1f).toLatin1() +
                std::exchange(m_tracks[track.streamId].entries, {});
    }
    return m_index.write(text) == text.size() && m_index.flush() && m_pictures.flush();
}

int SubtitleFiles::count() const
{
    int sum = 0;
    for (const auto &[stream, track] : m_tracks)
        sum += track.count;
    return sum;
}

}  // namespace kestrel::disc
