#include "HtmlElements.h"

#include "Color.h"
#include "HtmlTokenizer.h"
#include "foundation/Numbers.h"

#include <algorithm>
#include <array>
#include <iterator>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

constexpr HtmlElement htmlElements[] = {
    {"a", HtmlRole::Link},
    {"address", HtmlRole::Plain, 1},
    {"article", HtmlRole::Plain, 1},
    {"b", HtmlRole::Bold},
    {"big", HtmlRole::Big},
    {"blockquote", HtmlRole::Plain, 2},
    {"br", HtmlRole::LineBreak},
    {"center", HtmlRole::Center, 1},
    {"dd", HtmlRole::Entry, 1},
    {"del", HtmlRole::StrikeOut},
    {"div", HtmlRole::Plain, 1},
    {"dl", HtmlRole::Table, 2},
    {"dt", HtmlRole::Entry, 1},
    {"em", HtmlRole::Italic},
    {"font", HtmlRole::Font},
    {"form", HtmlRole::Plain, 1},
    {"h1", HtmlRole::Heading, 2, 6},
    {"h2", HtmlRole::Heading, 2, 5},
    {"h3", HtmlRole::Heading, 2, 4},
    {"h4", HtmlRole::Heading, 2, 3},
    {"h5", HtmlRole::Heading, 2, 2},
    {"h6", HtmlRole::Heading, 2, 1},
    {"hr", HtmlRole::Boundary, 1},
    {"i", HtmlRole::Italic},
    {"ins", HtmlRole::Underline},
    {"li", HtmlRole::Item, 1},
    {"ol", HtmlRole::NumberedList, 2},
    {"p", HtmlRole::Paragraph, 2},
    {"pre", HtmlRole::Plain, 2},
    {"s", HtmlRole::StrikeOut},
    {"section", HtmlRole::Plain, 1},
    {"small", HtmlRole::Small},
    {"span", HtmlRole::Plain},
    {"strike", HtmlRole::StrikeOut},
    {"strong", HtmlRole::Bold},
    {"sub", HtmlRole::Subscript},
    {"sup", HtmlRole::Superscript},
    {"table", HtmlRole::Table, 1},
    {"td", HtmlRole::Cell},
    {"th", HtmlRole::Cell},
    {"tr", HtmlRole::Row, 1},
    {"u", HtmlRole::Underline},
    {"ul", HtmlRole::BulletList, 2},
};
static_assert(std::is_sorted(std::begin(htmlElements), std::end(htmlElements),
                             [](const HtmlElement &a, const HtmlElement &b) { return a.name < b.name; }));

/// For the sizes 1 to 7, of which 3 is that of a plain text.
constexpr std::array fontPoints = {9, 11, 13, 15, 20, 26, 39};

constexpr int plainFontSize = 3;
constexpr qsizetype longestColorName = 32;
constexpr qsizetype longestLink = 2048;

}  // namespace

const HtmlElement *htmlElementNamed(std::string_view name)
{
    const auto row =
        std::lower_bound(std::begin(htmlElements), std::end(htmlElements), name,
                         [](const HtmlElement &element, std::string_view wanted) { return element.name < wanted; });
    return row != std::end(htmlElements) && row->name == name ? row : nullptr;
}

bool isHtmlList(const HtmlElement &element)
{
    return element.role == HtmlRole::BulletList || element.role == HtmlRole::NumberedList;
}

bool isHtmlPart(const HtmlElement &element)
{
    return element.role >= HtmlRole::Row && element.role <= HtmlRole::Entry;
}

bool isHtmlContainer(const HtmlElement &element)
{
    return isHtmlList(element) || element.role == HtmlRole::Table;
}

int htmlFontPoints(int size)
{
    return fontPoints[std::size_t(std::clamp(size, 1, int(fontPoints.size())) - 1)];
}

int htmlFontPoints(QStringView attribute)
{
    attribute = attribute.trimmed();
    if (attribute.isEmpty())
        return 0;
    const bool isRelative = attribute.startsWith(u'+') || attribute.startsWith(u'-');
    const int size = int(std::clamp<qint64>(lenientInteger(attribute), -7, 7));
    return htmlFontPoints(isRelative ? plainFontSize + size : size);
}

std::optional<QRgb> htmlColor(QStringView attribute)
{
    attribute = attribute.trimmed();
    if (attribute.size() > longestColorName)
        return {};
    const QString name = HtmlTokenizer::resolved(attribute);
    QColor color = ColorWithHexString(name);
    if (!color.isValid() && (name.size() == 4 || !name.startsWith(u'#')))
        color = QColor::fromString(name);
    return color.isValid() && color.alpha() == 255 ? std::optional(color.rgb()) : std::nullopt;
}

QString htmlLink(QStringView attribute)
{
    static constexpr QLatin1StringView schemes[] = {"http://"_L1, "https://"_L1, "mailto:"_L1};
    attribute = attribute.trimmed();
    if (attribute.size() > longestLink)
        return {};
    const QString address = HtmlTokenizer::resolved(attribute);
    const bool isSound =
        std::all_of(address.begin(), address.end(), [](QChar c) { return c.isPrint() && !c.isSpace(); });
    const bool isKnown = std::any_of(std::begin(schemes), std::end(schemes), [&](QLatin1StringView scheme) {
        return address.size() > scheme.size() && address.startsWith(scheme, Qt::CaseInsensitive);
    });
    return isSound && isKnown ? address : QString();
}

}  // namespace kestrel::foundation
