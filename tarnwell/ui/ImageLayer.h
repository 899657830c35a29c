#pragma once

#include "foundation/Geometry.h"

#include <QPixmap>
#include <QVariantAnimation>
#include <QWidget>

namespace kestrel::tarnwell {

/// An image of the bundle, stretched to a frame in the bottom-up points of the view that holds it. A new frame is moved
/// to within 0.25 s, at once where the layer is not on screen or the desktop asks for reduced motion. Lets the mouse
/// through.
class ImageLayer : public QWidget {
    Q_OBJECT
public:
    ImageLayer(const QString &imageName, QWidget *parent);

    /// Where it is, or is moving to.
    foundation::Rect frame() const { return m_frame; }
    void setFrame(const foundation::Rect &frame);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRectF topDown(const foundation::Rect &frame) const;
    void showAt(const QRectF &place);

    QString m_imageName;
    foundation::Rect m_frame;
    QRectF m_place;  ///< what is shown now, top-down in the parent, between whole points while it moves
    QVariantAnimation m_animation;
    QPixmap m_resting;  ///< the image in the size in which it stands still
};

}  // namespace kestrel::tarnwell
