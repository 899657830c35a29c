#include "StyledTextView.h"

#include "Palette.h"
#include "tarnwell/HoverText.h"
#include "tarnwell/WebPages.h"

#include <QAbstractTextDocumentLayout>
#include <QTextCursor>

#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel::tarnwell {

namespace {

constexpr int indentWidth = 22;
constexpr int lineHeightPercent = 125;
constexpr int documentMargin = 10;
constexpr int smallestHeight = 48;

QTextCharFormat characterFormat(const foundation::TextStyle &style, const QFont &viewFont)
{
    QTextCharFormat format;
    if (style.bold)
        format.setFontWeight(QFont::Bold);
    format.setFontItalic(style.italic);
    format.setFontUnderline(style.underline || !style.link.isNull());
    format.setFontStrikeOut(style.strikeOut);
    if (style.place != foundation::TextPlace::OnLine)
        format.setVerticalAlignment(style.place == foundation::TextPlace::Raised ? QTextCharFormat::AlignSuperScript
                                                                                 : QTextCharFormat::AlignSubScript);
    if (!style.link.isNull()) {
        format.setAnchor(true);
        format.setAnchorHref(style.link);
        format.setToolTip(hoverTextShowing(style.link));  // a text may say anything about where it leads
    }
    if (!style.fontFamily.isEmpty())
        format.setFontFamilies(QStringList(style.fontFamily) + viewFont.families());
    if (style.pixelSize > 0)
        format.setProperty(QTextFormat::FontPixelSize, style.pixelSize);
    if (style.color)
        format.setForeground(QColor(*style.color));
    else if (!style.link.isNull())
        format.setForeground(QColor(palette::accent));
    return format;
}

/// `hasMarker`: what stands before the first tab hangs at the left of the lines that follow.
QTextBlockFormat blockFormat(int indent, bool isCentered, bool hasMarker)
{
    QTextBlockFormat format;
    if (isCentered)
        format.setAlignment(Qt::AlignHCenter);
    format.setLineHeight(lineHeightPercent, QTextBlockFormat::ProportionalHeight);
    format.setLeftMargin(indentWidth * (hasMarker ? qMax(indent, 1) : indent));
    if (hasMarker) {
        format.setTextIndent(-indentWidth);
        format.setTabPositions({QTextOption::Tab(indentWidth, QTextOption::LeftTab)});
    }
    return format;
}

/// Puts runs into a document line by line.
class StyledTextWriter {
public:
    explicit StyledTextWriter(QTextDocument *document) : m_cursor(document), m_font(document->defaultFont()) {}

    void write(const foundation::StyledText &text)
    {
        m_cursor.beginEditBlock();
        m_cursor.setBlockFormat(blockFormat(0, false, false));
        for (const foundation::StyledRun &run : text)
            writeRun(run);
        m_cursor.endEditBlock();
    }

private:
    void writeRun(const foundation::StyledRun &run)
    {
        const QTextCharFormat format = characterFormat(run.style, m_font);
        QStringView rest = run.text;
        for (;;) {
            const qsizetype lineEnd = rest.indexOf(u'\n');
            if (const QStringView piece = lineEnd < 0 ? rest : rest.first(lineEnd); !piece.isEmpty())
                writePiece(piece, run.style, format);
            if (lineEnd < 0)
                return;
            ++m_pendingLineEnds;
            rest = rest.sliced(lineEnd + 1);
        }
    }

    void writePiece(QStringView piece, const foundation::TextStyle &style, const QTextCharFormat &format)
    {
        for (; m_pendingLineEnds > 0; --m_pendingLineEnds)
            m_cursor.insertBlock(blockFormat(0, false, false));
        const bool hasMarker = piece.contains(u'\t');
        if (m_cursor.atBlockStart() || hasMarker)
            m_cursor.setBlockFormat(blockFormat(style.indent, style.centered, hasMarker));
        m_cursor.insertText(piece.toString(), format);
    }

    QTextCursor m_cursor;
    QFont m_font;
    int m_pendingLineEnds = 0;
};

}  // namespace

StyledTextView::StyledTextView(QWidget *parent) : QTextBrowser(parent)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
    setOpenLinks(false);
    connect(this, &QTextBrowser::anchorClicked, this, [](const QUrl &link) { OpenLink(link); });
    setUndoRedoEnabled(false);
    setAcceptDrops(false);
    setTabChangesFocus(true);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    document()->setDocumentMargin(documentMargin);
    connect(document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this,
            &StyledTextView::updateGeometry);
}

void StyledTextView::setStyledText(const foundation::StyledText &text)
{
    clear();
    document()->setDefaultFont(font());
    StyledTextWriter(document()).write(text);
    moveCursor(QTextCursor::Start);
}

QVariant StyledTextView::loadResource(int, const QUrl &)
{
    return {};
}

QSize StyledTextView::sizeHint() const
{
    if (sizePolicy().verticalPolicy() != QSizePolicy::Maximum)
        return minimumSizeHint();
    return {0, int(std::ceil(document()->size().height())) + 2 * frameWidth()};
}

QSize StyledTextView::minimumSizeHint() const
{
    return {0, smallestHeight};
}

}  // namespace kestrel::tarnwell
