#pragma once

#include <cstdint>

namespace kestrel::frames {

/// Which of the pictures that come are handed on: on the average no more than `rate` a second, and each as soon as it
/// comes where they come no faster. Times are nanoseconds of a clock that only goes forwards.
class FramePace {
public:
    explicit FramePace(double rate) : m_interval(int64_t(1e9 / rate)) {}

    /// When the next picture may go.
    int64_t due() const { return m_due; }
    /// Whether one may go now; then the next is due later.
    bool take(int64_t now)
    {
        if (now < m_due - m_interval / tolerance)
            return false;
        const bool isLate = now > m_due + m_interval;
        m_due = (isLate ? now : m_due) + m_interval;
        return true;
    }

private:
    static constexpr int tolerance = 4;  ///< of an interval: screens are not as regular as they say
    int64_t m_interval;
    int64_t m_due = 0;
};

}  // namespace kestrel::frames
