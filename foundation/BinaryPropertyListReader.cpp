#include "BinaryPropertyList.h"

#include <QDateTime>
#include <QtEndian>

#include <bit>
#include <cmath>
#include <limits>
#include <vector>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

constexpr qint64 binaryHeaderSize = 8;
constexpr qint64 binaryTrailerSize = 32;

/// Decodes each object once and keeps it, so that all references to it share it. Recursion is bounded by the depth
/// limit.
class BinaryPropertyListReader {
public:
    BinaryPropertyListReader(const QByteArray &bytes, const PropertyListLimits &limits, PropertyListManner manner)
        : m_bytes(bytes),
          m_limits(limits),
          m_manner(manner)
    {
    }

    PropertyListResult read();

private:
    enum class State : quint8 { Unread, Open, Done };

    struct Object {
        QVariant value;
        qint64 items = 0;  ///< values in it, with itself
        int height = 0;    ///< containers nested in it, with itself
        State state = State::Unread;
    };

    bool fail(const QString &message, qint64 offset);
    quint64 number(qint64 offset, int size) const;
    bool readTrailer();
    /// On success the object's `value` is there.
    bool readObject(quint64 index, int depth);
    bool decode(Object &object, qint64 offset, int depth);
    bool readCount(int marker, qint64 &offset, quint64 &count);
    bool claim(qint64 offset, quint64 count, int unitSize);
    bool decodeInteger(QVariant &value, qint64 offset, int size);
    bool decodeReal(QVariant &value, qint64 offset, int size);
    bool decodeDate(QVariant &value, qint64 offset);
    bool decodeString(QVariant &value, qint64 offset, qsizetype count, bool isWide);
    bool decodeContainer(Object &object, qint64 offset, qsizetype count, bool isDictionary, int depth);
    bool follow(qint64 offset, int depth, quint64 &index);
    const QVariant *child(Object &parent, qint64 offset, int depth);

    const QByteArray &m_bytes;
    PropertyListLimits m_limits;
    PropertyListManner m_manner;
    PropertyListError m_error;

    int m_offsetSize = 0;
    int m_referenceSize = 0;
    quint64 m_top = 0;
    qint64 m_table = 0;      ///< where the offset table begins, and the objects end
    qint64 m_unclaimed = 0;  ///< bytes of objects that none has been decoded from yet
    qint64 m_items = 0;
    std::vector<Object> m_objects;
};

bool BinaryPropertyListReader::fail(const QString &message, qint64 offset)
{
    m_error = {message, offset, 0};
    return false;
}

/// Big-endian, of 1 to 8 bytes that are known to be there.
quint64 BinaryPropertyListReader::number(qint64 offset, int size) const
{
    quint64 value = 0;
    for (int i = 0; i < size; ++i)
        value = value << 8 | quint8(m_bytes[offset + i]);
    return value;
}

bool BinaryPropertyListReader::readTrailer()
{
    const qint64 trailer = m_bytes.size() - binaryTrailerSize;
    if (!m_bytes.startsWith("bplist00"))
        return fail(u"unknown version of the binary form"_s, 0);
    if (trailer <= binaryHeaderSize)
        return fail(u"too short"_s, m_bytes.size());
    m_offsetSize = quint8(m_bytes[trailer + 6]);
    m_referenceSize = quint8(m_bytes[trailer + 7]);
    const quint64 count = number(trailer + 8, 8);
    m_top = number(trailer + 16, 8);
    const quint64 table = number(trailer + 24, 8);
    if (m_offsetSize < 1 || m_offsetSize > 8 || m_referenceSize < 1 || m_referenceSize > 8)
        return fail(u"number sizes out of range"_s, trailer + 6);
    if (m_top >= count)
        return fail(u"the root object is out of range"_s, trailer + 16);
    if (count > quint64(m_limits.items))
        return fail(u"more than %1 objects"_s.arg(m_limits.items), trailer + 8);
    if (table <= quint64(binaryHeaderSize) || table > quint64(trailer))
        return fail(u"the offset table is out of range"_s, trailer + 24);
    // Nothing may lie between the table and the trailer; the count is small enough for the product.
    if (count * quint64(m_offsetSize) != quint64(trailer) - table)
        return fail(u"the offset table does not fill its place"_s, qint64(table));
    m_table = qint64(table);
    m_unclaimed = m_table - binaryHeaderSize;
    m_objects.resize(count);
    return true;
}

PropertyListResult BinaryPropertyListReader::read()
{
    if (!readTrailer() || !readObject(m_top, 0))
        return {{}, PropertyListFormat::Binary, m_error};
    return {m_objects[m_top].value, PropertyListFormat::Binary, {}};
}

