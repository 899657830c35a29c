#include "LWindowTransitionAnimator.h"

#include "Motion.h"
#include "foundation/Queues.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPainter>
#include <QWidget>

#include <utility>

namespace kestrel::tarnwell {

namespace {

/// The way back is the shorter one: nobody waits to see what is already known.
constexpr int zoomInTimeMs = 200;

QRect between(const QRect &from, const QRect &to, double progress)
{
    const auto mixed = [progress](int a, int b) { return a + qRound((b - a) * progress); };
    return {mixed(from.x(), to.x()), mixed(from.y(), to.y()), mixed(from.width(), to.width()),
            mixed(from.height(), to.height())};
}

}  // namespace

/// The picture that moves: an opaque window of its own over both, out of the window manager's and the mouse's way.
class TransitionGhost : public QWidget {
public:
    TransitionGhost(QWidget *from, QWidget *to)
        : QWidget(nullptr, Qt::ToolTip | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint |
                               Qt::WindowDoesNotAcceptFocus | Qt::WindowTransparentForInput),
          m_fromPlace(from->geometry()),
          m_toPlace(to->geometry()),
          m_fromPicture(from->grab()),
          m_toPicture(to->grab())
    {
        setAttribute(Qt::WA_OpaquePaintEvent);
        setAttribute(Qt::WA_NoSystemBackground);
        setAttribute(Qt::WA_ShowWithoutActivating);
        setGeometry(m_fromPlace);
    }

    void setProgress(double progress)
    {
        m_progress = progress;
        setGeometry(between(m_fromPlace, m_toPlace, progress));
        update();
    }

    /// The part of the source window that it always covers; null where that is all of it.
    QRegion coveredPartOfSource() const
    {
        if (m_toPlace.contains(m_fromPlace))
            return {};
        return m_toPlace.intersected(m_fromPlace).translated(-m_fromPlace.topLeft());
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(rect(), m_fromPicture);
        painter.setOpacity(m_progress);
        painter.drawPixmap(rect(), m_toPicture);
    }

private:
    QRect m_fromPlace;
    QRect m_toPlace;
    QPixmap m_fromPicture;
    QPixmap m_toPicture;
    double m_progress = 0;
};

LWindowTransitionAnimator::LWindowTransitionAnimator()
{
    m_animation.setStartValue(0.0);
    m_animation.setEndValue(1.0);
    m_animation.setEasingCurve(QEasingCurve::OutCubic);
    connect(&m_animation, &QVariantAnimation::valueChanged, this,
            [this](const QVariant &value) { step(value.toDouble()); });
    connect(&m_animation, &QAbstractAnimation::finished, this, &LWindowTransitionAnimator::finish);
}

LWindowTransitionAnimator::~LWindowTransitionAnimator() = default;

LWindowTransitionAnimator &LWindowTransitionAnimator::sharedAnimator()
{
    // It goes with the application object, which its animation and its window need to their end.
    static std::unique_ptr<LWindowTransitionAnimator> animator;
    if (!animator) {
        animator.reset(new LWindowTransitionAnimator);
        qAddPostRoutine([] { animator.reset(); });
    }
    return *animator;
}

void LWindowTransitionAnimator::zoomFromWindow(QWidget *from, QWidget *to, bool isZoomIn,
                                               std::function<void()> finishedCallback)
{
    finishRunning();
    m_transition = Transition{from, to, std::move(finishedCallback)};
    const bool canMove = from && to && from != to && from->isVisible() && !from->isMinimized();
    if (!canMove || reducedMotion()) {
        finish();
        return;
    }
    m_ghost = std::make_unique<TransitionGhost>(from, to);
    m_ghost->show();
    m_animation.setDuration(isZoomIn ? zoomInTimeMs : motionTimeMs);
    m_animation.start();
}

void LWindowTransitionAnimator::finishRunning()
{
    while (isRunning())  // the callback may have begun another
        finish();
}

void LWindowTransitionAnimator::step(double progress)
{
    if (!m_transition || !m_ghost || progress <= 0)
        return;
    // A picture that shrinks would bare the window it was taken of. That one stays open until the other is, so it is
    // cut to what the picture covers; not before the picture has had a frame's time to appear.
    QWidget *from = m_transition->from;
    if (const QRegion covered = m_ghost->coveredPartOfSource(); from && from->mask().isEmpty() && !covered.isEmpty())
        from->setMask(covered);
    m_ghost->setProgress(progress);
}

void LWindowTransitionAnimator::finish()
{
    if (!m_transition)
        return;
    const Transition transition = *std::exchange(m_transition, std::nullopt);
    m_animation.stop();
    if (QWidget *to = transition.to) {
        to->show();
        to->raise();
        to->activateWindow();
    }
    // The picture stays until the desktop has drawn the window beneath it.
    if (m_ghost && transition.to)
        dropGhostWhenPainted(transition.to);
    else
        m_ghost.reset();
    if (QWidget *from = transition.from; from && from != transition.to) {
        from->hide();
        from->clearMask();
    }
    if (transition.finishedCallback)
        transition.finishedCallback();
}

void LWindowTransitionAnimator::dropGhostWhenPainted(QWidget *window)
{
    window->installEventFilter(this);
    window->update();
    dropGhostAfter(std::chrono::seconds(1));  // should it never be painted
}

bool LWindowTransitionAnimator::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint) {
        watched->removeEventFilter(this);
        dropGhostAfter(std::chrono::milliseconds(60));
    }
    return QObject::eventFilter(watched, event);
}

void LWindowTransitionAnimator::dropGhostAfter(std::chrono::milliseconds delay)
{
    foundation::queue::afterMain(delay, [self = QPointer(this), ghost = QPointer(m_ghost.get())] {
        if (self && ghost && self->m_ghost.get() == ghost && !self->isRunning())
            self->m_ghost.reset();
    });
}

}  // namespace kestrel::tarnwell
