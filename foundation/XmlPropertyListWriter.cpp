#include "XmlPropertyList.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

constexpr char xmlHead[] =
    R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
)";

/// Well-formed and without the characters that XML 1.0 cannot carry even when escaped.
bool isXmlText(const QString &text)
{
    const auto isCarried = [](QChar c) {
        const char16_t unit = c.unicode();
        return (unit >= 0x20 && unit < 0xFFFE) || unit == '\t' || unit == '\n' || unit == '\r';
    };
    return std::all_of(text.begin(), text.end(), isCarried) && text.isValidUtf16();
}

QByteArray escapedForXml(const QString &text)
{
    const QByteArray plain = text.toUtf8();
    QByteArray escaped;
    escaped.reserve(plain.size());
    for (const char c : plain) {
        if (c == '&')
            escaped += "&amp;";
        else if (c == '<')
            escaped += "&lt;";
        else if (c == '>')
            escaped += "&gt;";
        else if (c == '\r')
            escaped += "&#13;";  // a bare one would be read as a line feed
        else
            escaped += c;
    }
    return escaped;
}

QByteArray xmlRealText(double value)
{
    if (std::isnan(value))
        return "nan";
    if (std::isinf(value))
        return value > 0 ? "+infinity" : "-infinity";
    return QByteArray::number(value, 'g', QLocale::FloatingPointShortest);
}

class XmlPropertyListWriter {
public:
    explicit XmlPropertyListWriter(const PropertyListLimits &limits) : m_limits(limits) {}

    /// False where the value cannot be written; what is in `text` then is of no use.
    bool write(const QVariant &value, int depth);

    QByteArray text = xmlHead;

private:
    /// One line: an element and its content.
    bool line(int depth, const char *element, const QByteArray &content);
    bool line(int depth, const char *element, const QString &content);
    bool writeArray(const QVariantList &array, int depth);
    bool writeDictionary(const QVariantMap &dictionary, int depth);
    bool writeData(const QByteArray &data, int depth);
    bool writeDate(const QDateTime &date, int depth);

    PropertyListLimits m_limits;
    qint64 m_items = 0;
};

bool XmlPropertyListWriter::line(int depth, const char *element, const QByteArray &content)
{
    text.append(depth, '\t').append('<').append(element).append('>').append(content);
    text.append("</").append(element).append(">\n");
    return true;
}

bool XmlPropertyListWriter::line(int depth, const char *element, const QString &content)
{
    return isXmlText(content) && line(depth, element, escapedForXml(content));
}

bool XmlPropertyListWriter::write(const QVariant &value, int depth)
{
    if (++m_items > m_limits.items || text.size() > m_limits.bytes)
        return false;
    switch (propertyListType(value)) {
        case PropertyListType::Invalid:
            return false;
        case PropertyListType::String:
            return line(depth, "string", value.toString());
        case PropertyListType::Array:
            return writeArray(value.toList(), depth);
        case PropertyListType::Dictionary:
            return writeDictionary(value.toMap(), depth);
        case PropertyListType::Data:
            return writeData(value.toByteArray(), depth);
        case PropertyListType::Boolean:
            text.append(depth, '\t').append(value.toBool() ? "<true/>\n" : "<false/>\n");
            return true;
        case PropertyListType::Integer:
            return line(depth, "integer", value.toString().toLatin1());
        case PropertyListType::Real:
            return line(depth, "real", xmlRealText(value.toDouble()));
        case PropertyListType::Date:
            return writeDate(value.toDateTime(), depth);
        case PropertyListType::Uid:
            text.append(depth, '\t').append("<dict>\n");
            line(depth + 1, "key", xmlUidKey);
            line(depth + 1, "integer", QByteArray::number(value.value<PropertyListUid>().value));
            text.append(depth, '\t').append("</dict>\n");
            return true;
    }
    return false;
}

bool XmlPropertyListWriter::writeArray(const QVariantList &array, int depth)
{
    if (depth >= m_limits.depth)
        return false;
    if (array.isEmpty()) {
        text.append(depth, '\t').append("<array/>\n");
        return true;
    }
    text.append(depth, '\t').append("<array>\n");
    for (const QVariant &value : array) {
        if (!write(value, depth + 1))
            return false;
    }
    text.append(depth, '\t').append("</array>\n");
    return true;
}

bool XmlPropertyListWriter::writeDictionary(const QVariantMap &dictionary, int depth)
{
    if (depth >= m_limits.depth || uidFromDictionary(dictionary))
        return false;
    if (dictionary.isEmpty()) {
        text.append(depth, '\t').append("<dict/>\n");
        return true;
    }
    text.append(depth, '\t').append("<dict>\n");
    for (auto entry = dictionary.cbegin(); entry != dictionary.cend(); ++entry) {
        if (!line(depth + 1, "key", entry.key()) || !write(entry.value(), depth + 1))
            return false;
    }
    text.append(depth, '\t').append("</dict>\n");
    return true;
}

bool XmlPropertyListWriter::writeData(const QByteArray &data, int depth)
{
    const QByteArray base64 = data.toBase64();
    const int width = qMax(16, 76 - 8 * depth);  // the platform fills lines of 76 columns, tabs included
    text.append(depth, '\t').append("<data>\n");
    for (qsizetype i = 0; i < base64.size(); i += width)
        text.append(depth, '\t')
            .append(QByteArrayView(base64).sliced(i, qMin<qsizetype>(width, base64.size() - i)))
            .append('\n');
    text.append(depth, '\t').append("</data>\n");
    return true;
}

bool XmlPropertyListWriter::writeDate(const QDateTime &date, int depth)
{
    const QDateTime utc = date.toUTC();
    const int year = utc.date().year();
    if (!utc.isValid() || year < 1 || year > 9999)
        return false;
    return line(depth, "date", utc.toString(u"yyyy-MM-dd'T'HH:mm:ss'Z'"_s).toLatin1());
}

}  // namespace

QByteArray writeXmlPropertyList(const QVariant &value, const PropertyListLimits &limits)
{
    XmlPropertyListWriter writer(limits);
    if (!writer.write(value, 0))
        return {};
    writer.text += "</plist>\n";
    return writer.text.size() <= limits.bytes ? writer.text : QByteArray();
}

}  // namespace kestrel::foundation
