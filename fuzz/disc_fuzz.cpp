// Whatever a sector holds, its packets lie within it and are as many once its clocks were moved; what a tool tells of a
// disc reads back as it was read.

#include "Require.h"
#include "helpers/heron/DiscContents.h"
#include "helpers/heron/Pack.h"
#include "helpers/heron/TitleClock.h"

#include <QJsonDocument>

#include <algorithm>
#include <array>

using namespace kestrel::disc;

namespace {

bool isWithin(std::span<uchar> part, Sector sector)
{
    return part.empty() || (part.data() >= sector.data() && part.data() + part.size() <= sector.data() + sector.size());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    TitleClock clock;
    std::optional<qint64> last;
    std::array<uchar, sectorBytes> bytes = {};
    const Sector sector(bytes);
    for (size_t at = 0; at < size; at += sectorBytes) {
        bytes.fill(0);
        std::copy_n(data + at, std::min(bytes.size(), size - at), bytes.begin());
        Packets packets = packetsOf(sector);
        for (const Packet &packet : packets)
            require(isWithin(packet.header, sector) && isWithin(packet.payload, sector));
        if (const auto unit = navigationOf(sector)) {
            clock.enter(*unit, at % 2 ? TitleClock::Before::Loss : TitleClock::Before::Everything);
            require(clock.joints() >= 0);
        }
        moveClocks(sector, clock.move());
        keepPackClockAhead(sector, last);
        require(packetsOf(sector).count == packets.count);
    }
    const auto contents = discContentsFromJson(QJsonDocument::fromJson(fuzzInput(data, size)).object());
    if (contents) {
        const QJsonObject told = toJson(*contents);
        const auto again = discContentsFromJson(told);
        require(again && toJson(*again) == told);
    }
    return 0;
}
