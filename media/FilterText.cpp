#include "FilterText.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

QString escaped(const QString &text, QStringView letters)
{
    QString result;
    for (const QChar letter : text) {
        if (letters.contains(letter))
            result += u'\\';
        result += letter;
    }
    return result;
}

}  // namespace

QString filterValue(const QString &text)
{
    // Read twice: once by the filter's options, and before that by the graph.
    return escaped(escaped(text, u"\\':"), u"\\'[],;");
}

QString numberText(double number)
{
    QString text = QString::number(number, 'f', 6);
    while (text.endsWith(u'0'))
        text.chop(1);
    if (text.endsWith(u'.'))
        text.chop(1);
    return text;
}

QString rateText(double rate)
{
    const double thousands = rate * 1001 / 1000;
    if (std::abs(rate - std::round(rate)) > 0.005 && std::abs(thousands - std::round(thousands)) < 0.005)
        return QString::number(qint64(std::round(thousands))) + "000/1001"_L1;
    return numberText(std::abs(rate - std::round(rate)) < 0.005 ? std::round(rate) : rate);
}

double rateNumber(const QString &text)
{
    const qsizetype slash = text.indexOf(u'/');
    return slash < 0 ? text.toDouble() : text.left(slash).toDouble() / text.mid(slash + 1).toDouble();
}

}  // namespace kestrel
