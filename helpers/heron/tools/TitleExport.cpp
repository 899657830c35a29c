#include "TitleExport.h"

#include "helpers/heron/SubtitleFiles.h"

#include <QJsonArray>

#include <unistd.h>
#include <algorithm>
#include <cerrno>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace kestrel::disc {

namespace {

constexpr qsizetype bufferBytes = 1 << 20;
constexpr int milliseconds = 250;  // between two lines of progress
constexpr int leadSectors = 512;   // enough for the first packets of every track
// Sound is stored shortly before it is played, pictures long before: where a chapter begins, there is sound of what
// came before it. This much is no more than the beginning of a frame of sound.
constexpr qint64 earlySound = ticksPerSecond / 10;
constexpr int enoughScrambled = 16;  // some may be damage

double secondsOfTicks(qint64 ticks)
{
    return std::round(static_cast<double>(ticks) / ticksPerSecond * 1000) / 1000;
}

}  // namespace

TitleExport::TitleExport(ToolRun &run, const DiscTitle &title, QList<TitleCell> cells, const TitleWish &wish,
                         FilmFile film)
    : m_run(run),
      m_title(title),
      m_cells(std::move(cells)),
      m_wish(wish),
      m_reading(std::move(film))
{
    for (const TitleCell &cell : m_cells)
        m_sectors += qint64(cell.lastSector) - cell.firstSector + 1;
}

TitleExport::~TitleExport() = default;

// No time may come before 0, but the first pictures are decoded, and some sound played, before the first is shown.
void TitleExport::findLead()
{
    std::vector<uchar> sectors(leadSectors * sectorBytes);
    const TitleCell &cell = m_cells.first();
    const int wanted = static_cast<int>(std::min<qint64>(leadSectors, qint64(cell.lastSector) - cell.firstSector + 1));
    const int came = m_reading.film().read(cell.firstSector, wanted, sectors.data());
    std::optional<qint64> first, earliest, played;
    for (int i = 0; i < came; ++i) {
        const Sector sector(&sectors[i * sectorBytes], sectorBytes);
        if (const auto unit = navigationOf(sector); unit && !first)
            first = unit->startTime;
        for (const Packet &packet : packetsOf(sector)) {
            const bool isEarly = packet.isSound() && first && packet.pts < *first - earlySound;
            if (!packet.pts || packet.isSubtitle() || isEarly)
                continue;
            played = std::min(played.value_or(*packet.pts), *packet.pts);
            earliest = std::min({earliest.value_or(*packet.pts), *packet.pts, packet.dts.value_or(*packet.pts)});
        }
    }
    if (!first || !earliest)
        return;
    m_lead = std::clamp<qint64>(*first - *earliest, 0, 5 * ticksPerSecond);
    m_zero = std::max<qint64>(0, m_lead + std::min<qint64>(*played - *first, 0));
}

int TitleExport::write()
{
    findLead();
    m_clock = TitleClock(m_lead);
    if (!m_wish.subtitlePrefix.isEmpty()) {
        m_subtitles = std::make_unique<SubtitleFiles>(m_wish.subtitlePrefix, m_title, m_zero);
        if (!m_subtitles->open())
            return m_run.fail(DiscError::Write);
    }
    m_buffer.reserve(bufferBytes + sectorBytes);
    m_sinceReport.start();
    for (const TitleCell &cell : std::as_const(m_cells)) {
        const auto visit = [&](Sector sector, bool afterLoss) { return take(sector, cell, afterLoss); };
        if (!m_reading.read(cell, visit))
            return m_run.fail(m_error.value_or(m_reading.film().isGone() ? DiscError::Missing : DiscError::Write));
        // Whoever takes the navigation packs sets the cells' still times anew.
        if (m_clock.hasBegun() && !m_wish.keepsNavigation && &cell != &m_cells.constLast())
            m_clock.stand(cell.standingSeconds() * ticksPerSecond);
    }
    if (!flush() || (m_subtitles && !m_subtitles->close()))
        return m_run.fail(m_error.value_or(DiscError::Write));
    if (m_written == 0)
        return m_run.fail(DiscError::Read);
    m_run.line({{u"result"_s, result()}});
    return 0;
}

