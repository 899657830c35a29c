#include "TitleReading.h"

#include <algorithm>
#include <utility>

namespace kestrel::disc {

namespace {

constexpr int sectorsAtOnce = 256;
constexpr int attempts = 2;

}  // namespace

bool TitleReading::read(const TitleCell &cell, const Visit &visit)
{
    m_buffer.resize(sectorsAtOnce * sectorBytes);
    if (cell.isInterleaved)
        return readInterleaved(cell, visit);
    return readRun(cell.firstSector, cell.lastSector, visit);
}

bool TitleReading::readRun(qint64 first, qint64 last, const Visit &visit)
{
    int lostBlocks = 0;
    int failures = 0;
    for (qint64 at = first; at <= last;) {
        const int size = failures ? sectorsOfBlock : sectorsAtOnce;
        const int wanted = static_cast<int>(std::min<qint64>(size, last - at + 1));
        const int came = m_film.read(static_cast<quint32>(at), wanted, m_buffer.data());
        if (m_film.isGone())
            return false;
        if (came == 0 && ++failures <= attempts)
            continue;
        if (came == 0) {
            const bool isHopeless = at >= m_film.sectors() || ++lostBlocks >= hopelessBlocks;
            const qint64 lost = isHopeless ? last - at + 1 : wanted;
            m_lost += lost;
            m_afterLoss = true;
            failures = 1;
            at += lost;
            continue;
        }
        for (int i = 0; i < came; ++i) {
            if (!visit(Sector(&m_buffer[i * sectorBytes], sectorBytes), m_afterLoss))
                return false;
            m_afterLoss = false;
        }
        lostBlocks = 0;
        failures = came == wanted && failures == 0 ? 0 : std::max(0, failures - 1);
        at += came;
    }
    return true;
}

// From unit to unit of the same angle. What stands between belongs to the others, whose units are also met where one of
// its own is lost.
bool TitleReading::readInterleaved(const TitleCell &cell, const Visit &visit)
{
    std::pair own(cell.vob, cell.number);
    int lostBlocks = 0;
    for (qint64 at = cell.firstSector; at <= cell.lastSector;) {
        const int came = m_film.read(static_cast<quint32>(at), 1, m_buffer.data());
        if (m_film.isGone())
            return false;
        const auto unit = came ? navigationOf(Sector(m_buffer.data(), sectorBytes)) : std::nullopt;
        if (!unit) {
            // Until the next unit begins
            const qint64 left = cell.lastSector - at + 1, block = came ? 1 : std::min<qint64>(sectorsOfBlock, left);
            lostBlocks = came ? 0 : lostBlocks + 1;
            const qint64 lost = lostBlocks < hopelessBlocks ? block : left;
            m_lost += lost;
            m_afterLoss = true;
            at += lost;
            continue;
        }
        lostBlocks = 0;
        if (at == cell.firstSector || own == std::pair(0, 0))
            own = {unit->vob, unit->cell};
        if (own != std::pair(unit->vob, unit->cell)) {
            at += unit->lastSector + 1;
            continue;
        }
        if (!readRun(at, std::min<qint64>(at + unit->lastSector, cell.lastSector), visit))
            return false;
        if (!unit->next || *unit->next == 0)
            break;
        at += *unit->next;
    }
    return true;
}

}  // namespace kestrel::disc
