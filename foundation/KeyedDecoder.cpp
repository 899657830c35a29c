#include "KeyedArchive.h"

#include "Numbers.h"
#include "PropertyList.h"

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

struct KeyedDecoder::Archive {
    /// The entry that a reference names; invalid for nil, for what is no reference, and where there is no such entry.
    QVariant entry(const QVariant &reference) const
    {
        if (propertyListType(reference) != PropertyListType::Uid)
            return {};
        const quint64 uid = reference.value<PropertyListUid>().value;
        return uid > 0 && uid < quint64(objects.size()) ? objects[qsizetype(uid)] : QVariant();
    }

    QString string(const QVariant &reference) const;
    QStringList classes(const QVariantMap &object) const;
    std::optional<QVariantMap> fields(const QVariantMap &object, const QStringList &classes) const;

    QVariantList objects;
};

namespace {

QString stringIn(const QVariant &value)
{
    return propertyListType(value) == PropertyListType::String ? value.toString() : QString();
}

}  // namespace

/// A plain string or a mutable one, which is an object.
QString KeyedDecoder::Archive::string(const QVariant &reference) const
{
    const QVariant value = entry(reference);
    if (propertyListType(value) != PropertyListType::Dictionary)
        return stringIn(value);
    const QVariantMap object = value.toMap();
    return classes(object).isEmpty() ? QString() : stringIn(object.value(u"NS.string"_s));
}

/// The object's class and its bases; empty where it has no class record.
QStringList KeyedDecoder::Archive::classes(const QVariantMap &object) const
{
    const QVariantMap record = entry(object.value(u"$class"_s)).toMap();
    QStringList names(stringIn(record.value(u"$classname"_s)));
    if (names.first().isEmpty())
        return {};
    const QVariantList listed = record.value(u"$classes"_s).toList();
    for (const QVariant &name : listed)
        names.append(stringIn(name));
    return names;
}

/// What the object holds, under the keys as they were given when it was written.
std::optional<QVariantMap> KeyedDecoder::Archive::fields(const QVariantMap &object, const QStringList &classes) const
{
    QVariantMap result;
    if (classes.contains("NSDictionary"_L1) || classes.first() == "NSMutableDictionary"_L1) {
        const QVariantList keys = object.value(u"NS.keys"_s).toList();
        const QVariantList values = object.value(u"NS.objects"_s).toList();
        if (keys.size() != values.size())
            return {};
        for (qsizetype i = 0; i < keys.size(); ++i) {
            if (const QString key = string(keys[i]); !key.isNull())
                result.insert(key, values[i]);
        }
        return result;
    }
    for (auto field = object.cbegin(); field != object.cend(); ++field) {
        if (field.key().startsWith("$$"_L1))
            result.insert(field.key().sliced(1), field.value());
        else if (!field.key().startsWith(u'$'))
            result.insert(field.key(), field.value());
    }
    return result;
}

std::optional<KeyedDecoder> KeyedDecoder::unarchive(const QByteArray &data)
{
    const QVariantMap top = readPropertyList(data).value.value_or(QVariant()).toMap();
    if (stringIn(top.value(u"$archiver"_s)) != "NSKeyedArchiver"_L1 ||
        !isSamePropertyList(top.value(u"$version"_s), 100000))
        return {};
    const auto archive = std::make_shared<const Archive>(Archive{top.value(u"$objects"_s).toList()});
    return open(archive, top.value(u"$top"_s).toMap().value(u"root"_s), {});
}

std::optional<KeyedDecoder> KeyedDecoder::open(const std::shared_ptr<const Archive> &archive, const QVariant &reference,
                                               const QList<quint64> &path)
{
    const QVariant entry = archive->entry(reference);
    const quint64 uid = reference.value<PropertyListUid>().value;
    if (propertyListType(entry) != PropertyListType::Dictionary || path.contains(uid))
        return {};
    const QStringList classes = archive->classes(entry.toMap());
    const auto fields = classes.isEmpty() ? std::nullopt : archive->fields(entry.toMap(), classes);
    if (!fields)
        return {};
    KeyedDecoder decoder;
    decoder.m_archive = archive;
    decoder.m_path = path + QList{uid};
    decoder.m_classes = classes;
    decoder.m_fields = *fields;
    return decoder;
}

QString KeyedDecoder::className() const
{
    return m_classes.first();
}

/// The field itself, or the entry that it refers to.
QVariant KeyedDecoder::resolved(const QString &key) const
{
    const QVariant field = m_fields.value(key);
    return propertyListType(field) == PropertyListType::Uid ? m_archive->entry(field) : field;
}

/// The field where it is a boolean or a number, else invalid.
QVariant KeyedDecoder::number(const QString &key) const
{
    const QVariant value = resolved(key);
    switch (propertyListType(value)) {
        case PropertyListType::Boolean:
        case PropertyListType::Integer:
        case PropertyListType::Real:
            return value;
        default:
            return {};
    }
}

bool KeyedDecoder::contains(const QString &key) const
{
    const QVariant value = resolved(key);
    return propertyListType(value) == PropertyListType::Dictionary ? decodeObject(key).has_value() : value.isValid();
}

QString KeyedDecoder::decodeString(const QString &key) const
{
    return m_archive->string(m_fields.value(key));
}

bool KeyedDecoder::decodeBool(const QString &key) const
{
    return decodeDouble(key) != 0;
}

qint64 KeyedDecoder::decodeInteger(const QString &key) const
{
    return integerValue(number(key));
}

double KeyedDecoder::decodeDouble(const QString &key) const
{
    return number(key).toDouble();
}

std::optional<KeyedDecoder> KeyedDecoder::decodeObject(const QString &key) const
{
    return open(m_archive, m_fields.value(key), m_path);
}

std::optional<KeyedDecoder> KeyedDecoder::decodeObjectOfClass(const QString &className, const QString &key) const
{
    const auto object = decodeObject(key);
    return object && object->m_classes.contains(className) ? object : std::nullopt;
}

}  // namespace kestrel::foundation
