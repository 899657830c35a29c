#include "LogPage.h"

#include "helpers/logwatcher/LogFile.h"
#include "tarnwell/ui/Palette.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

namespace palette = tarnwell::palette;

constexpr int rowSpacing = 4;
constexpr int tabWidth = 8;  ///< characters
constexpr double unlimitedWidth = 1e6;

/// The words by which programs tell how grave a line is.
struct LevelColor {
    QLatin1StringView word;
    QRgb color;
};

constexpr LevelColor levelColors[] = {
    {"[ERROR]"_L1, palette::error},
    {"[WARNING]"_L1, palette::warning},
    {"[DEBUG]"_L1, palette::quietText},
};
constexpr qsizetype levelPlaceLength = 80;  ///< they stand near the begin

QRgb colorOf(const QString &text)
{
    const QStringView place = QStringView(text).left(levelPlaceLength);
    for (const auto &[word, color] : levelColors) {
        if (place.contains(word))
            return color;
    }
    return palette::text;
}

QTextLayout::FormatRange selectedRange(int begin, int end)
{
    QTextLayout::FormatRange range{begin, end - begin, {}};
    range.format.setBackground(QColor(palette::accent));
    range.format.setForeground(QColor(palette::surface));
    return range;
}

}  // namespace

LogPage::LogPage() = default;
LogPage::~LogPage() = default;

void LogPage::setFont(const QFont &font)
{
    m_font = font;
    m_rowHeight = int(std::ceil(QFontMetricsF(font).height())) + rowSpacing;
    m_ascent = QFontMetricsF(font).ascent();
    m_lines.clear();
}

void LogPage::clear()
{
    m_lines.clear();
}

LogPage::Line LogPage::lineOf(const LogFile &file, const LogRow &row) const
{
    Line line{row, LogText::of(file.read(row.begin, row.end - row.begin)), nullptr, palette::text};
    line.text.text = displayText(line.text.text);
    line.color = colorOf(line.text.text);
    line.layout = std::make_unique<QTextLayout>(line.text.text, m_font);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setTextDirection(Qt::LeftToRight);
    option.setTabStopDistance(tabWidth * QFontMetricsF(m_font).horizontalAdvance(u'0'));
    line.layout->setTextOption(option);
    line.layout->setCacheEnabled(true);
    line.layout->beginLayout();
    line.layout->createLine().setLineWidth(unlimitedWidth);
    line.layout->endLayout();
    return line;
}

void LogPage::fill(const LogFile &file, const LogRows &rows, const std::optional<LogRow> &first, int count)
{
    std::vector<Line> former = std::move(m_lines);
    m_lines.clear();
    auto row = first;
    for (int i = 0; i < count && row; ++i, row = rows.rowAfter(*row)) {
        const auto known = std::find_if(former.begin(), former.end(),
                                        [&](const Line &line) { return line.layout && line.row == *row; });
        m_lines.push_back(known != former.end() ? std::move(*known) : lineOf(file, *row));
    }
}

double LogPage::width() const
{
    double result = 0;
    for (const Line &line : m_lines)
        result = std::max(result, line.layout->lineAt(0).naturalTextWidth());
    return result;
}

qint64 LogPage::offsetAt(QPointF point) const
{
    if (m_lines.empty())
        return 0;
    const int index = std::clamp(int(std::floor(point.y() / m_rowHeight)), 0, int(m_lines.size()) - 1);
    const Line &line = m_lines[size_t(index)];
    return line.row.begin + line.text.offsets[size_t(line.layout->lineAt(0).xToCursor(point.x()))];
}

const LogPage::Line *LogPage::lineWith(qint64 offset) const
{
    // The first row that ends there or later: where one follows without a line break, the place is its begin.
    const auto line = std::find_if(m_lines.cbegin(), m_lines.cend(), [offset](const Line &each) {
        return offset < each.row.next || (offset == each.row.end && offset == each.row.next);
    });
    if (line == m_lines.cend() || offset < line->row.begin)
        return nullptr;
    const auto next = line + 1;
    return next != m_lines.cend() && next->row.begin == offset ? &*next : &*line;
}

std::optional<QRectF> LogPage::caretAt(qint64 offset) const
{
    const Line *line = lineWith(offset);
    if (!line)
        return std::nullopt;
    const double x = line->layout->lineAt(0).cursorToX(line->text.indexOf(offset - line->row.begin));
    return QRectF(x, double(line - m_lines.data()) * m_rowHeight, 1, m_rowHeight);
}

void LogPage::paint(QPainter &painter, const Marks &marks) const
{
    double y = 0;
    for (const Line &line : m_lines) {
        paintLine(painter, line, y, marks);
        y += m_rowHeight;
    }
}

/// The occurrences on screen, as plain grounds for the text: a long row may have thousands, which as formats of its
/// layout would take seconds.
void LogPage::paintMarks(QPainter &painter, const Line &line, double y, const QString &text) const
{
    if (text.isEmpty())
        return;
    const QTextLine shape = line.layout->lineAt(0);
    const QRectF clip = painter.clipBoundingRect();
    const qsizetype begin = shape.xToCursor(clip.left());
    const qsizetype end = shape.xToCursor(clip.right());
    for (qsizetype i = 0; (i = line.text.text.indexOf(text, i, Qt::CaseInsensitive)) >= 0 && i <= end;
         i += text.size()) {
        if (i + text.size() < begin)
            continue;
        const double left = shape.cursorToX(int(i));
        const QRectF ground(left, y + rowSpacing / 2.0, shape.cursorToX(int(i + text.size())) - left,
                            m_rowHeight - rowSpacing);
        painter.fillRect(ground, QColor(palette::accentTint));
        painter.fillRect(ground.adjusted(0, ground.height() - 1, 0, 0), QColor(palette::accent));
    }
}

void LogPage::paintLine(QPainter &painter, const Line &line, double y, const Marks &marks) const
{
    paintMarks(painter, line, y, marks.text);
    QList<QTextLayout::FormatRange> ranges;
    const qint64 begin = std::max(marks.begin, line.row.begin);
    const qint64 end = std::min(marks.end, line.row.end);
    if (begin < end)
        ranges.append(
            selectedRange(line.text.indexOf(begin - line.row.begin), line.text.indexOf(end - line.row.begin)));
    painter.setPen(QColor(line.color));
    // Characters that another font lends may be taller: all rows keep to one grid.
    const QPointF place(0, std::round(y + rowSpacing / 2.0 + m_ascent - line.layout->lineAt(0).ascent()));
    line.layout->draw(&painter, place, ranges, painter.clipBoundingRect());
    // A selected line break shows as well: an empty row would look as if it were left out.
    if (marks.begin <= line.row.end && marks.end > line.row.end && line.row.next > line.row.end)
        painter.fillRect(QRectF(line.layout->lineAt(0).naturalTextWidth(), y + rowSpacing / 2.0,
                                QFontMetricsF(m_font).horizontalAdvance(u' '), m_rowHeight - rowSpacing),
                         QColor(palette::accent));
}

}  // namespace kestrel
