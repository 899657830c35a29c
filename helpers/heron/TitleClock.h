#pragma once

#include "Pack.h"

namespace kestrel::disc {

/// One clock for a title whose pieces each have their own: the pieces follow each other without gap or overlap, by the
/// times of their pictures. Ticks of 90 kHz.
class TitleClock {
public:
    enum class Before {
        Everything,  ///< what precedes the unit was read
        Loss,        ///< some of it could not be: a step forward is the missing part, not another clock
    };

    /// `lead`: what of the streams lies before the first picture.
    explicit TitleClock(qint64 lead = 0) : m_end(lead) {}

    /// The next unit, in play order.
    void enter(const Navigation &unit, Before before);

    /// The picture that the last unit ended with stands for so long before the next.
    void stand(qint64 ticks);

    bool hasBegun() const { return m_hasBegun; }
    qint64 move() const { return m_move; }    ///< to be added to the times of this unit
    qint64 start() const { return m_start; }  ///< of this unit
    qint64 end() const { return m_end; }
    int joints() const { return m_joints; }  ///< how often another clock began

private:
    bool m_hasBegun = false;
    qint64 m_move = 0, m_start = 0, m_end = 0;
    qint64 m_sourceEnd = 0;
    int m_joints = 0;
};

}  // namespace kestrel::disc
