#include "XmlEventParser.h"
#include "XmlPropertyList.h"

#include <QDateTime>

#include <algorithm>
#include <charconv>
#include <limits>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

enum class XmlElement { Plist, Dictionary, Array, Key, String, Integer, Real, Date, Data, True, False };

constexpr struct {
    QUtf8StringView name;
    XmlElement element;
} xmlElements[] = {
    {"key", XmlElement::Key},         {"string", XmlElement::String}, {"integer", XmlElement::Integer},
    {"dict", XmlElement::Dictionary}, {"array", XmlElement::Array},   {"true", XmlElement::True},
    {"false", XmlElement::False},     {"real", XmlElement::Real},     {"data", XmlElement::Data},
    {"date", XmlElement::Date},       {"plist", XmlElement::Plist},
};

std::optional<XmlElement> xmlElementNamed(QUtf8StringView name)
{
    for (const auto &row : xmlElements) {
        if (row.name == name)
            return row.element;
    }
    return {};
}

bool isXmlSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

/// Decimal or 0x and hexadecimal, with an optional sign, from the least signed to the greatest unsigned 64-bit number.
QVariant xmlInteger(QByteArrayView text)
{
    const bool negative = text.startsWith('-');
    if (negative || text.startsWith('+'))
        text = text.sliced(1);
    const bool hexadecimal = text.startsWith("0x") || text.startsWith("0X");
    if (hexadecimal)
        text = text.sliced(2);
    quint64 magnitude = 0;
    const auto [end, error] = std::from_chars(text.begin(), text.end(), magnitude, hexadecimal ? 16 : 10);
    if (error != std::errc() || end != text.end())
        return {};
    constexpr auto greatest = quint64(std::numeric_limits<qint64>::max());
    if (negative)
        return magnitude <= greatest + 1 ? QVariant(qlonglong(0 - magnitude)) : QVariant();
    return magnitude <= greatest ? QVariant(qlonglong(magnitude)) : QVariant(qulonglong(magnitude));
}

QVariant xmlReal(QByteArrayView text)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    static constexpr struct {
        const char *name;
        double value;
    } named[] = {{"nan", std::numeric_limits<double>::quiet_NaN()},
                 {"inf", infinity},
                 {"+inf", infinity},
                 {"-inf", -infinity},
                 {"infinity", infinity},
                 {"+infinity", infinity},
                 {"-infinity", -infinity}};
    for (const auto &row : named) {
        if (text.compare(row.name, Qt::CaseInsensitive) == 0)
            return row.value;
    }
    const bool isDecimal = std::all_of(text.begin(), text.end(), [](char c) {
        return (c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.' || c == 'e' || c == 'E';
    });
    bool ok = false;
    const double value = text.toDouble(&ok);
    return isDecimal && ok ? QVariant(value) : QVariant();
}

/// Exactly "2024-01-31T23:59:59Z".
QVariant xmlDate(QByteArrayView text)
{
    const QByteArrayView form = "0000-00-00T00:00:00Z";
    if (text.size() != form.size())
        return {};
    int fields[6] = {};
    int field = 0;
    for (qsizetype i = 0; i < form.size(); ++i) {
        if (form[i] == '0') {
            if (text[i] < '0' || text[i] > '9')
                return {};
            fields[field] = fields[field] * 10 + (text[i] - '0');
        } else if (text[i] != form[i]) {
            return {};
        } else {
            ++field;
        }
    }
    const QDate date(fields[0], fields[1], fields[2]);
    const QTime time(fields[3], fields[4], fields[5]);
    return date.isValid() && time.isValid() ? QVariant(QDateTime(date, time, Qt::UTC)) : QVariant();
}

QVariant xmlData(QByteArray text)
{
    text.removeIf(isXmlSpace);
    if (text.size() % 4 != 0)
        return {};
    const auto result = QByteArray::fromBase64Encoding(text, QByteArray::AbortOnBase64DecodingErrors);
    return result ? QVariant(*result) : QVariant();
}

