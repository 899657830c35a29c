#pragma once

#include "media/TranscodePlan.h"

#include <QObject>

#include <functional>

class QComboBox;
class QDoubleSpinBox;
class QFormLayout;
class QLineEdit;

namespace kestrel {

/// The controls of a watermark: a text or a picture, its corner, size and opacity.
class WatermarkControls : public QObject {
    Q_OBJECT
public:
    WatermarkControls(QFormLayout *form, QObject *parent);

    void show(const TranscodePlan &plan);

signals:
    void changed(const std::function<void(kestrel::TranscodePlan &)> &change);

private:
    void tell();
    void choosePicture();

    QLineEdit *m_text, *m_picture;
    QComboBox *m_corner;
    QDoubleSpinBox *m_size, *m_opacity;
    bool m_isShowing = false;
};

}  // namespace kestrel
