#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <optional>

namespace kestrel::foundation {

/// A reference to an entry of a keyed archive's object table; the only property-list type that QVariant lacks.
struct PropertyListUid {
    quint64 value = 0;
    bool operator==(const PropertyListUid &) const = default;
};

/// Property lists as QVariant trees:
///
///     string QString       array QVariantList    dictionary QVariantMap    data QByteArray
///     boolean bool         integer qlonglong (qulonglong above its range)  real double
///     date QDateTime in UTC (to the second in XML, to the millisecond in binary)    reference PropertyListUid
///
/// A set reads as an array. Objects that a binary list shares stay shared in memory (QVariant's implicit sharing). A
/// list is read whole or not at all: damaged, incomplete or ambiguous input (a dictionary with a key twice, trailing
/// bytes) is refused.
struct PropertyListError {
    QString message;    ///< what is wrong, in English, for the log
    qint64 offset = 0;  ///< byte position in the input
    int line = 0;       ///< line in an XML list, from 1; 0 in a binary one
    QString toString() const;
};

/// What a reader accepts; a list beyond any of these is refused. Writers keep to the default limits.
struct PropertyListLimits {
    qint64 bytes = 64 * 1024 * 1024;
    int depth = 512;           ///< nested arrays and dictionaries; the stack needed grows with it
    qint64 items = 2'000'000;  ///< values, counted as if every shared reference were a copy
};

enum class PropertyListFormat { Xml, Binary };

/// How a list that is unsound but can be understood is taken: an archive has none of it, while a document that somebody
/// has written may have a dictionary with a key twice (the last counts) or, in XML, blanks before its declaration, or
/// characters of windows-1252.
enum class PropertyListManner { Strict, Forgiving };

struct PropertyListResult {
    std::optional<QVariant> value;
    PropertyListFormat format = PropertyListFormat::Xml;  ///< the form that was found; meaningful with a value
    PropertyListError error;                              ///< meaningful without a value
};

/// Reads either form, told apart by the first bytes. In XML a dictionary whose one entry is a number not below 0 under
/// "CF$UID" reads as a reference.
PropertyListResult readPropertyList(const QByteArray &bytes, const PropertyListLimits &limits = {},
                                    PropertyListManner manner = PropertyListManner::Strict);

/// Null where `value` holds something that a property list cannot: another type, null, ill-formed UTF-16, a date
/// outside years 1 to 9999, more than the default limits; in the XML form also control characters and a dictionary that
/// would read as a reference.
QByteArray writePropertyList(const QVariant &value, PropertyListFormat format);

enum class PropertyListType { Invalid, String, Array, Dictionary, Data, Boolean, Integer, Real, Date, Uid };

/// The type as which a value is written; the shorter integers count as integers. Invalid where it cannot be.
PropertyListType propertyListType(const QVariant &value);

/// Equality of type and value at every level: true is not 1 and 1 is not 1.0. NaN equals itself.
bool isSamePropertyList(const QVariant &left, const QVariant &right);

}  // namespace kestrel::foundation

Q_DECLARE_METATYPE(kestrel::foundation::PropertyListUid)
