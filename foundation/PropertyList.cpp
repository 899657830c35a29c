#include "PropertyList.h"

#include "BinaryPropertyList.h"
#include "XmlPropertyList.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

/// Whether the number is below zero, and its bits: the same for one number of whatever type.
std::pair<bool, quint64> integerParts(const QVariant &value)
{
    return {value.typeId() != QMetaType::ULongLong && value.toLongLong() < 0, value.toULongLong()};
}

bool isSameReal(double left, double right)
{
    return left == right || (std::isnan(left) && std::isnan(right));
}

bool isSameArray(const QVariantList &left, const QVariantList &right)
{
    // What is shared is equal; asking it first also keeps lists with many shared parts cheap.
    return left.constData() == right.constData()
               ? left.size() == right.size()
               : std::equal(left.begin(), left.end(), right.begin(), right.end(), isSamePropertyList);
}

bool isSameDictionary(const QVariantMap &left, const QVariantMap &right)
{
    if (left.isSharedWith(right))
        return true;
    const auto isSameEntry = [](const auto &a, const auto &b) {
        return a.first == b.first && isSamePropertyList(a.second, b.second);
    };
    return std::equal(left.constKeyValueBegin(), left.constKeyValueEnd(), right.constKeyValueBegin(),
                      right.constKeyValueEnd(), isSameEntry);
}

}  // namespace

QString PropertyListError::toString() const
{
    return line > 0 ? u"line %1, byte %2: %3"_s.arg(line).arg(offset).arg(message)
                    : u"byte %1: %2"_s.arg(offset).arg(message);
}

PropertyListResult readPropertyList(const QByteArray &bytes, const PropertyListLimits &limits,
                                    PropertyListManner manner)
{
    if (bytes.size() > limits.bytes)
        return {{}, {}, {u"longer than %1 bytes"_s.arg(limits.bytes), limits.bytes, 0}};
    return bytes.startsWith("bplist") ? readBinaryPropertyList(bytes, limits, manner)
                                      : readXmlPropertyList(bytes, limits, manner);
}

QByteArray writePropertyList(const QVariant &value, PropertyListFormat format)
{
    return format == PropertyListFormat::Binary ? writeBinaryPropertyList(value, {}) : writeXmlPropertyList(value, {});
}

PropertyListType propertyListType(const QVariant &value)
{
    static const struct {
        QMetaType metaType;
        PropertyListType type;
    } table[] = {
        {QMetaType::fromType<QString>(), PropertyListType::String},
        {QMetaType::fromType<bool>(), PropertyListType::Boolean},
        {QMetaType::fromType<qlonglong>(), PropertyListType::Integer},
        {QMetaType::fromType<QVariantMap>(), PropertyListType::Dictionary},
        {QMetaType::fromType<QVariantList>(), PropertyListType::Array},
        {QMetaType::fromType<double>(), PropertyListType::Real},
        {QMetaType::fromType<QByteArray>(), PropertyListType::Data},
        {QMetaType::fromType<QDateTime>(), PropertyListType::Date},
        {QMetaType::fromType<PropertyListUid>(), PropertyListType::Uid},
        {QMetaType::fromType<qulonglong>(), PropertyListType::Integer},
        {QMetaType::fromType<int>(), PropertyListType::Integer},
        {QMetaType::fromType<uint>(), PropertyListType::Integer},
    };
    const QMetaType metaType = value.metaType();
    for (const auto &row : table) {
        if (row.metaType == metaType)
            return row.type;
    }
    return PropertyListType::Invalid;
}

bool isSamePropertyList(const QVariant &left, const QVariant &right)
{
    const PropertyListType type = propertyListType(left);
    if (type != propertyListType(right))
        return false;
    switch (type) {
        case PropertyListType::Invalid:
            return left == right;
        case PropertyListType::Array:
            return isSameArray(left.toList(), right.toList());
        case PropertyListType::Dictionary:
            return isSameDictionary(left.toMap(), right.toMap());
        case PropertyListType::Integer:
            return integerParts(left) == integerParts(right);
        case PropertyListType::Real:
            return isSameReal(left.toDouble(), right.toDouble());
        case PropertyListType::String:
        case PropertyListType::Data:
        case PropertyListType::Boolean:
        case PropertyListType::Date:
        case PropertyListType::Uid:
            return left == right;
    }
    return false;
}

}  // namespace kestrel::foundation
