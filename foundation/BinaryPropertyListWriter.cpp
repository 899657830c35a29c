#include "BinaryPropertyList.h"

#include <QDateTime>
#include <QHash>
#include <QtEndian>

#include <algorithm>
#include <bit>
#include <limits>
#include <optional>
#include <vector>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

/// `value` as big-endian bytes.
QByteArray bigEndian(quint64 value, int size)
{
    const quint64 swapped = qToBigEndian(value);
    return QByteArray(reinterpret_cast<const char *>(&swapped), sizeof swapped).last(size);
}

int minimalSize(quint64 value)
{
    return value <= 0xFF ? 1 : value <= 0xFFFF ? 2 : value <= 0xFFFFFFFF ? 4 : 8;
}

QByteArray encodedInteger(quint64 value, bool isNegative)
{
    if (!isNegative && value > quint64(std::numeric_limits<qint64>::max()))
        return '\x14' + bigEndian(0, 8) + bigEndian(value, 8);
    const int size = isNegative ? 8 : minimalSize(value);
    return char(0x10 | std::countr_zero(unsigned(size))) + bigEndian(value, size);
}

QByteArray encodedHead(int kind, qsizetype count)
{
    return count < 15 ? QByteArray(1, char(kind << 4 | int(count)))
                      : char(kind << 4 | 0xF) + encodedInteger(quint64(count), false);
}

QByteArray encodedText(const QString &text)
{
    if (!text.isValidUtf16())
        return {};
    if (std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; }))
        return encodedHead(0x5, text.size()) + text.toLatin1();
    QByteArray wide(text.size() * 2, Qt::Uninitialized);
    qToBigEndian<char16_t>(text.utf16(), text.size(), wide.data());
    return encodedHead(0x6, text.size()) + wide;
}

QByteArray encodedDate(const QDateTime &date)
{
    static const qint64 epoch = QDateTime(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC).toMSecsSinceEpoch();
    const int year = date.toUTC().date().year();
    if (!date.isValid() || year < 1 || year > 9999)
        return {};
    return '\x33' + bigEndian(std::bit_cast<quint64>(double(date.toMSecsSinceEpoch() - epoch) / 1000), 8);
}

/// The whole object as it stands in the file; empty where the value cannot be written or is a container.
QByteArray encodedScalar(const QVariant &value)
{
    switch (propertyListType(value)) {
        case PropertyListType::Invalid:
        case PropertyListType::Array:
        case PropertyListType::Dictionary:
            return {};
        case PropertyListType::String:
            return encodedText(value.toString());
        case PropertyListType::Data:
            return encodedHead(0x4, value.toByteArray().size()) + value.toByteArray();
        case PropertyListType::Boolean:
            return QByteArray(1, value.toBool() ? '\x09' : '\x08');
        case PropertyListType::Integer:
            return encodedInteger(value.toULongLong(),
                                  value.typeId() != QMetaType::ULongLong && value.toLongLong() < 0);
        case PropertyListType::Real:
            return '\x23' + bigEndian(std::bit_cast<quint64>(value.toDouble()), 8);
        case PropertyListType::Date:
            return encodedDate(value.toDateTime());
        case PropertyListType::Uid: {
            const quint64 uid = value.value<PropertyListUid>().value;
            return char(0x80 | (minimalSize(uid) - 1)) + bigEndian(uid, minimalSize(uid));
        }
    }
    return {};
}

class BinaryPropertyListWriter {
public:
    explicit BinaryPropertyListWriter(const PropertyListLimits &limits) : m_limits(limits) {}

    /// Takes `value` and what is in it as objects, the first one as object 0. False where it cannot be written.
    bool add(const QVariant &value, int depth);
    QByteArray file() const;

private:
    struct Object {
        QByteArray bytes;  ///< of a container only the head
        std::vector<quint64> references;
    };

    std::optional<quint64> reference(const QVariant &value, int depth);

    PropertyListLimits m_limits;
    qint64 m_items = 0;
    qint64 m_size = 0;
    std::vector<Object> m_objects;
    QHash<QByteArray, quint64> m_scalars;  ///< by their bytes, so that equal ones are written once
};

bool BinaryPropertyListWriter::add(const QVariant &value, int depth)
{
    return ++m_items <= m_limits.items && reference(value, depth).has_value();
}

std::optional<quint64> BinaryPropertyListWriter::reference(const QVariant &value, int depth)
{
    const quint64 index = m_objects.size();
    const PropertyListType type = propertyListType(value);
    const bool isDictionary = type == PropertyListType::Dictionary;
    if (!isDictionary && type != PropertyListType::Array) {
        const QByteArray bytes = encodedScalar(value);
        const auto known = m_scalars.constFind(bytes);
        if (bytes.isEmpty() || known != m_scalars.cend())
            return bytes.isEmpty() ? std::nullopt : std::optional(*known);
        m_size += bytes.size();
        if (m_size > m_limits.bytes)
            return {};
        m_objects.push_back({bytes, {}});
        m_scalars.insert(bytes, index);
        return index;
    }
    if (depth >= m_limits.depth)
        return {};
    const QVariantMap map = isDictionary ? value.toMap() : QVariantMap();
    const QVariantList list = isDictionary ? map.values() : value.toList();
    m_objects.push_back({encodedHead(isDictionary ? 0xD : 0xA, list.size()), {}});
    std::vector<quint64> references;
    const auto take = [&](const QVariant &part) {
        const auto partIndex = reference(part, depth + 1);
        references.push_back(partIndex.value_or(0));
        return partIndex.has_value();
    };
    m_items += list.size();
    if (m_items > m_limits.items || !std::all_of(map.keyBegin(), map.keyEnd(), take) ||
        !std::all_of(list.begin(), list.end(), take))
        return {};
    m_objects[index].references = std::move(references);
    return index;
}

QByteArray BinaryPropertyListWriter::file() const
{
    const int referenceSize = minimalSize(m_objects.size() - 1);
    QByteArray file = "bplist00";
    std::vector<qsizetype> offsets;
    for (const Object &object : m_objects) {
        offsets.push_back(file.size());
        file += object.bytes;
        for (const quint64 reference : object.references)
            file += bigEndian(reference, referenceSize);
    }
    const qsizetype table = file.size();
    const int offsetSize = minimalSize(quint64(table));
    for (const qsizetype offset : offsets)
        file += bigEndian(quint64(offset), offsetSize);
    file += QByteArray(6, '\0') + char(offsetSize) + char(referenceSize);
    file += bigEndian(m_objects.size(), 8) + bigEndian(0, 8) + bigEndian(quint64(table), 8);
    return file;
}

}  // namespace

QByteArray writeBinaryPropertyList(const QVariant &value, const PropertyListLimits &limits)
{
    BinaryPropertyListWriter writer(limits);
    if (!writer.add(value, 0))
        return {};
    const QByteArray file = writer.file();
    return file.size() <= limits.bytes ? file : QByteArray();
}

}  // namespace kestrel::foundation
