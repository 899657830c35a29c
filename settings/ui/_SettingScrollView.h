#pragma once

#include "foundation/Geometry.h"

#include <QScrollArea>

#include <functional>

namespace kestrel {

/// Scrolls a page in the page's bottom-up points, and tells a target after each turn of the wheel, over the page or the
/// scroll bar; not of scrolling by other means.
class _SettingScrollView : public QScrollArea {
    Q_OBJECT
public:
    explicit _SettingScrollView(QWidget *parent = nullptr);

    void setMyTarget(std::function<void()> target) { m_myTarget = std::move(target); }
    /// The wheel scrolls the page over this control of the page as well and leaves its value alone.
    void keepWheelFrom(QWidget *control);

    /// As large as it may become; it can do with less.
    QSize sizeHint() const override { return maximumSize(); }

    /// The part of the page that is on screen.
    foundation::Rect documentVisibleRect() const;
    /// Puts the lower edge of the visible area to `y`, as far as the page goes.
    void scrollToPoint(double y);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    std::function<void()> m_myTarget;
    QList<QObject *> m_keptFromWheel;
};

}  // namespace kestrel
