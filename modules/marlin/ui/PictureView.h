#pragma once

#include <QImage>
#include <QWidget>

namespace kestrel {

/// A picture as large as fits, with a caption. Where it is for cropping, a rectangle can be drawn on it, moved and
/// dragged by its edges.
class PictureView : public QWidget {
    Q_OBJECT
public:
    explicit PictureView(QWidget *parent = nullptr);

    void setCaption(const QString &caption);
    void setPicture(const QImage &picture);
    bool hasPicture() const { return !m_picture.isNull(); }

    void setCroppable(bool croppable);
    /// In fractions of the picture; empty for none.
    void setCrop(const QRectF &crop);

    QSize sizeHint() const override;

signals:
    void cropChanged(const QRectF &crop);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QRectF pictureFrame() const;
    QRectF cropFrame() const;
    Qt::Edges edgesAt(const QPointF &place) const;
    void showCursor(const QPointF &place);
    void drag(const QPointF &place);

    QImage m_picture;
    QString m_caption;
    QRectF m_crop;
    bool m_isCroppable = false;
    bool m_isDragging = false;
    Qt::Edges m_edges;  ///< that are dragged; none moves the whole
    QPointF m_last;
};

}  // namespace kestrel
