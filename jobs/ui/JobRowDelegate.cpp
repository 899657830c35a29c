#include "JobRowDelegate.h"

#include "jobs/JobList.h"
#include "tarnwell/ui/Images.h"
#include "tarnwell/ui/Palette.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

namespace palette = tarnwell::palette;

constexpr int rowHeight = 64;
constexpr int rowMargin = 12;
constexpr int gap = 12;
constexpr int markSize = 16;
constexpr int barHeight = 6;
constexpr int focusWidth = 3;
constexpr double stateShare = 0.36;  ///< of the row's width
constexpr int detailPixels = 12;

struct StateLook {
    JobState state;
    const char *mark;  ///< name of an image; null for none
    QRgb color;
};

constexpr StateLook stateLooks[] = {
    {JobState::Checking, nullptr, palette::quietText},
    {JobState::Unusable, "job_failed", palette::error},
    {JobState::Ready, nullptr, palette::quietText},
    {JobState::Waiting, nullptr, palette::quietText},
    {JobState::Running, nullptr, palette::text},
    {JobState::Paused, "job_paused", palette::quietText},
    {JobState::Stopping, nullptr, palette::text},
    {JobState::Done, "job_done", palette::done},
    {JobState::DoneWithProblems, "job_problems", palette::warning},
    {JobState::Failed, "job_failed", palette::error},
    {JobState::Cancelled, nullptr, palette::quietText},
    {JobState::Interrupted, "job_problems", palette::warning},
};

const StateLook &stateLookOf(const QModelIndex &index)
{
    const auto state = JobState(index.data(JobList::StateRole).toInt());
    const auto found = std::find_if(std::begin(stateLooks), std::end(stateLooks),
                                    [state](const StateLook &look) { return look.state == state; });
    return found == std::end(stateLooks) ? stateLooks[0] : *found;
}

void drawElided(QPainter &painter, const QRect &area, const QString &text, QRgb color, Qt::TextElideMode mode)
{
    painter.setPen(QColor(color));
    painter.drawText(area, int(Qt::AlignVCenter | Qt::AlignLeading | Qt::TextSingleLine),
                     painter.fontMetrics().elidedText(text, mode, area.width()));
}

/// Wrapped to two lines where it fits so, else cut off.
void drawSentence(QPainter &painter, const QRect &area, const QString &text, QRgb color)
{
    constexpr int flags = int(Qt::AlignVCenter | Qt::AlignLeading | Qt::TextWordWrap);
    const QRect wrapped = painter.boundingRect(area, flags, text);
    if (wrapped.height() > area.height() || wrapped.width() > area.width()) {
        drawElided(painter, area, text, color, Qt::ElideRight);
        return;
    }
    painter.setPen(QColor(color));
    painter.drawText(area, flags, text);
}

void drawBar(QPainter &painter, const QRectF &bar, const QVariant &fraction)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(palette::line));
    painter.drawRoundedRect(bar, barHeight / 2.0, barHeight / 2.0);
    // Where the end is not known, a piece in the middle says that there is work.
    const double begin = fraction.isValid() ? 0 : 0.375;
    const double length = fraction.isValid() ? fraction.toDouble() : 0.25;
    const QRectF filled(bar.x() + begin * bar.width(), bar.y(), length * bar.width(), bar.height());
    if (filled.width() < 1)
        return;
    painter.setBrush(QColor(palette::accent));
    painter.drawRoundedRect(filled, barHeight / 2.0, barHeight / 2.0);
}

void drawPicture(QPainter &painter, const QRect &area, const QModelIndex &index)
{
    QPainterPath frame;
    frame.addRoundedRect(area, 4, 4);
    painter.save();
    painter.setClipPath(frame);
    painter.fillRect(area, QColor(palette::quietSurface));
    const auto picture = index.data(Qt::DecorationRole).value<QPixmap>();
    if (!picture.isNull()) {
        const QSizeF size = QSizeF(picture.size()).scaled(area.size(), Qt::KeepAspectRatio);
        QRectF place(QPointF(), size);
        place.moveCenter(QRectF(area).center());
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(place, picture, picture.rect());
    }
    painter.restore();
    painter.setPen(QColor(palette::line));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(frame);
}

