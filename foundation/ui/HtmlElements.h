#pragma once

#include <QRgb>
#include <QString>

#include <optional>
#include <string_view>

namespace kestrel::foundation {

enum class HtmlRole {
    Plain,  ///< looks of its own only by its attributes
    Bold,
    Italic,
    Underline,
    StrikeOut,
    Superscript,
    Subscript,
    Small,
    Big,
    Center,
    Font,
    Link,
    Paragraph,
    Heading,
    BulletList,
    NumberedList,
    Item,
    Table,  ///< or another list of parts that need no end tag
    Row,
    Cell,
    Entry,      ///< of a list of terms
    LineBreak,  ///< from here on: without content
    Boundary
};

struct HtmlElement {
    std::string_view name;
    HtmlRole role;
    int lines = 0;     ///< line ends between it and its surroundings
    int fontSize = 0;  ///< of a heading, from 1 to 7
};

/// The element of that name in lower case; null where it shows no more than its text.
const HtmlElement *htmlElementNamed(std::string_view name);
bool isHtmlList(const HtmlElement &element);
bool isHtmlPart(const HtmlElement &element);       ///< a row, cell or entry
bool isHtmlContainer(const HtmlElement &element);  ///< a list or table: what is left open in it ends with it

int htmlFontPoints(int size);                          ///< of the sizes 1 to 7; the nearest of them for others
int htmlFontPoints(QStringView attribute);             ///< of a size attribute; 0 where it is empty
std::optional<QRgb> htmlColor(QStringView attribute);  ///< of a colour attribute: "#RRGGBB", "#RGB" or a name
QString htmlLink(QStringView attribute);  ///< of an href attribute; null unless it leads to a web page or mail address

}  // namespace kestrel::foundation
