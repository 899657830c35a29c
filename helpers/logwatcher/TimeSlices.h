#pragma once

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QTimerEvent>

#include <functional>

namespace kestrel {

/// Long work on the event loop's own thread, a few milliseconds a turn, so that the window stays awake and nothing has
/// to be locked.
class TimeSlices : public QObject {
public:
    /// `step` does a part of about a millisecond; false once there is no more to do.
    explicit TimeSlices(std::function<bool()> step) : m_step(std::move(step)) {}

    void start() { m_timer.start(0, this); }
    void stop() { m_timer.stop(); }
    bool isRunning() const { return m_timer.isActive(); }

protected:
    void timerEvent(QTimerEvent *) override
    {
        QElapsedTimer elapsed;
        elapsed.start();
        while (m_timer.isActive() && elapsed.elapsed() < sliceMs) {
            if (!m_step())
                m_timer.stop();
        }
    }

private:
    static constexpr qint64 sliceMs = 8;

    std::function<bool()> m_step;
    QBasicTimer m_timer;
};

}  // namespace kestrel
