#pragma once

#include <QtGlobal>

#include <array>
#include <optional>
#include <span>

namespace kestrel::disc {

inline constexpr qsizetype sectorBytes = 2048;
inline constexpr qint64 ticksPerSecond = 90000;

using Sector = std::span<uchar, sectorBytes>;

/// One packet of an elementary stream within a pack. Its spans point into the sector.
struct Packet {
    /// As ffmpeg counts: 0x1e0 for the picture, 0x1c0 for MPEG sound, 0x80 and the like for what is private.
    int streamId = 0;
    bool isScrambled = false;
    std::optional<qint64> pts, dts;  ///< ticks of 90 kHz, 33 bits
    std::span<uchar> header;         ///< from the start code up to the payload
    std::span<uchar> payload;        ///< without the header of a substream

    bool isPicture() const { return streamId >= 0x1e0; }
    bool isSubtitle() const { return streamId >= 0x20 && streamId < 0x40; }
    bool isSound() const { return !isPicture() && !isSubtitle(); }
};

/// The packets of one sector: few, as a sector is one pack.
struct Packets {
    std::array<Packet, 8> items;
    int count = 0;

    auto begin() { return items.begin(); }
    auto end() { return items.begin() + count; }
};

/// Whether a sector is one of an MPEG-2 program stream.
bool isPack(Sector sector);

/// None where it is no pack of an MPEG-2 program stream. Whatever the bytes are, nothing is read beyond the sector.
Packets packetsOf(Sector sector);

/// Gives the packet's stream another number of its kind.
void setStream(Packet &packet, int streamId);

/// Sets the clocks of a sector anew, those of a navigation pack too: `move` ticks later. What would come before 0 is at
/// 0.
void moveClocks(Sector sector, qint64 move);

/// The clock of the pack itself never runs back: where two pieces of film meet, the second is stored before the first
/// has been played. `last` is that of the pack before.
void keepPackClockAhead(Sector sector, std::optional<qint64> &last);

/// What the first pack of each video object unit (about half a second) tells.
struct Navigation {
    quint32 startTime = 0;          ///< of its first picture, ticks of 90 kHz
    quint32 endTime = 0;            ///< of its last picture's end
    quint32 lastSector = 0;         ///< of the unit, counted from this one
    quint32 firstPictureEnd = 0;    ///< last sector of its first whole picture, counted from this one
    std::optional<quint32> next{};  ///< sectors to the next unit of the same cell and angle; nothing at the cell's end
    int vob = 0;
    int cell = 0;
};

/// Nothing where it is no navigation pack.
std::optional<Navigation> navigationOf(Sector sector);

}  // namespace kestrel::disc
