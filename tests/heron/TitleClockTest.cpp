#include "helpers/heron/Pack.h"
#include "helpers/heron/TitleClock.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

using namespace kestrel::disc;

namespace {

using Before = TitleClock::Before;

Navigation unit(quint32 start, quint32 end)
{
    return {.startTime = start, .endTime = end};
}

TEST(TitleClock, StandsBetweenCells)
{
    for (const quint32 next : {45000u, 0u}) {
        TitleClock clock;
        clock.enter(unit(0, 45000), Before::Everything);
        clock.stand(90000);
        clock.enter(unit(next, next + 45000), Before::Everything);
        EXPECT_EQ(clock.start(), 135000) << next;
        EXPECT_EQ(clock.end(), 180000);
    }
}

TEST(TitleClock, GoesOnWhereAnotherClockBegins)
{
    TitleClock clock(100);
    struct {
        const char *name;
        Navigation unit;
        Before before;
        qint64 start, joints;
    } const rows[] = {
        {"first", unit(5000, 50000), Before::Everything, 100, 0},
        {"same clock", unit(50000, 95000), Before::Everything, 45100, 0},
        {"rounded", unit(95002, 140000), Before::Everything, 90102, 0},
        {"clock begins again", unit(300, 45300), Before::Everything, 135100, 1},
        {"cell left out", unit(90300, 135300), Before::Everything, 180100, 2},
        {"sectors lost", unit(180300, 225300), Before::Loss, 270100, 2},
        {"sectors lost before a new clock", unit(0, 45000), Before::Loss, 315100, 3},
        {"nonsense", unit(45000, 4000000000), Before::Everything, 360100, 3},
        {"after nonsense", unit(90000, 135000), Before::Everything, 360100, 4},
    };
    for (const auto &row : rows) {
        clock.enter(row.unit, row.before);
        EXPECT_EQ(clock.start(), row.start) << row.name;
        EXPECT_EQ(clock.start(), row.unit.startTime + clock.move()) << row.name;
        EXPECT_EQ(clock.joints(), row.joints) << row.name;
    }
}

// A pack with a packet of sound at 0x123456789 ticks.
std::array<uchar, sectorBytes> soundPack()
{
    std::array<uchar, sectorBytes> sector = {0,    0,    1, 0xba, 0x44, 0,    4,    0,    4,    1,    1, 0x89,
                                             0xc3, 0xf8, 0, 0,    1,    0xbd, 0x07, 0xec, 0x81, 0x80, 5};
    const qint64 time = 0x123456789;
    sector[23] = static_cast<uchar>(0x21 | (time >> 30 & 7) << 1);
    sector[24] = static_cast<uchar>(time >> 22);
    sector[25] = static_cast<uchar>((time >> 15 & 0x7f) << 1 | 1);
    sector[26] = static_cast<uchar>(time >> 7);
    sector[27] = static_cast<uchar>((time & 0x7f) << 1 | 1);
    sector[28] = 0x80;
    return sector;
}

TEST(Pack, MovesItsClocks)
{
    auto sector = soundPack();
    Packets packets = packetsOf(sector);
    ASSERT_EQ(packets.count, 1);
    EXPECT_EQ(packets.items[0].streamId, 0x80);
    EXPECT_EQ(packets.items[0].pts, 0x123456789);
    EXPECT_EQ(packets.items[0].payload.size(), 0x7ec - 8 - 4u);
    moveClocks(sector, -0x23456789);
    EXPECT_EQ(packetsOf(sector).items[0].pts, 0x100000000);
    moveClocks(sector, -0x1ffffffff);
    EXPECT_EQ(packetsOf(sector).items[0].pts, 0);
    EXPECT_TRUE(isPack(sector));
}

TEST(Pack, StaysWithinItsSectorWhateverItHolds)
{
    std::minstd_rand random(7);
    for (int round = 0; round < 20000; ++round) {
        auto sector = soundPack();
        for (int i = 0; i < 12; ++i)
            sector[4 + random() % 60] = static_cast<uchar>(random());
        for (const Packet &packet : packetsOf(sector)) {
            EXPECT_GE(packet.payload.data(), sector.data());
            EXPECT_LE(packet.payload.data() + packet.payload.size(), sector.data() + sector.size());
        }
        moveClocks(sector, 5000);
    }
}

}  // namespace