bool BinaryPropertyListReader::readObject(quint64 index, int depth)
{
    const qint64 entry = m_table + qint64(index) * m_offsetSize;
    const quint64 offset = number(entry, m_offsetSize);
    if (offset < quint64(binaryHeaderSize) || offset >= quint64(m_table))
        return fail(u"object offset out of range"_s, entry);
    Object &object = m_objects[index];
    if (object.state == State::Open)
        return fail(u"an object contains itself"_s, qint64(offset));
    if (object.state == State::Unread) {
        object.state = State::Open;
        object.items = 1;
        if (!decode(object, qint64(offset), depth))
            return false;
        object.state = State::Done;
    }
    // Decoded children were checked on the way; a shared object may be deeper here than where it was first met.
    if (depth + object.height > m_limits.depth)
        return fail(u"nested deeper than %1"_s.arg(m_limits.depth), qint64(offset));
    return true;
}

/// Takes `count` units behind `offset` as the content of one object. Objects of a sound list do not overlap, so all
/// contents together fit once; a list that has one content decoded over and over is caught here.
bool BinaryPropertyListReader::claim(qint64 offset, quint64 count, int unitSize)
{
    const qint64 room = m_table - offset;
    if (count > quint64(room / unitSize))
        return fail(u"an object reaches past the end"_s, offset);
    m_unclaimed -= qint64(count) * unitSize;
    return m_unclaimed >= 0 || fail(u"objects overlap"_s, offset);
}

/// The length of what `marker` begins: in its low half, or in an integer that follows.
bool BinaryPropertyListReader::readCount(int marker, qint64 &offset, quint64 &count)
{
    count = quint64(marker & 0x0F);
    if (count != 0x0F)
        return true;
    if (offset >= m_table)
        return fail(u"an object reaches past the end"_s, offset);
    const int sizeMarker = quint8(m_bytes[offset]);
    if (sizeMarker < 0x10 || sizeMarker > 0x13)
        return fail(u"a length that is no integer"_s, offset);
    const int size = 1 << (sizeMarker & 0x0F);
    if (size > m_table - offset - 1)
        return fail(u"an object reaches past the end"_s, offset);
    count = number(offset + 1, size);
    offset += 1 + size;
    return true;
}

bool BinaryPropertyListReader::decode(Object &object, qint64 offset, int depth)
{
    const int marker = quint8(m_bytes[offset]);
    const int low = marker & 0x0F;
    const int kind = marker >> 4;
    qint64 content = offset + 1;
    quint64 count = 0;
    switch (kind) {
        case 0x0:
            if (marker != 0x08 && marker != 0x09)
                break;
            object.value = marker == 0x09;
            return true;
        case 0x1:
            if (low > 4)
                break;
            return claim(content, 1, 1 << low) && decodeInteger(object.value, content, 1 << low);
        case 0x2:
            if (low != 2 && low != 3)
                break;
            return claim(content, 1, 1 << low) && decodeReal(object.value, content, 1 << low);
        case 0x3:
            if (low != 3)
                break;
            return claim(content, 1, 8) && decodeDate(object.value, content);
        case 0x4:
            if (!readCount(marker, content, count) || !claim(content, count, 1))
                return false;
            object.value = m_bytes.sliced(content, qsizetype(count));
            return true;
        case 0x5:
        case 0x6:
            return readCount(marker, content, count) && claim(content, count, kind == 0x6 ? 2 : 1) &&
                   decodeString(object.value, content, qsizetype(count), kind == 0x6);
        case 0x8:
            if (low > 7)
                break;
            if (!claim(content, quint64(low) + 1, 1))
                return false;
            object.value = QVariant::fromValue(PropertyListUid{number(content, low + 1)});
            return true;
        case 0xA:
        case 0xC:
        case 0xD:
            if (depth >= m_limits.depth)
                return fail(u"nested deeper than %1"_s.arg(m_limits.depth), offset);
            return readCount(marker, content, count) &&
                   claim(content, count, m_referenceSize * (kind == 0xD ? 2 : 1)) &&
                   decodeContainer(object, content, qsizetype(count), kind == 0xD, depth);
    }
    return fail(u"unknown object kind 0x%1"_s.arg(marker, 2, 16, '0'_L1), offset);
}

