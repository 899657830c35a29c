#pragma once

#include <QWidget>

namespace kestrel {

/// The background of a search field that it holds: a white capsule with a magnifier at its right end. Its outline shows
/// that the field has the keyboard.
class _SearchBackgroundView : public QWidget {
    Q_OBJECT
public:
    explicit _SearchBackgroundView(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

}  // namespace kestrel
