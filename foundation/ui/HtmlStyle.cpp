#include "HtmlStyle.h"

#include "HtmlElements.h"

#include <QString>

#include <algorithm>
#include <cmath>
#include <iterator>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

constexpr int smallestPoints = 9;
constexpr int largestPoints = 39;
constexpr qsizetype longestValue = 64;

bool isWord(QStringView value, QLatin1StringView word)
{
    return value.compare(word, Qt::CaseInsensitive) == 0;
}

bool hasWord(QStringView value, QLatin1StringView word)
{
    for (const QStringView part : value.tokenize(u' ', Qt::SkipEmptyParts)) {
        if (isWord(part, word))
            return true;
    }
    return false;
}

void takeColor(HtmlStyle &style, QStringView value, int)
{
    if (const auto color = htmlColor(value))
        style.color = color;
}

void takeWeight(HtmlStyle &style, QStringView value, int)
{
    constexpr int leastBold = 600;
    bool isNumber = false;
    const int weight = value.toInt(&isNumber);
    if (isNumber && weight >= 1 && weight <= 1000)
        style.bold = weight >= leastBold;
    else if (isWord(value, "bold"_L1) || isWord(value, "bolder"_L1))
        style.bold = true;
    else if (isWord(value, "normal"_L1) || isWord(value, "lighter"_L1))
        style.bold = false;
}

void takeSlant(HtmlStyle &style, QStringView value, int)
{
    if (isWord(value, "italic"_L1) || isWord(value, "oblique"_L1))
        style.italic = true;
    else if (isWord(value, "normal"_L1))
        style.italic = false;
}

void takeDecoration(HtmlStyle &style, QStringView value, int)
{
    const bool underline = hasWord(value, "underline"_L1), strikeOut = hasWord(value, "line-through"_L1);
    if (!underline && !strikeOut && !hasWord(value, "none"_L1))
        return;
    style.underline = underline;
    style.strikeOut = strikeOut;
}

void takeAlignment(HtmlStyle &style, QStringView value, int)
{
    style.centered = isWord(value, "center"_L1);
}

void takeSize(HtmlStyle &style, QStringView value, int surroundingSize)
{
    static constexpr struct {
        QLatin1StringView name;
        double points, ofSurrounding;
    } words[] = {{"xx-small"_L1, 9, 0},  {"x-small"_L1, 10, 0},      {"small"_L1, 11, 0},
                 {"medium"_L1, 13, 0},   {"large"_L1, 15, 0},        {"x-large"_L1, 20, 0},
                 {"xx-large"_L1, 26, 0}, {"smaller"_L1, 0, 1 / 1.2}, {"larger"_L1, 0, 1.2}},
      units[] = {{"px"_L1, 1, 0}, {"pt"_L1, 4.0 / 3, 0}, {"rem"_L1, 13, 0}, {"em"_L1, 0, 1}, {"%"_L1, 0, 0.01}};
    for (const auto &[name, points, ofSurrounding] : words) {
        if (isWord(value, name))
            style.pixelSize = htmlBoundedPoints(points + ofSurrounding * surroundingSize);
    }
    for (const auto &[name, points, ofSurrounding] : units) {
        bool isNumber = false;
        const double number =
            value.endsWith(name, Qt::CaseInsensitive) ? value.chopped(name.size()).toDouble(&isNumber) : 0;
        if (isNumber && number > 0) {
            style.pixelSize = htmlBoundedPoints(number * (points + ofSurrounding * surroundingSize));
            return;
        }
    }
}

constexpr struct {
    QLatin1StringView name;
    void (*take)(HtmlStyle &style, QStringView value, int surroundingSize);
} properties[] = {{"color"_L1, takeColor},
                  {"font-weight"_L1, takeWeight},
                  {"font-style"_L1, takeSlant},
                  {"font-size"_L1, takeSize},
                  {"text-decoration"_L1, takeDecoration},
                  {"text-decoration-line"_L1, takeDecoration},
                  {"text-align"_L1, takeAlignment}};

}  // namespace

int htmlBoundedPoints(double points)
{
    return int(std::lround(std::clamp<double>(points, smallestPoints, largestPoints)));
}

HtmlStyle htmlStyle(QStringView attribute, int surroundingSize)
{
    HtmlStyle style;
    for (const QStringView declaration : attribute.tokenize(u';')) {
        const qsizetype colon = declaration.indexOf(u':');
        if (colon < 0)
            continue;
        const QStringView name = declaration.first(colon).trimmed();
        QStringView value = declaration.sliced(colon + 1).trimmed();
        if (value.endsWith("!important"_L1, Qt::CaseInsensitive))
            value = value.chopped(QLatin1StringView("!important").size()).trimmed();
        if (value.isEmpty() || value.size() > longestValue)
            continue;
        const auto known = std::find_if(std::begin(properties), std::end(properties),
                                        [name](const auto &property) { return isWord(name, property.name); });
        if (known != std::end(properties))
            known->take(style, value, surroundingSize);
    }
    return style;
}

}  // namespace kestrel::foundation