QVariant xmlLeaf(XmlElement element, const QByteArray &text)
{
    switch (element) {
        case XmlElement::String:
            return QString::fromUtf8(text);
        case XmlElement::Integer:
            return xmlInteger(QByteArrayView(text).trimmed());
        case XmlElement::Real:
            return xmlReal(QByteArrayView(text).trimmed());
        case XmlElement::Date:
            return xmlDate(QByteArrayView(text).trimmed());
        case XmlElement::Data:
            return xmlData(text);
        case XmlElement::True:
            return text.isEmpty() ? QVariant(true) : QVariant();
        case XmlElement::False:
            return text.isEmpty() ? QVariant(false) : QVariant();
        default:
            return {};
    }
}

class XmlPropertyListReader : public XmlEventParser::Delegate {
public:
    XmlPropertyListReader(const PropertyListLimits &limits, PropertyListManner manner)
        : m_limits(limits),
          m_manner(manner)
    {
    }

    const std::optional<QVariant> &value() const { return m_value; }

    void startElement(XmlEventParser &parser, QUtf8StringView name, const QList<XmlAttribute> &) override;
    void endElement(XmlEventParser &parser, QUtf8StringView name) override;
    void characters(XmlEventParser &parser, QUtf8StringView text) override;

private:
    /// A container that is open.
    struct Level {
        bool isDictionary = false;
        QVariantList list;
        QVariantMap map;
        std::optional<QString> key;
    };

    QString whyNoElementHere(XmlElement element) const;
    void add(XmlEventParser &parser, const QVariant &value);
    void endLeaf(XmlEventParser &parser, XmlElement leaf);
    void endContainer(XmlEventParser &parser);

    PropertyListLimits m_limits;
    PropertyListManner m_manner;
    bool m_insidePlist = false;
    qint64 m_items = 0;
    std::vector<Level> m_levels;
    std::optional<XmlElement> m_leaf;
    QByteArray m_text;
    std::optional<QVariant> m_value;
};

QString XmlPropertyListReader::whyNoElementHere(XmlElement element) const
{
    const bool inDictionary = !m_levels.empty() && m_levels.back().isDictionary;
    if ((element == XmlElement::Plist) == m_insidePlist)
        return m_insidePlist ? u"<plist> inside <plist>"_s : u"the root element is not <plist>"_s;
    if (m_leaf)
        return u"an element inside a text"_s;
    if (element == XmlElement::Key && !inDictionary)
        return u"a key outside a dictionary"_s;
    if (inDictionary && (element == XmlElement::Key) == m_levels.back().key.has_value())
        return element == XmlElement::Key ? u"a key without a value"_s : u"a value without a key"_s;
    if (m_levels.empty() && m_value)
        return u"more than one root value"_s;
    return {};
}

void XmlPropertyListReader::startElement(XmlEventParser &parser, QUtf8StringView name, const QList<XmlAttribute> &)
{
    const auto element = xmlElementNamed(name);
    if (!element)
        return parser.abort(u"unknown element <%1>"_s.arg(name.toString()));
    if (const QString problem = whyNoElementHere(*element); !problem.isNull())
        return parser.abort(problem);
    if (*element == XmlElement::Plist) {
        m_insidePlist = true;
        return;
    }
    if (*element != XmlElement::Key && ++m_items > m_limits.items)
        return parser.abort(u"more than %1 values"_s.arg(m_limits.items));
    if (*element != XmlElement::Dictionary && *element != XmlElement::Array) {
        m_leaf = element;
        m_text.resize(0);
        return;
    }
    if (qint64(m_levels.size()) >= m_limits.depth)
        return parser.abort(u"nested deeper than %1"_s.arg(m_limits.depth));
    m_levels.push_back({*element == XmlElement::Dictionary, {}, {}, {}});
}

