#pragma once

#include "Images.h"

#include <QPainter>
#include <QWidget>

namespace kestrel {

/// Shows one of the bundle's images in its middle, in the rendering for the screen that it is on. The image is read
/// when somebody looks: views are made on the way to the first window.
class PictureView : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;

    void setImageNamed(const QString &name) { m_icon = tarnwell::IconNamed(name); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        m_icon.paint(&painter, rect());
    }

private:
    QIcon m_icon;
};

}  // namespace kestrel
