#include "StyledHtml.h"

#include "HtmlElements.h"
#include "HtmlStyle.h"
#include "HtmlTokenizer.h"
#include "StyledTextBuilder.h"

#include <algorithm>
#include <iterator>
#include <vector>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

constexpr qsizetype maximumLevels = 16;
constexpr int plainPoints = 13;
constexpr double stepOfSize = 1.2;

class HtmlReader {
public:
    StyledText read(QStringView html);

private:
    /// An element that is open, with what its attributes say.
    struct Level {
        const HtmlElement *element = nullptr;
        HtmlStyle looks;
        QString link;
        int items = 0;  ///< of a list, so far
    };

    void startElement(const HtmlElement &element, const HtmlTokenizer::Attributes &attributes);
    void endElement(const HtmlElement &element);
    void addText(QStringView text);
    void addWord(QStringView word);
    void addBlank();
    void breakLine();
    void separate(int lines);
    void startItem();
    void open(const HtmlElement &element, const HtmlTokenizer::Attributes &attributes);
    void closePart(const HtmlElement &part);
    void closeInList(HtmlRole role);
    std::vector<Level>::iterator innermostList();
    static void addLooks(const Level &level, TextStyle &style);
    const TextStyle &style();

    StyledTextBuilder m_builder;
    std::vector<Level> m_levels;
    qsizetype m_levelsBeyond = 0;  ///< open elements that are nested too deep to count
    std::optional<TextStyle> m_style;
    std::optional<TextStyle> m_blank;  ///< the look of a blank that shows once a word follows it in its line
    std::optional<int> m_item;         ///< number of the one that has begun and shows nothing yet; 0 for a bullet
    int m_lines = 0;                   ///< line ends before the next word
    int m_separation = 0;              ///< how many of them the boundaries here share
    bool m_afterBreak = false;
};

StyledText HtmlReader::read(QStringView html)
{
    using Token = HtmlTokenizer::Token;
    HtmlTokenizer tokenizer(html);
    for (Token token; !m_builder.isFull() && (token = tokenizer.next()) != Token::End;) {
        if (token == Token::Text) {
            addText(tokenizer.text());
            continue;
        }
        const HtmlElement *const element = htmlElementNamed(tokenizer.name());
        if (element && token == Token::StartTag)
            startElement(*element, tokenizer.attributes());
        else if (element)
            endElement(*element);
    }
    return m_builder.text();
}

void HtmlReader::startElement(const HtmlElement &element, const HtmlTokenizer::Attributes &attributes)
{
    if (element.role == HtmlRole::LineBreak)
        return breakLine();
    if (isHtmlPart(element))
        closePart(element);
    if (element.role == HtmlRole::Cell)
        addBlank();
    if (element.lines > 0) {
        closeInList(HtmlRole::Paragraph);
        separate(isHtmlList(element) && innermostList() != m_levels.end() ? 1 : element.lines);
    }
    // A part takes one of the levels only where it looks different.
    const bool isFull = qsizetype(m_levels.size()) >= maximumLevels;
    if (element.role == HtmlRole::Boundary || (isHtmlPart(element) && (attributes.style.isEmpty() || isFull)))
        return;
    if (element.role == HtmlRole::Item)
        startItem();
    open(element, attributes);
}

void HtmlReader::endElement(const HtmlElement &element)
{
    if (isHtmlPart(element) && m_levelsBeyond == 0)
        closePart(element);
    if (isHtmlPart(element) || element.role >= HtmlRole::LineBreak)
        return separate(element.lines);
    if (element.role == HtmlRole::Item || isHtmlList(element))
        m_item.reset();
    if (m_levelsBeyond > 0) {
        --m_levelsBeyond;
    } else {
        const auto level = std::find_if(m_levels.rbegin(), m_levels.rend(),
                                        [&](const Level &candidate) { return candidate.element == &element; });
        if (level != m_levels.rend())
            m_levels.erase(level.base() - 1, isHtmlContainer(element) ? m_levels.end() : level.base());
    }
    m_style.reset();
    separate(isHtmlList(element) && innermostList() != m_levels.end() ? 1 : element.lines);
}

void HtmlReader::startItem()
{
    closeInList(HtmlRole::Item);
    const auto list = innermostList();
    const bool isNumbered = list != m_levels.end() && list->element->role == HtmlRole::NumberedList;
    m_item = isNumbered ? ++list->items : 0;
}

