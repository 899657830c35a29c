#pragma once

#include <QImage>
#include <QWidget>

namespace kestrel {

/// Shows a picture in the middle of the view, whole and no larger than it is, with as many pixels as the screen has.
class FittedImageView : public QWidget {
    Q_OBJECT
public:
    explicit FittedImageView(QWidget *parent = nullptr);

    void setImage(const QImage &image);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QImage m_image;
    QPixmap m_shown;  ///< as large as it was last drawn
};

}  // namespace kestrel
