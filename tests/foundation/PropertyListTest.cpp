#include "foundation/PropertyList.h"

#include "foundation/KeyedArchive.h"

#include <gtest/gtest.h>

#include <QDataStream>
#include <QDateTime>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <climits>
#include <cmath>
#include <ctime>
#include <limits>
#include <random>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

QByteArray plistFile(const QString &name)
{
    QFile file(QDir(QStringLiteral(KESTREL_TEST_DATA)).filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A binary list of objects as they stand in the file, object 0 being the root; the last arguments spoil its trailer.
QByteArray binaryPlist(const QList<QByteArray> &objects, quint8 referenceSize = 1, int countError = 0,
                       int tableError = 0)
{
    QByteArray file = "bplist00";
    QByteArray table;
    QDataStream stream(&table, QIODevice::WriteOnly);
    for (const QByteArray &object : objects) {
        stream << quint32(file.size());
        file += object;
    }
    stream << quint32(0) << quint16(0) << quint8(4) << referenceSize << quint64(objects.size() + countError)
           << quint64(0) << quint64(file.size() + tableError);
    return file + table;
}

const auto fromHex = QByteArray::fromHex;

QVariant plistUid(quint64 value)
{
    return QVariant::fromValue(PropertyListUid{value});
}

/// Every type that both forms carry, at its boundaries.
QVariantMap richPlist()
{
    using Signed = std::numeric_limits<qint64>;
    const auto date = [](int year, int month, int day) { return QDate(year, month, day).startOfDay(Qt::UTC); };
    return {{u"strings"_s, QVariantList{u" two\tlines\r\n"_s, u"<a> & \"b\" ]]>"_s, u""_s, u"é日本"_s, u"🎬"_s}},
            {u"integers"_s, QVariantList{0, 255, 256, 65535, 65536, 4294967295LL, 4294967296LL, -1, -129, Signed::max(),
                                         Signed::min(), std::numeric_limits<quint64>::max()}},
            {u"reals"_s, QVariantList{true, 1.0, 0.1, -2.5e-300, 5e-324, 1.7976931348623157e308, -HUGE_VAL}},
            {u"dates"_s, QVariantList{date(1, 1, 1), date(2024, 2, 29).addSecs(86399), date(9999, 12, 31)}},
            {u"data"_s,
             QVariantList{QVariantMap(), QVariantList(), QByteArray(""), QByteArray("\0\xff\n", 3).repeated(100)}},
            {u"é & <key>"_s, QVariantMap{{u""_s, QVariantList(20, u"text"_s)}}}};
}

}  // namespace

TEST(PropertyList, WritesXmlInThePlatformsLook)
{
    const QDateTime date(QDate(2024, 1, 2), QTime(3, 4, 5), Qt::UTC);
    const QVariantMap value{{u"b"_s, QVariantList{true, -7, 24.0, HUGE_VAL, date}},
                            {u"a"_s, u"1 < 2\r"_s},
                            {u"c"_s, QVariantMap{{u"deep"_s, QByteArray(60, '\0')}}},
                            {u"d"_s, QVariantList{plistUid(3), QVariantMap(), QVariantList()}}};
    EXPECT_EQ(writePropertyList(value, PropertyListFormat::Xml).toStdString(),
              plistFile(u"look.plist"_s).toStdString());
}

TEST(PropertyList, ReadsWhatTheFormsAllow)
{
    const QDateTime date(QDate(2000, 12, 31), QTime(23, 59, 58, 500), Qt::UTC);
    const QList<std::pair<QByteArray, QVariant>> rows = {
        {"<integer>\n -0x1f </integer>", -31},
        {"<data>\n\tAQ\n\tI=\n</data>", QByteArray("\1\2")},
        {"<string> a\r\n<![CDATA[<b>]]>&amp;<!-- c -->&#x1F3AC;</string>", u" a\n<b>&🎬"_s},
        {"<dict><key>CF$UID</key><integer>7</integer></dict>", plistUid(7)},
        {"<dict><key>CF$UID</key><integer>-7</integer></dict>", QVariantMap{{u"CF$UID"_s, -7}}},
        {binaryPlist({fromHex("11ffff")}), 65535},
        {binaryPlist({fromHex("14fffffffffffffffffffffffffffffffe")}), -2},
        {binaryPlist({fromHex("223fc00000")}), 1.5},
        {binaryPlist({fromHex("33bff8000000000000")}), date},
        {binaryPlist({fromHex("5f13000000000000000161")}), u"a"_s},
        {binaryPlist({fromHex("62d83cdfac")}), u"🎬"_s},
    };
    for (const auto &[text, expected] : rows) {
        const auto result = readPropertyList(text.startsWith('<') ? "<plist>" + text + "</plist>" : text);
        EXPECT_TRUE(result.value && isSamePropertyList(*result.value, expected)) << text.toStdString();
    }
}

// Each file says in its first comment what is wrong with it, and where.
TEST(PropertyList, RefusesBrokenFiles)
{
    const QStringList names = QDir(QStringLiteral(KESTREL_TEST_DATA "/broken_plists")).entryList(QDir::Files);
    ASSERT_FALSE(names.isEmpty());
    for (const QString &name : names) {
        const QByteArray bytes = plistFile("broken_plists/"_L1 + name);
        const qsizetype comment = bytes.indexOf("<!-- ") + 5;
        const QString expected = QString::fromUtf8(bytes.sliced(comment, bytes.indexOf(" -->") - comment));
        const PropertyListResult result = readPropertyList(bytes);
        EXPECT_FALSE(result.value) << name.toStdString();
        EXPECT_EQ(u"line %1: %2"_s.arg(result.error.line).arg(result.error.message), expected) << name.toStdString();
    }
}

TEST(PropertyList, ForgivesWhatCanBeUnderstoodWhereThatIsWanted)
{
    const QByteArray dictionary =
        "<plist><dict><key>a</key><string>\x80 \xFC\x81</string><key>a</key><integer>2</integer>"
        "<key>b</key><string>\x84</string></dict></plist>";
    const struct {
        const char *name;
        QByteArray bytes;
        QVariant value;  ///< invalid where it is refused
    } rows[] = {
        {"a key twice", "<plist><dict><key>a</key><true/><key>a</key><integer>2</integer></dict></plist>",
         QVariantMap{{u"a"_s, 2}}},
        {"blanks before the declaration", " \n\t<?xml version=\"1.0\"?><plist><true/></plist>", true},
        {"windows-1252",
         "<?xml version=\"1.0\" encoding=\"Windows-1252\"?><plist><string>\x80 \xFC\x84\x91\x92</string></plist>", u"€ ü„‘’"_s},
        {"all of it", "\n<?xml version=\"1.0\" encoding=\"cp1252\"?>" + dictionary,
         QVariantMap{{u"a"_s, 2}, {u"b"_s, u"„"_s}}},
        {"a key twice in a binary list",
         binaryPlist({fromHex("d201020304"), "\x51k", "\x51k", "\x09", fromHex("1002")}), QVariantMap{{u"k"_s, 2}}},
        {"another encoding", plistFile(u"broken_plists/unknown_encoding.plist"_s), {}},
        {"a key without a value", plistFile(u"broken_plists/key_without_value.plist"_s), {}},
        {"text before the declaration", "x<?xml version=\"1.0\"?><plist><true/></plist>", {}},
        {"nothing but blanks", " \n ", {}},
    };
    for (const auto &[name, bytes, value] : rows) {
        SCOPED_TRACE(name);
        const PropertyListResult result = readPropertyList(bytes, {}, PropertyListManner::Forgiving);
        EXPECT_EQ(result.value.has_value(), value.isValid()) << result.error.toString().toStdString();
        EXPECT_TRUE(isSamePropertyList(result.value.value_or(QVariant()), value));
        EXPECT_FALSE(readPropertyList(bytes).value) << "strictly";
    }
    const PropertyListError error = readPropertyList("\n\n<plist>\n<x/>", {}, PropertyListManner::Forgiving).error;
    EXPECT_EQ(error.line, 4);
    EXPECT_EQ(error.offset, 10);
}

TEST(PropertyList, RefusesBrokenBinaryOnes)
{
    QList<QByteArray> chain, multiplying;
    for (int i = 1; i <= 1'000'000; ++i)
        chain.append(fromHex(QByteArray::number(0xA100000000 + i, 16)));
    for (int i = 1; i <= 30; ++i)
        multiplying.append(fromHex("a8") + QByteArray(8, char(i)));
    const struct {
        const char *name;
        QByteArray bytes;
        const char *message;
    } table[] = {
        {"a count that overflows", binaryPlist({"\x09"}, 1, INT_MAX), "more than"},
        {"reference size 9", binaryPlist({"\x09"}, 9), "sizes out of range"},
        {"big integer", binaryPlist({fromHex("1400000000000000010000000000000000")}), "integer out of range"},
        {"date in the year 10000", binaryPlist({fromHex("33424d637cb8000000")}), "date out of range"},
        {"length that overflows", binaryPlist({fromHex("6f13800000000000000161")}), "past the end"},
        {"reference out of range", binaryPlist({fromHex("a101")}), "reference out of range"},
        {"contains itself", binaryPlist({fromHex("a101"), fromHex("a100")}), "contains itself"},
        {"key twice, in two objects", binaryPlist({fromHex("d201020303"), "\x51k", "\x51k", "\x09"}), "twice"},
        {"a million levels", binaryPlist(chain + QList<QByteArray>{"\x09"}, 4), "nested deeper than 512"},
        {"references that multiply", binaryPlist(multiplying + QList<QByteArray>{"\x09"}), "more than 2000000 values"},
    };
    const std::clock_t start = std::clock();
    for (const auto &row : table) {
        const PropertyListResult result = readPropertyList(row.bytes);
        EXPECT_FALSE(result.value) << row.name;
        EXPECT_TRUE(result.error.message.contains(QLatin1StringView(row.message))) << row.name;
    }
    EXPECT_LT(std::clock() - start, 5 * CLOCKS_PER_SEC);
}

TEST(PropertyList, KeepsToItsLimits)
{
    const auto accepts = [](const QByteArray &bytes, const PropertyListLimits &limits) {
        return readPropertyList(bytes, limits).value.has_value();
    };
    QVariantList nested;
    for (int depth = 1; depth < 512; ++depth)
        nested = {QVariant(nested)};
    const QVariant wide = QVariantMap{{u"a"_s, QVariantList{1, 2}}, {u"b"_s, QVariantList{1, 2}}};  // 7 values
    for (const auto format : {PropertyListFormat::Xml, PropertyListFormat::Binary}) {
        SCOPED_TRACE(int(format));
        const QByteArray deep = writePropertyList(nested, format);
        EXPECT_TRUE(accepts(deep, {}) && !accepts(deep, {.depth = 511}));
        EXPECT_TRUE(writePropertyList(QVariantList{QVariant(nested)}, format).isNull());
        const QByteArray bytes = writePropertyList(wide, format);
        EXPECT_TRUE(accepts(bytes, {.bytes = bytes.size(), .depth = 2, .items = 7}));
        EXPECT_FALSE(accepts(bytes, {.bytes = bytes.size() - 1}) || accepts(bytes, {.items = 6}));
    }
    // The shared array is first met one level deep and then two.
    const QByteArray shared = binaryPlist({fromHex("a20102"), fromHex("a0"), fromHex("a101")});
    EXPECT_TRUE(accepts(shared, {.depth = 3}) && !accepts(shared, {.depth = 2}));
}

TEST(PropertyList, WritesNothingThatCouldNotBeRead)
{
    const QVariantList inBinary = {u"\u0001"_s, QVariantMap{{u"a\0b"_s, 1}}, QVariantMap{{u"CF$UID"_s, 1}}};
    const QVariantList nowhere = {QVariantMap{{u"a"_s, QVariantList{1.0f}}}, QDateTime(),
                                  QDate(10000, 1, 1).startOfDay(Qt::UTC), QVariantMap{{QString(QChar(0xDC00)), 1}}};
    for (const QVariant &value : inBinary + nowhere) {
        EXPECT_TRUE(writePropertyList(value, PropertyListFormat::Xml).isNull()) << value.typeName();
        const QByteArray binary = writePropertyList(value, PropertyListFormat::Binary);
        EXPECT_EQ(readPropertyList(binary).value, inBinary.contains(value) ? std::optional(value) : std::nullopt);
    }
}

TEST(PropertyList, ComparesTypesToo)
{
    const QVariantList values{1, -1, 1.0, true, u"1"_s, QByteArray("1"), plistUid(1)};
    for (const QVariant &left : values)
        for (const QVariant &right : values)
            EXPECT_EQ(isSamePropertyList(left, right), &left == &right) << left.typeName() << ", " << right.typeName();
    EXPECT_TRUE(isSamePropertyList(QVariantList{1, std::nan("")}, QVariantList{quint64(1), -std::nan("")}));
    EXPECT_FALSE(isSamePropertyList(QVariantMap{{u"a"_s, QVariantList{1}}}, QVariantMap{{u"a"_s, QVariantList{1.0}}}));
}

// We and another implementation read both our forms alike, and we read back both of its own.
TEST(PropertyList, ComesBackAndAgreesWithAnotherImplementation)
{
    const QTemporaryDir folder;
    QVariantMap value = richPlist();
    for (const auto &[name, format] :
         {std::pair(u"/ours.xml"_s, PropertyListFormat::Xml), {u"/ours.binary"_s, PropertyListFormat::Binary}}) {
        QFile file(folder.path() + name);
        const QByteArray bytes = writePropertyList(value, format);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        EXPECT_TRUE(isSamePropertyList(readPropertyList(bytes).value.value_or(QVariant()), value)) << qPrintable(name);
    }
    const QString program =
        uR"(
import plistlib
xml, binary = (plistlib.load(open('ours.' + name, 'rb')) for name in ('xml', 'binary'))
assert repr(xml) == repr(binary)
plistlib.dump(binary, open('theirs.binary', 'wb'), fmt=plistlib.FMT_BINARY)
xml['strings'].remove(' two\tlines\r\n')  # it loses carriage returns when it writes
plistlib.dump(xml, open('theirs.xml', 'wb'), fmt=plistlib.FMT_XML)
)"_s;
    QProcess python;
    python.setWorkingDirectory(folder.path());
    python.start(u"python3"_s, {u"-c"_s, program});
    ASSERT_TRUE(python.waitForFinished(30000) && python.exitCode() == 0) << python.readAllStandardError().toStdString();
    for (const QString &name : {u"/theirs.binary"_s, u"/theirs.xml"_s}) {
        const auto theirs = readPropertyList(plistFile(folder.path() + name)).value.value_or(QVariant());
        EXPECT_TRUE(isSamePropertyList(theirs, value)) << qPrintable(name);
        value.insert(u"strings"_s, value[u"strings"_s].toList().mid(1));
    }
}

}  // namespace kestrel::foundation