void HtmlReader::open(const HtmlElement &element, const HtmlTokenizer::Attributes &attributes)
{
    if (qsizetype(m_levels.size()) >= maximumLevels) {
        ++m_levelsBeyond;
        return;
    }
    const int surroundingSize = style().pixelSize > 0 ? style().pixelSize : plainPoints;
    Level level{.element = &element, .looks = htmlStyle(attributes.style, surroundingSize), .link = {}};
    int size = 0;
    if (element.role == HtmlRole::Heading)
        size = htmlFontPoints(element.fontSize);
    if (element.role == HtmlRole::Small)
        size = htmlBoundedPoints(surroundingSize / stepOfSize);
    if (element.role == HtmlRole::Big)
        size = htmlBoundedPoints(surroundingSize * stepOfSize);
    if (element.role == HtmlRole::Font) {
        size = htmlFontPoints(attributes.size);
        if (!level.looks.color)
            level.looks.color = htmlColor(attributes.color);
    }
    if (level.looks.pixelSize == 0)
        level.looks.pixelSize = size;
    if (element.role == HtmlRole::Link)
        level.link = htmlLink(attributes.href);
    m_levels.push_back(level);
    m_style.reset();
}

/// With a row ends its last cell.
void HtmlReader::closePart(const HtmlElement &part)
{
    if (part.role == HtmlRole::Row)
        closeInList(HtmlRole::Cell);
    closeInList(part.role);
}

/// The end of what needs no end tag, within the list or table that it stands in.
void HtmlReader::closeInList(HtmlRole role)
{
    for (auto level = m_levels.end(); level != m_levels.begin() && !isHtmlContainer(*std::prev(level)->element);) {
        if ((--level)->element->role != role)
            continue;
        m_levels.erase(level);
        m_style.reset();
        return;
    }
}

std::vector<HtmlReader::Level>::iterator HtmlReader::innermostList()
{
    const auto list =
        std::find_if(m_levels.rbegin(), m_levels.rend(), [](const Level &level) { return isHtmlList(*level.element); });
    return list == m_levels.rend() ? m_levels.end() : list.base() - 1;
}

void HtmlReader::addText(QStringView text)
{
    while (!text.isEmpty()) {
        const auto word = std::find_if_not(text.begin(), text.end(), HtmlTokenizer::isBlank);
        if (word != text.begin())
            addBlank();
        const auto end = std::find_if(word, text.end(), HtmlTokenizer::isBlank);
        if (StyledTextBuilder::isVisible(QStringView(word, end)))
            addWord(QStringView(word, end));
        text = QStringView(end, text.end());
    }
}

void HtmlReader::addWord(QStringView word)
{
    if (m_lines > 0)
        m_builder.endLine(m_lines);
    else if (m_blank)
        m_builder.append(u" ", *m_blank);
    m_lines = m_separation = 0;
    m_afterBreak = false;
    m_blank.reset();
    if (m_item) {
        TextStyle ofMarker;
        ofMarker.color = style().color;
        ofMarker.pixelSize = style().pixelSize;
        ofMarker.indent = style().indent;
        ofMarker.centered = style().centered;
        m_builder.append(*m_item > 0 ? u"%1.\t"_s.arg(*m_item) : u"•\t"_s, ofMarker);
        m_item.reset();
    }
    m_builder.append(word, style());
}

void HtmlReader::addBlank()
{
    if (!m_blank && m_lines == 0 && !m_builder.isEmpty())
        m_blank = style();
}

void HtmlReader::breakLine()
{
    ++m_lines;
    m_separation = 0;
    m_afterBreak = true;
    m_blank.reset();
}

/// The distances of boundaries that meet do not add up, and a break right before a boundary has ended the line already.
void HtmlReader::separate(int lines)
{
    const int ended = m_afterBreak ? 1 : m_separation;
    if (lines == 0 || lines < ended)
        return;
    m_lines += lines - ended;
    m_separation = lines;
    m_afterBreak = false;
    m_blank.reset();
}

/// Decorations add up; of everything else the innermost word counts.
void HtmlReader::addLooks(const Level &level, TextStyle &style)
{
    const HtmlRole role = level.element->role;
    const HtmlStyle &looks = level.looks;
    style.bold = looks.bold.value_or(style.bold || role == HtmlRole::Bold || role == HtmlRole::Heading);
    style.italic = looks.italic.value_or(style.italic || role == HtmlRole::Italic);
    style.underline |= looks.underline.value_or(role == HtmlRole::Underline);
    style.strikeOut |= looks.strikeOut.value_or(role == HtmlRole::StrikeOut);
    style.centered = looks.centered.value_or(style.centered || role == HtmlRole::Center);
    style.indent += isHtmlList(*level.element) ? 1 : 0;
    if (role == HtmlRole::Superscript || role == HtmlRole::Subscript)
        style.place = role == HtmlRole::Superscript ? TextPlace::Raised : TextPlace::Lowered;
    if (looks.color)
        style.color = looks.color;
    if (looks.pixelSize > 0)
        style.pixelSize = looks.pixelSize;
    if (!level.link.isNull())
        style.link = level.link;
}

const TextStyle &HtmlReader::style()
{
    if (m_style)
        return *m_style;
    TextStyle style;
    for (const Level &level : m_levels)
        addLooks(level, style);
    m_style = style;
    return *m_style;
}

}  // namespace

StyledText styledTextFromHtml(const QByteArray &html)
{
    return HtmlReader().read(QString::fromUtf8(html));
}

}  // namespace kestrel::foundation
