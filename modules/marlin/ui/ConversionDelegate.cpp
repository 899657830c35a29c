#include "ConversionDelegate.h"

#include "modules/marlin/ConversionList.h"
#include "tarnwell/ui/Images.h"
#include "tarnwell/ui/Palette.h"

#include <QPainter>

#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

namespace palette = tarnwell::palette;

constexpr int rowHeight = 40;
constexpr int cellMargin = 8;
constexpr int markSize = 16;
constexpr int barHeight = 6;
constexpr int focusWidth = 2;

struct StateLook {
    ConversionState state;
    const char *mark;  ///< name of an image; null for none
    QRgb color;
};

constexpr StateLook stateLooks[] = {
    {ConversionState::Probing, nullptr, palette::quietText},
    {ConversionState::Unusable, "marlin_failed", palette::error},
    {ConversionState::Ready, nullptr, palette::text},
    {ConversionState::Waiting, nullptr, palette::quietText},
    {ConversionState::Converting, nullptr, palette::text},
    {ConversionState::Done, "marlin_done", palette::done},
    {ConversionState::Failed, "marlin_failed", palette::error},
    {ConversionState::Stopped, nullptr, palette::warning},
};

const StateLook &lookOf(const QModelIndex &index)
{
    const int state = index.data(ConversionList::StateRole).toInt();
    return *std::find_if(std::begin(stateLooks), std::end(stateLooks),
                         [state](const StateLook &look) { return int(look.state) == state; });
}

void paintText(QPainter &painter, const QRect &area, const QString &text, QRgb color, Qt::TextElideMode elide)
{
    painter.setPen(QColor(color));
    painter.drawText(area, int(Qt::AlignVCenter | Qt::AlignLeading | Qt::TextSingleLine),
                     painter.fontMetrics().elidedText(text, elide, area.width()));
}

/// Two lines where one is too short for the whole text and two are not.
void paintSentence(QPainter &painter, const QRect &area, const QString &text, QRgb color)
{
    constexpr int flags = int(Qt::AlignVCenter | Qt::AlignLeading | Qt::TextWordWrap);
    const QRect wrapped = painter.boundingRect(area, flags, text);
    if (wrapped.height() > area.height() || wrapped.width() > area.width()) {
        paintText(painter, area, text, color, Qt::ElideRight);
        return;
    }
    painter.setPen(QColor(color));
    painter.drawText(area, flags, text);
}

/// A piece of the bar is filled: from the left, or, where the end is not known, one that moves with what is converted.
void paintBar(QPainter &painter, const QRectF &bar, const QModelIndex &index)
{
    constexpr double pieceOfUnknown = 0.25;
    const QVariant fraction = index.data(ConversionList::FractionRole);
    const double step = std::fmod(index.data(ConversionList::ProcessedRole).toDouble() / 20, 1);
    const double begin = fraction.isValid() ? 0 : step * (1 - pieceOfUnknown);
    const double length = fraction.isValid() ? fraction.toDouble() : pieceOfUnknown;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(palette::line));
    painter.drawRoundedRect(bar, barHeight / 2.0, barHeight / 2.0);
    const QRectF filled(bar.x() + begin * bar.width(), bar.y(), length * bar.width(), bar.height());
    if (filled.width() < 1)
        return;
    painter.setBrush(QColor(palette::accent));
    painter.drawRoundedRect(filled, barHeight / 2.0, barHeight / 2.0);
}

void paintState(QPainter &painter, QRect area, const QModelIndex &index)
{
    const StateLook &look = lookOf(index);
    const QString text = index.data().toString();
    if (look.state == ConversionState::Converting) {
        const int textWidth = std::max(painter.fontMetrics().horizontalAdvance(u"100 %"_s),
                                       painter.fontMetrics().horizontalAdvance(text));
        const int barWidth = area.width() - textWidth - cellMargin;
        if (barWidth > 2 * markSize) {
            paintBar(painter, QRectF(area.x(), area.center().y() - barHeight / 2 + 1, barWidth, barHeight), index);
            area.setLeft(area.left() + barWidth + cellMargin);
        }
    } else if (look.mark) {
        const QRect mark(area.x(), area.y() + (area.height() - markSize) / 2, markSize, markSize);
        tarnwell::namedIcon(QString::fromLatin1(look.mark)).paint(&painter, mark);
        area.setLeft(mark.right() + cellMargin);
    }
    paintSentence(painter, area, text, look.color);
}

}  // namespace

void ConversionDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (option.state & QStyle::State_Selected)
        painter->fillRect(option.rect, QColor(palette::accentTint));
    else if (option.state & QStyle::State_MouseOver)
        painter->fillRect(option.rect, QColor(palette::quietSurface));
    painter->fillRect(QRect(option.rect.x(), option.rect.bottom(), option.rect.width(), 1), QColor(palette::line));
    if (option.state & QStyle::State_HasFocus)
        painter->fillRect(QRect(option.rect.x(), option.rect.y(), focusWidth, option.rect.height() - 1),
                          QColor(palette::accent));
    painter->setFont(option.font);

    const QRect area = option.rect.adjusted(cellMargin, 0, -cellMargin, -1);
    if (index.column() == ConversionList::StateColumn) {
        paintState(*painter, area, index);
    } else {
        const bool isName = index.column() == ConversionList::NameColumn;
        paintText(*painter, area, index.data().toString(), isName ? palette::text : palette::quietText,
                  isName ? Qt::ElideMiddle : Qt::ElideRight);
    }
    painter->restore();
}

QSize ConversionDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    return {QStyledItemDelegate::sizeHint(option, index).width(), rowHeight};
}

}  // namespace kestrel