bool hasBar(JobState state)
{
    return state == JobState::Running || state == JobState::Paused || state == JobState::Stopping;
}

/// What a short state does not need of its share is for the texts.
int stateWidthOf(const QModelIndex &index, const QFont &font, int most)
{
    const StateLook &look = stateLookOf(index);
    if (hasBar(look.state))
        return most;
    QFont small = font;
    small.setPixelSize(detailPixels);
    const QString text = index.siblingAtColumn(JobList::StateColumn).data().toString();
    return std::min(most, QFontMetrics(small).horizontalAdvance(text) + (look.mark ? markSize + 8 : 0) + 2);
}

void drawState(QPainter &painter, QRect area, const QModelIndex &index)
{
    const StateLook &look = stateLookOf(index);
    const QString text = index.siblingAtColumn(JobList::StateColumn).data().toString();
    if (hasBar(look.state)) {
        const QRectF bar(area.x(), area.center().y() - 10, area.width(), barHeight);
        drawBar(painter, bar, index.data(JobList::FractionRole));
        drawElided(painter, QRect(area.x(), area.center().y(), area.width(), 20), text, look.color, Qt::ElideRight);
        return;
    }
    if (look.mark) {
        const QRect mark(area.x(), area.y() + (area.height() - markSize) / 2, markSize, markSize);
        tarnwell::namedIcon(QString::fromLatin1(look.mark)).paint(&painter, mark);
        area.setLeft(mark.right() + 8);
    }
    drawSentence(painter, area, text, look.color);
}

void drawTexts(QPainter &painter, const QRect &area, const QFont &font, const QModelIndex &index)
{
    QFont small = font;
    small.setPixelSize(detailPixels);
    const struct {
        QString text;
        const QFont &font;
        int height;
        QRgb color;
        Qt::TextElideMode elision;
    } lines[] = {
        {index.data().toString(), font, 20, palette::text, Qt::ElideMiddle},
        {index.siblingAtColumn(JobList::DetailColumn).data().toString(), small, 17, palette::quietText, Qt::ElideRight},
        {index.data(JobList::WarningRole).toString(), small, 17, palette::warning, Qt::ElideRight}};
    int height = 0;
    for (const auto &line : lines)
        height += line.text.isEmpty() ? 0 : line.height;
    int top = area.y() + (area.height() - height) / 2;
    for (const auto &line : lines) {
        if (line.text.isEmpty())
            continue;
        painter.setFont(line.font);
        drawElided(painter, QRect(area.x(), top, area.width(), line.height), line.text, line.color, line.elision);
        top += line.height;
    }
    painter.setFont(small);
}

}  // namespace

void JobRowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QRect row = option.rect;
    if (option.state & QStyle::State_Selected)
        painter->fillRect(row, QColor(palette::accentTint));
    else if (option.state & QStyle::State_MouseOver)
        painter->fillRect(row, QColor(palette::quietSurface));
    painter->fillRect(QRect(row.x(), row.bottom(), row.width(), 1), QColor(palette::line));
    if (option.state & QStyle::State_HasFocus)
        painter->fillRect(QRect(row.x(), row.y(), focusWidth, row.height() - 1), QColor(palette::accent));

    const QRect inner = row.adjusted(rowMargin, 0, -rowMargin, -1);
    const QRect picture(QPoint(inner.x(), inner.y() + (inner.height() - pictureSize.height()) / 2), pictureSize);
    drawPicture(*painter, picture, index);

    const int stateWidth = stateWidthOf(index, option.font, int(row.width() * stateShare));
    const QRect texts(picture.right() + gap, inner.y(), inner.right() - picture.right() - 2 * gap - stateWidth,
                      inner.height());
    drawTexts(*painter, texts, option.font, index);
    drawState(*painter, QRect(inner.right() - stateWidth, inner.y(), stateWidth, inner.height()), index);
    painter->restore();
}

QSize JobRowDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return {320, rowHeight};
}

}  // namespace kestrel
