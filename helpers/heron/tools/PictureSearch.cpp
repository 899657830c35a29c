#include "PictureSearch.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace kestrel::disc {

namespace {

constexpr int sectorsOfUnit = 1200;  // more than a unit of a second has at the highest rate
constexpr char pictureCode = 0x00, extensionCode = '\xb5';

// Calls back with the position behind each start code and its number.
template <typename Callback>
void forStartCodes(const QByteArray &video, Callback callback)
{
    static const QByteArray prefix("\0\0\1", 3);
    for (qsizetype at = video.indexOf(prefix); at >= 0 && at + 4 <= video.size(); at = video.indexOf(prefix, at + 3))
        if (!callback(at + 4, video[at + 3]))
            return;
}

bool isPictureExtension(const QByteArray &video, qsizetype at, char code)
{
    return code == extensionCode && at + 5 <= video.size() && (video[at] & 0xf0) == 0x80;
}

// Ends before the second picture; of pictures that are stored as two fields, before the third.
QByteArray onePicture(QByteArray video)
{
    int pictures = 0, wanted = 1;
    qsizetype end = -1;
    forStartCodes(video, [&](qsizetype at, char code) {
        if (pictures == 1 && isPictureExtension(video, at, code) && (video[at + 2] & 3) != 3)
            wanted = 2;
        if (code == pictureCode && ++pictures > wanted)
            end = at - 4;
        return end < 0;
    });
    if (pictures == 0)
        return {};
    if (end >= 0)
        video.truncate(end);
    return video + QByteArray("\0\0\1\xb7", 4);
}

}  // namespace

void PictureFlags::count(const QByteArray &video)
{
    forStartCodes(video, [&](qsizetype at, char code) {
        if (isPictureExtension(video, at, code)) {
            ++pictures;
            repeating += (video[at + 3] & 2) != 0;
            progressive += (video[at + 4] & 0x80) != 0;
        }
        return true;
    });
}

QByteArray videoAt(FilmFile &film, quint32 first, int count)
{
    std::vector<uchar> sectors(static_cast<size_t>(count) * sectorBytes);
    const int came = film.read(first, count, sectors.data());
    QByteArray video;
    for (int i = 0; i < came; ++i)
        for (const Packet &packet : packetsOf(Sector(&sectors[i * sectorBytes], sectorBytes)))
            if (packet.isPicture() && !packet.isScrambled)
                video.append(reinterpret_cast<const char *>(packet.payload.data()),
                             static_cast<qsizetype>(packet.payload.size()));
    return video;
}

QByteArray pictureAt(FilmFile &film, quint32 sector)
{
    constexpr int stride = 64;
    std::vector<uchar> sectors(stride * sectorBytes);
    for (int read = 0; read < sectorsOfUnit; read += stride) {
        const int came = film.read(sector + read, stride, sectors.data());
        for (int i = 0; i < came; ++i) {
            const auto unit = navigationOf(Sector(&sectors[i * sectorBytes], sectorBytes));
            if (!unit || !unit->firstPictureEnd)
                continue;
            const int count = static_cast<int>(std::min<quint32>(unit->firstPictureEnd, sectorsOfUnit));
            return onePicture(videoAt(film, sector + read + i + 1, count));
        }
    }
    return {};
}

quint32 placeBefore(const QList<TitleCell> &cells, double share)
{
    const quint32 place = placesIn(cells, {std::min(share, 0.9999)}).value(0);
    const auto cell = std::find_if(cells.begin(), cells.end(), [place](const TitleCell &each) {
        return place >= each.firstSector && place <= each.lastSector;
    });
    if (cell == cells.end())
        return place;
    return std::max<quint32>(cell->firstSector, place - std::min<quint32>(place, sectorsOfUnit));
}

QList<quint32> placesIn(const QList<TitleCell> &cells, const QList<double> &shares)
{
    qint64 all = 0;
    for (const TitleCell &cell : cells)
        all += qint64(cell.lastSector) - cell.firstSector + 1;
    QList<quint32> places;
    for (const double share : shares) {
        qint64 left = static_cast<qint64>(share * static_cast<double>(all));
        for (const TitleCell &cell : cells) {
            const qint64 length = qint64(cell.lastSector) - cell.firstSector + 1;
            if (left < length) {
                places.append(cell.firstSector + static_cast<quint32>(left));
                break;
            }
            left -= length;
        }
    }
    return places;
}

}  // namespace kestrel::disc
