#pragma once

#include <QList>
#include <QPixmap>
#include <QWidget>

namespace kestrel {

/// The home screen's picture with the white discs of the module buttons. The picture itself stays as it was read: a
/// copy with the discs in it would cost as much memory again.
class HomeBackground : public QWidget {
    Q_OBJECT
public:
    explicit HomeBackground(QWidget *parent = nullptr);

    void setPicture(const QPixmap &picture, const QPixmap &disc, const QList<QRect> &places);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap m_picture;
    QPixmap m_disc;
    QList<QRect> m_places;
};

}  // namespace kestrel
