#include "PropertyList.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QElapsedTimer>
#include <QtEndian>

#include <climits>
#include <limits>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

QByteArray bigEndianBytes(quint64 value, int size)
{
    QByteArray bytes(8, Qt::Uninitialized);
    qToBigEndian(value, bytes.data());
    return bytes.last(size);
}

/// A binary list of objects as they stand in the file, object 0 being the root; the last arguments spoil its trailer.
QByteArray binaryPlist(const QList<QByteArray> &objects, int referenceSize = 1, int countError = 0, int tableError = 0)
{
    QByteArray file = "bplist00";
    QByteArray table;
    for (const QByteArray &object : objects) {
        table += bigEndianBytes(quint64(file.size()), 4);
        file += object;
    }
    const quint64 tableOffset = quint64(file.size() + tableError);
    return file + table + QByteArray(6, '\0') + '\4' + char(referenceSize) +
           bigEndianBytes(quint64(objects.size() + countError), 8) + bigEndianBytes(0, 8) +
           bigEndianBytes(tableOffset, 8);
}

QByteArray fromHex(const char *digits)
{
    return QByteArray::fromHex(digits);
}

}  // namespace

TEST(BinaryPropertyList, ReadsEveryKind)
{
    const struct {
        const char *name;
        QByteArray object;
        QVariant expected;
    } table[] = {
        {"2-byte integer is unsigned", fromHex("11ffff"), 65535},
        {"8-byte integer is signed", fromHex("13ffffffffffffffff"), -1},
        {"16-byte integer", fromHex("140000000000000000ffffffffffffffff"), std::numeric_limits<quint64>::max()},
        {"16-byte, negative", fromHex("14fffffffffffffffffffffffffffffffe"), -2},
        {"4-byte real", fromHex("223fc00000"), 1.5},
        {"date before the epoch", fromHex("33bff8000000000000"),
         QDateTime(QDate(2000, 12, 31), QTime(23, 59, 58, 500), Qt::UTC)},
        {"3-byte reference", fromHex("82010000"), QVariant::fromValue(PropertyListUid{65536})},
        {"long length of a short text", fromHex("5f130000000000000001") + 'a', u"a"_s},
        {"NUL in a text", fromHex("53610062"), u"a\0b"_s},
        {"surrogate pair", fromHex("62d83cdfac"), u"🎬"_s},
        {"empty set", fromHex("c0"), QVariantList()},
    };
    for (const auto &row : table) {
        SCOPED_TRACE(row.name);
        const PropertyListResult result = readPropertyList(binaryPlist({row.object}));
        ASSERT_TRUE(result.value) << result.error.toString().toStdString();
        EXPECT_TRUE(isSamePropertyList(*result.value, row.expected));
    }
    EXPECT_EQ(readPropertyList(binaryPlist({fromHex("d100000000000000010000000000000002"), "\x51k", "\x09"}, 8)).value,
              QVariant(QVariantMap{{u"k"_s, true}}));
}

