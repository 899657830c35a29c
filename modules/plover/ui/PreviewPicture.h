#pragma once

#include "modules/plover/RecordPlan.h"

#include <QImage>
#include <QLabel>

namespace kestrel {

/// What will be recorded, small, or a sentence instead. The camera's picture within it is dragged with the mouse, by
/// its lower right corner to another size; arrow keys move it and, with Shift, change its size.
class PreviewPicture : public QLabel {
    Q_OBJECT
public:
    PreviewPicture();

    void showText(const QString &text);
    void showPlace(const QString &text);  ///< of a picture that is not to be had before
    void showPicture(const QPixmap &picture);
    /// None hides it. Without a picture of the camera its place is shown.
    void setInset(const std::optional<RecordPlan::Inset> &inset);
    void setCamera(const QImage &picture);
    std::optional<RecordPlan::Inset> inset() const { return m_inset; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    bool showsInset() const { return m_inset && !pixmap(Qt::ReturnByValue).isNull(); }
    QRectF pictureRect() const;
    QRectF insetRect() const;
    void place(const RecordPlan::Inset &inset);

    std::optional<RecordPlan::Inset> m_inset;
    QImage m_camera;
    enum class Drag { None, Place, Size } m_drag = Drag::None;
    QPointF m_grip;
};

}  // namespace kestrel
