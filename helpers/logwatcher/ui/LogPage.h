#pragma once

#include "helpers/logwatcher/LogRows.h"
#include "helpers/logwatcher/LogText.h"

#include <QFont>
#include <QRectF>
#include <QRgb>

#include <memory>
#include <vector>

class QPainter;
class QTextLayout;

namespace kestrel {

/// The rows that are on screen, laid out. Coordinates are points from the begin of the first row.
class LogPage {
public:
    struct Line {
        LogRow row;
        LogText text;
        std::unique_ptr<QTextLayout> layout;
        QRgb color;
    };
    /// What is marked: bytes of the file, and every occurrence of a text.
    struct Marks {
        qint64 begin = 0, end = 0;
        QString text;
    };

    LogPage();
    ~LogPage();

    void setFont(const QFont &font);
    int rowHeight() const { return m_rowHeight; }

    void clear();

    /// Lays out `count` rows from `first` on. Those that it has already are kept as they are.
    void fill(const LogFile &file, const LogRows &rows, const std::optional<LogRow> &first, int count);
    const std::vector<Line> &lines() const { return m_lines; }
    double width() const;  ///< of the longest row

    qint64 offsetAt(QPointF point) const;  ///< the byte of the nearest place between two characters
    /// The place before a byte, as wide as a caret; none where the byte is not on the page.
    std::optional<QRectF> caretAt(qint64 offset) const;
    /// The row of the page that holds a byte, which may also be its end.
    const Line *lineWith(qint64 offset) const;

    void paint(QPainter &painter, const Marks &marks) const;

private:
    Line lineOf(const LogFile &file, const LogRow &row) const;
    void paintMarks(QPainter &painter, const Line &line, double y, const QString &text) const;
    void paintLine(QPainter &painter, const Line &line, double y, const Marks &marks) const;

    QFont m_font;
    int m_rowHeight = 1;
    double m_ascent = 0;
    std::vector<Line> m_lines;
};

}  // namespace kestrel
