#include "HomeBackground.h"

#include "tarnwell/ui/Images.h"

#include <QPaintEvent>
#include <QPainter>

namespace kestrel {

HomeBackground::HomeBackground(QWidget *parent) : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void HomeBackground::setPicture(const QPixmap &picture, const QPixmap &disc, const QList<QRect> &places)
{
    m_picture = picture;
    m_disc = disc;
    m_places = places;
    setAttribute(Qt::WA_OpaquePaintEvent, !picture.isNull() && !picture.hasAlphaChannel());
    update();
}

void HomeBackground::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    tarnwell::drawCrisp(painter, {0, 0}, m_picture);
    for (const QRect &place : m_places) {
        if (event->rect().intersects(place))
            tarnwell::drawCrisp(painter, place.topLeft(), m_disc);
    }
}

}  // namespace kestrel
