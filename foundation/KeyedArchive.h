#pragma once

#include <QByteArray>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <optional>

namespace kestrel::foundation {

class KeyedArchiver;

/// Writes the fields of one object; handed to `KeyedArchivable::encodeWithCoder`. Keys that begin with "$" are escaped
/// as the platform does it.
class KeyedEncoder {
public:
    void encodeString(const QString &value, const QString &key);   ///< a null string is written as nil
    void encodeBool(bool value, const QString &key);               ///< inline in the object
    void encodeInteger(qint64 value, const QString &key);          ///< inline
    void encodeDouble(double value, const QString &key);           ///< inline
    void encodeNumber(const QVariant &value, const QString &key);  ///< a bool, integer or double by reference, else nil

private:
    friend class KeyedArchiver;
    explicit KeyedEncoder(KeyedArchiver &archiver) : m_archiver(archiver) {}
    void setField(const QString &key, const QVariant &value);

    KeyedArchiver &m_archiver;
    QVariantMap m_fields;
};

/// An object that is archived under a class name of its own.
class KeyedArchivable {
public:
    virtual ~KeyedArchivable() = default;
    /// The class and all its bases, most derived first, ending in "NSObject".
    virtual QStringList archiveClasses() const = 0;
    virtual void encodeWithCoder(KeyedEncoder &coder) const = 0;
};

/// Builds a keyed archive (binary property list with "$archiver", "$version", "$top", "$objects") whose root is a
/// dictionary. Equal strings and numbers are stored once; a key that is set again takes the new value.
class KeyedArchiver {
public:
    KeyedArchiver();
    ~KeyedArchiver();

    void setObject(const QString &key, const KeyedArchivable &object);
    /// A nested dictionary of number objects; entries of other types are left out.
    void setNumbers(const QString &key, const QVariantMap &numbers);
    /// The finished archive; null where a string in it is ill-formed, or it is beyond the limits of a property list.
    QByteArray archivedData() const;

private:
    friend class KeyedEncoder;
    struct Table;
    std::unique_ptr<Table> m_table;
};

/// Reads one archived object or dictionary. Everything asked for is checked where it is asked for: a missing key, a
/// reference out of range or back to an object that contains this one, a value of another type, a missing class record
/// reads as absent, and the rest of the archive stays readable. Copies are cheap and share the archive.
class KeyedDecoder {
public:
    /// The root object of an archive; nothing where the data is no keyed archive.
    static std::optional<KeyedDecoder> unarchive(const QByteArray &data);

    QString className() const;
    bool contains(const QString &key) const;  ///< present and not nil
    QString decodeString(
        const QString &key) const;              ///< null where absent or no string; plain and mutable ones are read
    bool decodeBool(const QString &key) const;  ///< numbers are read inline and by reference; false where absent
    qint64 decodeInteger(const QString &key) const;  ///< 0 where absent; reals are truncated towards zero and clamped
    double decodeDouble(const QString &key) const;   ///< 0 where absent
    std::optional<KeyedDecoder> decodeObject(const QString &key) const;  ///< an object or a dictionary, of any class
    /// As `decodeObject`, for an object of the class or of one derived from it.
    std::optional<KeyedDecoder> decodeObjectOfClass(const QString &className, const QString &key) const;

private:
    struct Archive;
    KeyedDecoder() = default;
    static std::optional<KeyedDecoder> open(const std::shared_ptr<const Archive> &archive, const QVariant &reference,
                                            const QList<quint64> &path);
    QVariant resolved(const QString &key) const;
    QVariant number(const QString &key) const;

    std::shared_ptr<const Archive> m_archive;
    QList<quint64> m_path;  ///< the object's own reference behind those of the objects around it
    QStringList m_classes;  ///< its class and the bases, as far as the class record has them
    QVariantMap m_fields;
};

}  // namespace kestrel::foundation
