#include "Pack.h"

#include <algorithm>

namespace kestrel::disc {

namespace {

// Of a navigation pack.
constexpr qsizetype presentation = 0x26, search = 0x400;
constexpr qsizetype presentationData = presentation + 7;

constexpr qint64 clockMask = (qint64(1) << 33) - 1;

// Streams that are packets of film; the others (padding, navigation, system headers) have no such header.
constexpr uchar privateStream = 0xbd;
bool isFilmStream(uchar id)
{
    return id == privateStream || (id >= 0xc0 && id <= 0xef);
}

quint32 number(Sector sector, qsizetype at, int bytes)
{
    quint32 value = 0;
    for (int i = 0; i < bytes; ++i)
        value = value << 8 | sector[at + i];
    return value;
}

void writeNumber(Sector sector, qsizetype at, quint32 value)
{
    for (int i = 3; i >= 0; --i, value >>= 8)
        sector[at + i] = static_cast<uchar>(value);
}

bool isStartCode(Sector sector, qsizetype at)
{
    return at + 4 <= sectorBytes && number(sector, at, 3) == 1;
}

qint64 readClock(const uchar *at)
{
    return qint64(at[0] >> 1 & 7) << 30 | qint64(at[1]) << 22 | qint64(at[2] >> 1) << 15 | qint64(at[3]) << 7 |
           at[4] >> 1;
}

void writeClock(uchar *at, qint64 value)
{
    value = std::clamp<qint64>(value, 0, clockMask);
    at[0] = static_cast<uchar>((at[0] & 0xf1) | (value >> 30 & 7) << 1);
    at[1] = static_cast<uchar>(value >> 22);
    at[2] = static_cast<uchar>((value >> 15 & 0x7f) << 1 | 1);
    at[3] = static_cast<uchar>(value >> 7);
    at[4] = static_cast<uchar>((value & 0x7f) << 1 | 1);
}

// The clock of the pack itself: 33 bits with marks between them, then 9 bits of 27 MHz, which stay.
qint64 readPackClock(const uchar *at)
{
    return qint64(at[0] >> 3 & 7) << 30 | qint64(at[0] & 3) << 28 | qint64(at[1]) << 20 | qint64(at[2] >> 3) << 15 |
           qint64(at[2] & 3) << 13 | qint64(at[3]) << 5 | at[4] >> 3;
}

void writePackClock(uchar *at, qint64 value)
{
    value = std::clamp<qint64>(value, 0, clockMask);
    at[0] = static_cast<uchar>(0x44 | (value >> 30 & 7) << 3 | (value >> 28 & 3));
    at[1] = static_cast<uchar>(value >> 20);
    at[2] = static_cast<uchar>((value >> 15 & 0x1f) << 3 | 4 | (value >> 13 & 3));
    at[3] = static_cast<uchar>(value >> 5);
    at[4] = static_cast<uchar>((value & 0x1f) << 3 | (at[4] & 7));
}

// Bytes of the header that each kind of private substream has behind its number.
qsizetype substreamHeader(uchar substream)
{
    if (substream >= 0xa0 && substream < 0xb0)
        return 7;
    return substream >= 0x80 ? 4 : 1;
}

std::optional<Packet> packetAt(Sector sector, qsizetype at, qsizetype end)
{
    if (end - at < 9 || (sector[at + 6] & 0xc0) != 0x80)
        return std::nullopt;
    const qsizetype payload = at + 9 + sector[at + 8];
    if (payload > end)
        return std::nullopt;
    Packet packet;
    packet.isScrambled = sector[at + 6] & 0x30;
    const int clocks = sector[at + 7] >> 6;
    if (clocks >= 2 && payload - at >= 14)
        packet.pts = readClock(&sector[at + 9]);
    if (clocks == 3 && payload - at >= 19)
        packet.dts = readClock(&sector[at + 14]);
    packet.header = sector.subspan(at, payload - at);
    packet.payload = sector.subspan(payload, end - payload);
    const uchar id = sector[at + 3];
    packet.streamId = 0x100 | id;
    if (id == privateStream) {
        if (packet.payload.empty())
            return std::nullopt;
        packet.streamId = packet.payload[0];
        const auto skipped = std::min<size_t>(substreamHeader(packet.payload[0]), packet.payload.size());
        packet.payload = packet.payload.subspan(skipped);
    }
    return packet;
}

}  // namespace

bool isPack(Sector sector)
{
    return number(sector, 0, 4) == 0x1ba && (sector[4] & 0xc0) == 0x40;
}

Packets packetsOf(Sector sector)
{
    Packets packets;
    if (!isPack(sector))
        return packets;
    qsizetype at = 14 + (sector[13] & 7);
    while (isStartCode(sector, at) && at + 6 <= sectorBytes && packets.count < static_cast<int>(packets.items.size())) {
        const qsizetype end = at + 6 + number(sector, at + 4, 2);
        if (end > sectorBytes)
            break;
        if (isFilmStream(sector[at + 3]))
            if (const auto packet = packetAt(sector, at, end))
                packets.items[packets.count++] = *packet;
        at = end;
    }
    return packets;
}

void setStream(Packet &packet, int streamId)
{
    // Private streams have theirs in front of the payload, behind the header.
    uchar *header = packet.header.data();
    (header[3] == privateStream ? header[packet.header.size()] : header[3]) = static_cast<uchar>(streamId);
    packet.streamId = streamId;
}

void moveClocks(Sector sector, qint64 move)
{
    if (!isPack(sector))
        return;
    if (navigationOf(sector)) {
        constexpr qsizetype startTime = presentationData + 12, endTime = presentationData + 16;
        constexpr qsizetype endOfSequence = presentationData + 20;  // 0 where there is none
        for (const qsizetype at : {startTime, endTime, endOfSequence}) {
            const quint32 time = number(sector, at, 4);
            if (at != endOfSequence || time != 0)
                writeNumber(sector, at, static_cast<quint32>(std::max<qint64>(0, time + move)));
        }
    }
    writePackClock(&sector[4], readPackClock(&sector[4]) + move);
    for (Packet &packet : packetsOf(sector)) {
        if (packet.pts)
            writeClock(&packet.header[9], *packet.pts + move);
        if (packet.dts)
            writeClock(&packet.header[14], *packet.dts + move);
    }
}

void keepPackClockAhead(Sector sector, std::optional<qint64> &last)
{
    constexpr qint64 ticksOfPack = 146;  // at the highest rate
    if (!isPack(sector))
        return;
    qint64 clock = readPackClock(&sector[4]);
    if (last && clock < *last) {
        clock = *last + ticksOfPack;
        writePackClock(&sector[4], clock);
    }
    last = clock;
}

std::optional<Navigation> navigationOf(Sector sector)
{
    if (!isPack(sector) || number(sector, presentation, 4) != 0x1bf || sector[presentation + 6] != 0 ||
        number(sector, search, 4) != 0x1bf || sector[search + 6] != 1)
        return std::nullopt;
    constexpr qsizetype searchData = search + 7;
    constexpr quint32 endOfCell = 0x3fffffff;

    Navigation navigation;
    navigation.startTime = number(sector, presentationData + 12, 4);
    navigation.endTime = number(sector, presentationData + 16, 4);
    navigation.lastSector = number(sector, searchData + 8, 4);
    navigation.firstPictureEnd = number(sector, searchData + 12, 4);
    navigation.vob = static_cast<int>(number(sector, searchData + 24, 2));
    navigation.cell = sector[searchData + 27];
    const quint32 next = number(sector, searchData + 314, 4) & endOfCell;
    if (next != endOfCell)
        navigation.next = next;
    return navigation;
}

}  // namespace kestrel::disc
