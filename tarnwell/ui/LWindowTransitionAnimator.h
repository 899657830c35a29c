#pragma once

#include <QObject>
#include <QPointer>
#include <QVariantAnimation>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

class QWidget;

namespace kestrel::tarnwell {

class TransitionGhost;

/// Zooms from one window to another: a picture of the smaller one grows into the larger (or the other way round) while
/// it fades over. One transition runs at a time; one that is asked for meanwhile ends the running one first, callback
/// included.
class LWindowTransitionAnimator : public QObject {
    Q_OBJECT
public:
    LWindowTransitionAnimator();
    ~LWindowTransitionAnimator() override;
    static LWindowTransitionAnimator &sharedAnimator();

    /// Shows `to` and hides `from` when the animation has ended, then calls `finishedCallback`. Takes about 0.25 s; no
    /// time where the desktop asks for reduced motion or `from` is not on screen. Where a window goes meanwhile, the
    /// rest still happens. `isZoomIn` is the way back: the picture of `from` shrinks into `to`.
    void zoomFromWindow(QWidget *from, QWidget *to, bool isZoomIn, std::function<void()> finishedCallback);
    /// Ends the running transition now, callback included.
    void finishRunning();
    bool isRunning() const { return m_transition.has_value(); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Transition {
        QPointer<QWidget> from;
        QPointer<QWidget> to;
        std::function<void()> finishedCallback;
    };

    void step(double progress);
    void finish();
    void dropGhostWhenPainted(QWidget *window);
    void dropGhostAfter(std::chrono::milliseconds delay);

    std::optional<Transition> m_transition;
    std::unique_ptr<TransitionGhost> m_ghost;
    QVariantAnimation m_animation;
};

}  // namespace kestrel::tarnwell
