#include "TitleClock.h"

#include <cstdlib>

namespace kestrel::disc {

namespace {

// Times of pictures are rounded: this much is the same clock.
constexpr qint64 roundingTicks = 10;
// No unit is longer, whatever it says: half a second is usual, a still picture may take some seconds.
constexpr qint64 longestUnit = 20 * ticksPerSecond;
// The longest loss that is believed; above that it is a clock of its own.
constexpr qint64 longestLoss = 600 * ticksPerSecond;

}  // namespace

void TitleClock::enter(const Navigation &unit, Before before)
{
    const qint64 start = unit.startTime;
    const qint64 step = start - m_sourceEnd;
    const bool isLoss = before == Before::Loss && step > 0 && step < longestLoss;
    if (!m_hasBegun) {
        m_move = m_end - start;
    } else if (std::abs(step) > roundingTicks && !isLoss) {
        m_move = m_end - start;
        ++m_joints;
    }
    m_hasBegun = true;
    m_start = start + m_move;
    const qint64 length = qint64(unit.endTime) - start;
    m_sourceEnd = start + (length > 0 && length <= longestUnit ? length : 0);
    m_end = m_sourceEnd + m_move;
}

void TitleClock::stand(qint64 ticks)
{
    m_move += ticks;
    m_end += ticks;
}

}  // namespace kestrel::disc
