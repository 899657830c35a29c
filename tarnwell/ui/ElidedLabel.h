#pragma once

#include <QLabel>

namespace kestrel::tarnwell {

/// One line of plain text that gives way in the middle where there is too little room; the tooltip then has all of it.
class ElidedLabel : public QLabel {
    Q_OBJECT
public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;
};

}  // namespace kestrel::tarnwell