/// Up to 4 bytes are unsigned, 8 are signed, 16 hold what is above the signed range.
bool BinaryPropertyListReader::decodeInteger(QVariant &value, qint64 offset, int size)
{
    if (size <= 8) {
        value = qlonglong(number(offset, size));
        return true;
    }
    const quint64 high = number(offset, 8);
    const quint64 low = number(offset + 8, 8);
    const bool hasSignBit = low > quint64(std::numeric_limits<qint64>::max());
    if (high == 0)
        value = hasSignBit ? QVariant(qulonglong(low)) : QVariant(qlonglong(low));
    else if (high == std::numeric_limits<quint64>::max() && hasSignBit)
        value = qlonglong(low);
    else
        return fail(u"integer out of range"_s, offset);
    return true;
}

bool BinaryPropertyListReader::decodeReal(QVariant &value, qint64 offset, int size)
{
    if (size == 4)
        value = double(std::bit_cast<float>(quint32(number(offset, 4))));
    else
        value = std::bit_cast<double>(number(offset, 8));
    return true;
}

bool BinaryPropertyListReader::decodeDate(QVariant &value, qint64 offset)
{
    static const qint64 epoch = QDateTime(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC).toMSecsSinceEpoch();
    const double milliseconds = std::round(std::bit_cast<double>(number(offset, 8)) * 1000);
    // Roughly the years that count, so that the conversion is safe; NaN fails too.
    if (!(std::abs(milliseconds) < 1e15))
        return fail(u"date out of range"_s, offset);
    const QDateTime date = QDateTime::fromMSecsSinceEpoch(epoch + qint64(milliseconds), Qt::UTC);
    if (date.date().year() < 1 || date.date().year() > 9999)
        return fail(u"date out of range"_s, offset);
    value = date;
    return true;
}

bool BinaryPropertyListReader::decodeString(QVariant &value, qint64 offset, qsizetype count, bool isWide)
{
    if (!isWide) {
        const QByteArrayView ascii = QByteArrayView(m_bytes).sliced(offset, count);
        for (qsizetype i = 0; i < count; ++i) {
            if (quint8(ascii[i]) > 0x7F)
                return fail(u"a plain string with other than ASCII"_s, offset + i);
        }
        value = QString::fromLatin1(ascii);
        return true;
    }
    QString text(count, Qt::Uninitialized);
    qFromBigEndian<quint16>(m_bytes.constData() + offset, count, text.data());
    if (!text.isValidUtf16())
        return fail(u"ill-formed UTF-16"_s, offset);
    value = text;
    return true;
}

/// Whether the reference at `offset` leads to an object, which then has been read; `index` is the object's.
bool BinaryPropertyListReader::follow(qint64 offset, int depth, quint64 &index)
{
    index = number(offset, m_referenceSize);
    if (index >= m_objects.size())
        return fail(u"a reference out of range"_s, offset);
    return readObject(index, depth);
}

/// The value that the reference at `offset` names, read; its size goes into the parent's.
const QVariant *BinaryPropertyListReader::child(Object &parent, qint64 offset, int depth)
{
    const qint64 before = m_items;
    quint64 index = 0;
    if (!follow(offset, depth, index))
        return nullptr;
    // What was read just now has counted its content on the way; what is shared counts again as a whole.
    const Object &object = m_objects[index];
    m_items = before + object.items;
    if (m_items > m_limits.items) {
        fail(u"more than %1 values"_s.arg(m_limits.items), offset);
        return nullptr;
    }
    parent.items += object.items;
    parent.height = qMax(parent.height, object.height + 1);
    return &object.value;
}

bool BinaryPropertyListReader::decodeContainer(Object &object, qint64 offset, qsizetype count, bool isDictionary,
                                               int depth)
{
    object.height = 1;
    QVariantList list;
    QVariantMap map;
    for (qsizetype i = 0; i < count; ++i) {
        const qint64 reference = offset + i * m_referenceSize;
        if (!isDictionary) {
            const QVariant *const value = child(object, reference, depth + 1);
            if (!value)
                return false;
            list.append(*value);
            continue;
        }
        quint64 key = 0;
        if (!follow(reference, depth + 1, key))
            return false;
        if (m_objects[key].value.typeId() != QMetaType::QString)
            return fail(u"a key that is no string"_s, reference);
        const QVariant *const value = child(object, reference + count * m_referenceSize, depth + 1);
        if (!value)
            return false;
        map.insert(map.cend(), m_objects[key].value.toString(), *value);
        if (map.size() != i + 1 && m_manner == PropertyListManner::Strict)
            return fail(u"a key is there twice"_s, reference);
    }
    object.value = isDictionary ? QVariant(map) : QVariant(list);
    return true;
}

}  // namespace

PropertyListResult readBinaryPropertyList(const QByteArray &bytes, const PropertyListLimits &limits,
                                          PropertyListManner manner)
{
    return BinaryPropertyListReader(bytes, limits, manner).read();
}

}  // namespace kestrel::foundation