bool TitleExport::take(Sector sector, const TitleCell &cell, bool afterLoss)
{
    ++m_sectorsRead;
    // In the image of a damaged disc there are zeros for what could not be read.
    if (!isPack(sector)) {
        ++m_emptySectors;
        m_isAfterLoss = true;
        return true;
    }
    m_isAfterLoss |= afterLoss;
    if (m_sinceReport.elapsed() >= milliseconds)
        report();
    if (const auto unit = navigationOf(sector)) {
        m_clock.enter(*unit,
                      std::exchange(m_isAfterLoss, false) ? TitleClock::Before::Loss : TitleClock::Before::Everything);
        for (; m_chapter < cell.chapter; ++m_chapter)
            if (m_chapter + 1 >= m_wish.firstChapter)
                m_chapters.append(std::max(0.0, secondsOfTicks(m_clock.start() - m_zero)));
        if (!m_wish.keepsNavigation)
            return true;
        moveClocks(sector, m_clock.move());
        return append(sector);
    }
    // What stands before the first unit has no clock.
    return !m_clock.hasBegun() || takeFilm(sector);
}

bool TitleExport::takeFilm(Sector sector)
{
    Packets packets = packetsOf(sector);
    if (packets.count == 0)
        return true;  // padding, or nothing at all
    const bool isScrambled =
        std::any_of(packets.begin(), packets.end(), [](const Packet &packet) { return packet.isScrambled; });
    if (isScrambled && ++m_scrambled >= enoughScrambled)
        return giveUp(DiscError::Protected);
    const auto isWantedHere = [this](const Packet &packet) { return isWanted(packet); };
    if (std::none_of(packets.begin(), packets.end(), isWantedHere) || isSoundOfBefore(packets))
        return true;
    moveClocks(sector, m_clock.move());
    packets = packetsOf(sector);
    for (Packet &packet : packets) {
        if (m_subtitles && packet.isSubtitle() && !m_subtitles->add(sector, packet))
            return giveUp(DiscError::Write);
        if (packet.isPicture() || !isWanted(packet))
            continue;
        m_streams.insert(packet.streamId);
        if (m_wish.streams)
            setStream(packet, m_wish.streams->at(packet.streamId));
    }
    return append(sector);
}

bool TitleExport::append(Sector sector)
{
    keepPackClockAhead(sector, m_packClock);
    m_buffer.append(reinterpret_cast<const char *>(sector.data()), sectorBytes);
    return m_buffer.size() < bufferBytes || flush();
}

bool TitleExport::isWanted(const Packet &packet) const
{
    return packet.isPicture() || !m_wish.streams || m_wish.streams->contains(packet.streamId);
}

// Where two pieces meet, the sound of the first may reach into the second: what would be played at the same time, or
// before, is left out.
bool TitleExport::isSoundOfBefore(const Packets &packets)
{
    const Packet &packet = packets.items[0];
    if (packets.count != 1 || !packet.isSound() || !packet.pts)
        return false;
    const qint64 time = *packet.pts + m_clock.move();
    const auto [latest, isNew] = m_soundTimes.try_emplace(packet.streamId, m_lead - earlySound - 1);
    if (time <= latest->second) {
        ++m_repeated;
        return true;
    }
    latest->second = time;
    return false;
}

bool TitleExport::flush()
{
    const char *at = m_buffer.constData();
    qsizetype left = m_buffer.size();
    while (left > 0) {
        const ssize_t written = ::write(m_run.film(), at, static_cast<size_t>(left));
        if (written < 0 && errno != EINTR)
            return giveUp(targetErrorOf(errno));
        if (written > 0) {
            at += written;
            left -= written;
        }
    }
    m_written += m_buffer.size();
    m_buffer.clear();
    return true;
}

bool TitleExport::giveUp(DiscError error)
{
    m_error = error;
    return false;
}

void TitleExport::report()
{
    m_sinceReport.restart();
    m_run.line(
        {{u"progress"_s, static_cast<double>(m_sectorsRead) / static_cast<double>(std::max<qint64>(1, m_sectors))},
         {u"seconds"_s, secondsOfTicks(m_clock.end() - m_zero)},
         {u"bytes"_s, m_written},
         {u"lostSectors"_s, m_reading.lostSectors()}});
}

QJsonObject TitleExport::result() const
{
    QJsonArray chapters, streams;
    for (const double start : m_chapters)
        chapters.append(start);
    for (const int stream : m_streams)
        streams.append(stream);
    return {{u"bytes"_s, m_written},
            {u"seconds"_s, secondsOfTicks(m_clock.end() - m_zero)},
            {u"start"_s, secondsOfTicks(m_zero)},
            {u"chapters"_s, chapters},
            {u"streams"_s, streams},
            {u"joints"_s, m_clock.joints()},
            {u"lostSectors"_s, m_reading.lostSectors()},
            {u"emptySectors"_s, m_emptySectors},
            {u"repeatedPackets"_s, m_repeated},
            {u"subtitles"_s, m_subtitles ? m_subtitles->count() : 0}};
}

}  // namespace kestrel::disc
