#include "TextField.h"

#include "app/HomeTexts.h"
#include "tarnwell/ui/Palette.h"

#include <QApplication>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

QFont badgeFont(int points)
{
    QFont font = QApplication::font();
    font.setBold(true);
    font.setPixelSize(points);
    return font;
}

}  // namespace

void TextField::setStringValue(const QString &text)
{
    setText(text);
    m_draw4K = text == homeRestingHeadline;
    update();
}

void TextField::paintEvent(QPaintEvent *event)
{
    if (!m_draw4K) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    myDraw(painter);
}

void TextField::myDraw(QPainter &painter) const
{
    constexpr int smallSystemFontSize = 11;
    constexpr QSizeF boxSize(212, 21);
    constexpr double gap = 9;
    constexpr double badgePadding = 3;
    const QString badge = u"4K"_s;
    const QFont smallFont = badgeFont(smallSystemFontSize);
    const QFontMetricsF badgeMetrics(smallFont);
    const double badgeWidth = badgeMetrics.horizontalAdvance(badge);

    // Words and badge together stand in the middle of the field.
    const QFont wordsFont = badgeFont(18);
    const QString words = u"Kestrel Converter"_s;
    const double wordsWidth = QFontMetricsF(wordsFont).horizontalAdvance(words);
    const double visibleWidth = wordsWidth + gap + badgeWidth + 2 * badgePadding;
    const double boxLeft = (width() + visibleWidth) / 2 - badgeWidth - 2 * badgePadding - gap - boxSize.width();
    const QRectF box(QPointF(qRound(boxLeft), (height() - boxSize.height()) / 2 + 1), boxSize);
    painter.setFont(wordsFont);
    painter.setPen(QColor::fromRgb(tarnwell::palette::headlineWords));
    painter.drawText(box, Qt::AlignRight | Qt::AlignVCenter, words);

    const QRectF badgeBox(box.right() + gap + badgePadding, box.center().y() - badgeMetrics.height() / 2 + 2,
                          badgeWidth, badgeMetrics.height());
    painter.setFont(smallFont);
    painter.drawText(badgeBox, Qt::AlignLeft | Qt::AlignVCenter, badge);
    painter.setPen(QPen(QColor::fromRgb(tarnwell::palette::headlineBadge), 2));
    painter.drawRoundedRect(badgeBox.adjusted(-badgePadding, -badgePadding, badgePadding, badgePadding), 2, 2);
}

}  // namespace kestrel