void XmlPropertyListReader::characters(XmlEventParser &parser, QUtf8StringView text)
{
    if (m_leaf)
        m_text.append(text.data(), text.size());
    else if (!std::all_of(text.data(), text.data() + text.size(), isXmlSpace))
        parser.abort(u"text between the elements"_s);
}

void XmlPropertyListReader::endElement(XmlEventParser &parser, QUtf8StringView name)
{
    if (m_leaf)
        endLeaf(parser, *std::exchange(m_leaf, std::nullopt));
    else if (!m_levels.empty())
        endContainer(parser);
    else if (!m_value)
        parser.abort(u"empty <%1>"_s.arg(name.toString()));
}

void XmlPropertyListReader::endLeaf(XmlEventParser &parser, XmlElement leaf)
{
    if (leaf == XmlElement::Key) {
        m_levels.back().key = QString::fromUtf8(m_text);
        return;
    }
    const QVariant value = xmlLeaf(leaf, m_text);
    if (!value.isValid())
        return parser.abort(u"no valid value: \"%1\""_s.arg(QString::fromUtf8(m_text.left(40))));
    add(parser, value);
}

void XmlPropertyListReader::endContainer(XmlEventParser &parser)
{
    const Level level = std::move(m_levels.back());
    m_levels.pop_back();
    if (level.key)
        return parser.abort(u"a key without a value"_s);
    if (const auto uid = uidFromDictionary(level.map))
        return add(parser, QVariant::fromValue(*uid));
    add(parser, level.isDictionary ? QVariant(level.map) : QVariant(level.list));
}

void XmlPropertyListReader::add(XmlEventParser &parser, const QVariant &value)
{
    if (m_levels.empty()) {
        m_value = value;
        return;
    }
    Level &level = m_levels.back();
    if (!level.isDictionary) {
        level.list.append(value);
        return;
    }
    // Writers sort the keys, so the end is where nearly all of them go.
    const qsizetype before = level.map.size();
    level.map.insert(level.map.cend(), *level.key, value);
    if (level.map.size() == before && m_manner == PropertyListManner::Strict)
        return parser.abort(u"the key \"%1\" is there twice"_s.arg(*level.key));
    level.key.reset();
}

}  // namespace

std::optional<PropertyListUid> uidFromDictionary(const QVariantMap &dictionary)
{
    if (dictionary.size() != 1 || dictionary.firstKey() != xmlUidKey)
        return {};
    const QVariant value = dictionary.first();
    const bool isNegative = value.typeId() != QMetaType::ULongLong && value.toLongLong() < 0;
    if (propertyListType(value) != PropertyListType::Integer || isNegative)
        return {};
    return PropertyListUid{value.toULongLong()};
}

PropertyListResult readXmlPropertyList(const QByteArray &bytes, const PropertyListLimits &limits,
                                       PropertyListManner manner)
{
    const bool isForgiving = manner == PropertyListManner::Forgiving;
    XmlPropertyListReader reader(limits, manner);
    // <plist> and a text stand around and in the containers, whose depth the reader counts itself.
    XmlEventParser parser(XmlLimits{.bytes = limits.bytes,
                                    .depth = limits.depth + 2,
                                    .encodings = isForgiving ? XmlEncodings::Windows1252Too : XmlEncodings::Standard});
    const auto text = std::find_if_not(bytes.begin(), isForgiving ? bytes.end() : bytes.begin(), isXmlSpace);
    const qint64 skipped = text - bytes.begin();
    if (const auto error = parser.parse(skipped > 0 ? bytes.sliced(skipped) : bytes, reader)) {
        const auto lines = int(std::count(bytes.begin(), text, '\n'));
        return {{}, PropertyListFormat::Xml, {error->message, error->offset + skipped, error->line + lines}};
    }
    return {reader.value(), PropertyListFormat::Xml, {}};
}

}  // namespace kestrel::foundation