TEST(BinaryPropertyList, RefusesBrokenLists)
{
    const QByteArray sound = binaryPlist({fromHex("a101"), "\x09"});
    ASSERT_TRUE(readPropertyList(sound).value);
    // Objects that all have the same bytes for their content.
    QList<QByteArray> overlapping{fromHex("ae0102030405060708090a0b0c0d0e")};
    overlapping.append(QList<QByteArray>(14, "\x4e"));
    overlapping.append("\x5e" + QByteArray(14, 'x'));
    const struct {
        const char *name;
        QByteArray bytes;
        const char *message;
    } table[] = {
        {"header only", "bplist00", "too short"},
        {"other version", "bplist15" + sound.sliced(8), "unknown version"},
        {"bytes behind the trailer", sound + '\0', "sizes out of range"},
        {"bytes before the trailer", sound.first(sound.size() - 32) + '\0' + sound.last(32), "does not fill"},
        {"no objects", binaryPlist({"\x09"}, 1, -1), "root object"},
        {"a count that overflows", binaryPlist({"\x09"}, 1, INT_MAX), "more than"},
        {"one object too many", binaryPlist({"\x09"}, 1, 1), "does not fill"},
        {"table before the objects", binaryPlist({"\x09"}, 1, 0, -1), "offset table"},
        {"table behind the end", binaryPlist({"\x09"}, 1, 0, 1 << 30), "offset table"},
        {"reference size 0", binaryPlist({"\x09"}, 0), "sizes out of range"},
        {"reference size 9", binaryPlist({"\x09"}, 9), "sizes out of range"},
        {"null", binaryPlist({QByteArray(1, '\0')}), "unknown object kind 0x00"},
        {"ordered set", binaryPlist({fromHex("b0")}), "unknown object kind 0xb0"},
        {"32-byte integer", binaryPlist({fromHex("15") + QByteArray(32, '\0')}), "unknown object kind"},
        {"2-byte real", binaryPlist({fromHex("210000")}), "unknown object kind"},
        {"integer past the end", binaryPlist({fromHex("13ffff")}), "past the end"},
        {"integer beyond 64 bits", binaryPlist({fromHex("1400000000000000010000000000000000")}),
         "integer out of range"},
        {"date not a number", binaryPlist({fromHex("337ff8000000000000")}), "date out of range"},
        {"date in the year 10000", binaryPlist({fromHex("33424d637cb8000000")}), "date out of range"},
        {"text past the end", binaryPlist({fromHex("5f10ff61")}), "past the end"},
        {"length that overflows", binaryPlist({fromHex("6f13800000000000000161")}), "past the end"},
        {"length past the end", binaryPlist({fromHex("5f13ff")}), "past the end"},
        {"length of a real", binaryPlist({fromHex("5f2200000001") + 'a'}), "no integer"},
        {"Latin-1 in a plain text", binaryPlist({fromHex("51e9")}), "other than ASCII"},
        {"half a surrogate pair", binaryPlist({fromHex("61d83c")}), "UTF-16"},
        {"reference out of range", binaryPlist({fromHex("a101")}), "reference out of range"},
        {"contains itself", binaryPlist({fromHex("a101"), fromHex("a100")}), "contains itself"},
        {"overlapping objects", binaryPlist(overlapping), "overlap"},
        {"key not a text", binaryPlist({fromHex("d10101"), "\x09"}), "no string"},
        {"key twice", binaryPlist({fromHex("d201010202"), "\x51k", "\x09"}), "twice"},
        {"key twice, in two objects", binaryPlist({fromHex("d201020303"), "\x51k", "\x51k", "\x09"}), "twice"},
    };
    for (const auto &row : table) {
        SCOPED_TRACE(row.name);
        const PropertyListResult result = readPropertyList(row.bytes);
        EXPECT_FALSE(result.value);
        EXPECT_TRUE(result.error.message.contains(QLatin1StringView(row.message)))
            << result.error.toString().toStdString();
        EXPECT_LE(result.error.offset, row.bytes.size());
    }
}

TEST(BinaryPropertyList, RefusesHostileSizesAtOnce)
{
    QList<QByteArray> chain;
    for (int i = 1; i <= 1'000'000; ++i)
        chain.append('\xA1' + bigEndianBytes(quint64(i), 4));
    QList<QByteArray> multiplying;
    for (int i = 1; i <= 30; ++i)
        multiplying.append(fromHex("a8") + QByteArray(8, char(i)));
    const struct {
        const char *name;
        QByteArray bytes;
        const char *message;
    } table[] = {
        {"a million levels", binaryPlist(chain + QList<QByteArray>{"\x09"}, 4), "nested deeper than 512"},
        {"references that multiply", binaryPlist(multiplying + QList<QByteArray>{"\x09"}), "more than 2000000 values"},
    };
    for (const auto &row : table) {
        SCOPED_TRACE(row.name);
        QElapsedTimer timer;
        timer.start();
        const PropertyListResult result = readPropertyList(row.bytes);
        EXPECT_FALSE(result.value);
        EXPECT_EQ(result.error.message, QLatin1StringView(row.message));
        EXPECT_LT(timer.elapsed(), 5000);
    }
}

TEST(BinaryPropertyList, SharesEqualParts)
{
    const QByteArray bytes = binaryPlist({fromHex("a20101"), fromHex("a102"), "\x09"});
    const QVariantList list = readPropertyList(bytes).value.value_or(QVariant()).toList();
    ASSERT_EQ(list.size(), 2);
    EXPECT_EQ(list[0].toList().constData(), list[1].toList().constData());
    // Equal scalars are written once: the array, one text, one number, one real.
    const QVariantList equal{u"text"_s, u"text"_s, 5, 5LL, 5.0, 5.0};
    EXPECT_EQ(qFromBigEndian<quint64>(writePropertyList(equal, PropertyListFormat::Binary).last(24).constData()), 4u);
    // The shared array is first met one level deep and then two.
    const QByteArray shared = binaryPlist({fromHex("a20102"), fromHex("a0"), fromHex("a101")});
    EXPECT_TRUE(readPropertyList(shared, {.depth = 3}).value);
    EXPECT_FALSE(readPropertyList(shared, {.depth = 2}).value);
}

}  // namespace kestrel::foundation
