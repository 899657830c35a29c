#pragma once

#include <QAbstractButton>

namespace kestrel {

/// A section button of the settings window: its title, 20 points from the left edge, without an outline.
class _MenuButtonCell : public QAbstractButton {
    Q_OBJECT
public:
    explicit _MenuButtonCell(QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

}  // namespace kestrel
