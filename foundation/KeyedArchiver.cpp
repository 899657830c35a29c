#include "KeyedArchive.h"
#include "PropertyList.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

struct KeyedArchiver::Table {
    QVariant add(const QVariant &object)
    {
        objects.append(object);
        return QVariant::fromValue(PropertyListUid{quint64(objects.size() - 1)});
    }

    /// The reference to a string or a number, which is stored once.
    QVariant scalar(const QVariant &value)
    {
        QVariant &reference = scalars[writePropertyList(value, PropertyListFormat::Binary)];
        if (!reference.isValid())
            reference = add(value);
        return reference;
    }

    QVariant classRecord(const QStringList &classes)
    {
        QVariant &reference = classRecords[classes];
        if (!reference.isValid()) {
            const QVariantList names(classes.begin(), classes.end());
            reference = add(QVariantMap{{u"$classname"_s, classes.value(0)}, {u"$classes"_s, names}});
        }
        return reference;
    }

    QVariantMap dictionary(const QVariantMap &references)
    {
        QVariantList keys;
        for (auto entry = references.keyBegin(); entry != references.keyEnd(); ++entry)
            keys.append(scalar(*entry));
        return {{u"NS.keys"_s, keys},
                {u"NS.objects"_s, references.values()},
                {u"$class"_s, classRecord({u"NSDictionary"_s, u"NSObject"_s})}};
    }

    static QVariant nil() { return QVariant::fromValue(PropertyListUid{0}); }

    QVariantList objects{u"$null"_s};
    QHash<QByteArray, QVariant> scalars;  ///< references by the bytes of the value, which tell 1, 1.0 and true apart
    QHash<QStringList, QVariant> classRecords;
    QVariantMap root;  ///< references by key
};

namespace {

bool isNumberObject(const QVariant &value)
{
    const PropertyListType type = propertyListType(value);
    return type == PropertyListType::Boolean || type == PropertyListType::Integer || type == PropertyListType::Real;
}

}  // namespace

void KeyedEncoder::setField(const QString &key, const QVariant &value)
{
    m_fields.insert(key.startsWith(u'$') ? u'$' + key : key, value);
}

void KeyedEncoder::encodeString(const QString &value, const QString &key)
{
    setField(key, value.isNull() ? KeyedArchiver::Table::nil() : m_archiver.m_table->scalar(value));
}

void KeyedEncoder::encodeBool(bool value, const QString &key)
{
    setField(key, value);
}

void KeyedEncoder::encodeInteger(qint64 value, const QString &key)
{
    setField(key, value);
}

void KeyedEncoder::encodeDouble(double value, const QString &key)
{
    setField(key, value);
}

void KeyedEncoder::encodeNumber(const QVariant &value, const QString &key)
{
    setField(key, isNumberObject(value) ? m_archiver.m_table->scalar(value) : KeyedArchiver::Table::nil());
}

KeyedArchiver::KeyedArchiver() : m_table(std::make_unique<Table>()) {}

KeyedArchiver::~KeyedArchiver() = default;

void KeyedArchiver::setObject(const QString &key, const KeyedArchivable &object)
{
    KeyedEncoder encoder(*this);
    object.encodeWithCoder(encoder);
    encoder.m_fields.insert(u"$class"_s, m_table->classRecord(object.archiveClasses()));
    m_table->root.insert(key, m_table->add(encoder.m_fields));
}

void KeyedArchiver::setNumbers(const QString &key, const QVariantMap &numbers)
{
    QVariantMap references;
    for (auto number = numbers.cbegin(); number != numbers.cend(); ++number) {
        if (isNumberObject(number.value()))
            references.insert(number.key(), m_table->scalar(number.value()));
    }
    m_table->root.insert(key, m_table->add(m_table->dictionary(references)));
}

QByteArray KeyedArchiver::archivedData() const
{
    Table whole = *m_table;
    const QVariant root = whole.add(whole.dictionary(whole.root));
    const QVariantMap archive{{u"$archiver"_s, u"NSKeyedArchiver"_s},
                              {u"$version"_s, 100000},
                              {u"$top"_s, QVariantMap{{u"root"_s, root}}},
                              {u"$objects"_s, whole.objects}};
    return writePropertyList(archive, PropertyListFormat::Binary);
}

}  // namespace kestrel::foundation
