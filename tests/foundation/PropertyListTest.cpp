#include "PropertyList.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <cmath>
#include <limits>
#include <numeric>
#include <random>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

const QString plistFixtures = QStringLiteral(KESTREL_TEST_DATA);

QByteArray plistFile(const QString &name)
{
    QFile file(plistFixtures + u'/' + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QVariant plistUid(quint64 value)
{
    return QVariant::fromValue(PropertyListUid{value});
}

QDateTime plistDate(int year, int month, int day, int hour = 0, int minute = 0, int second = 0)
{
    return {QDate(year, month, day), QTime(hour, minute, second), Qt::UTC};
}

/// Every type that both forms carry, at its boundaries.
QVariantMap richPlist()
{
    QByteArray bytes(300, Qt::Uninitialized);
    std::iota(bytes.begin(), bytes.end(), '\0');
    QStringList long20;
    for (int i = 0; i < 20; ++i)
        long20.append(u"text %1"_s.arg(i % 7));
    return {{u"strings"_s,
             QVariantList{u""_s, u"<a> & \"b\" ]]>"_s, u" two\tlines\r\n"_s, u"é日本"_s, u"🎬"_s, u"\u007f"_s}},
            {u"integers"_s, QVariantList{0, 255, 256, 65535, 65536, 4294967295LL, 4294967296LL, -1, -129,
                                         std::numeric_limits<qint64>::max(), std::numeric_limits<qint64>::min(),
                                         std::numeric_limits<quint64>::max()}},
            {u"reals"_s, QVariantList{0.0, 1.0, 0.1, -2.5e-300, 5e-324, 1.7976931348623157e308, HUGE_VAL, -HUGE_VAL}},
            {u"booleans"_s, QVariantList{true, false, 1, 0, 1.0}},
            {u"dates"_s, QVariantList{plistDate(1, 1, 1), plistDate(2024, 2, 29, 23, 59, 59), plistDate(9999, 12, 31)}},
            {u"data"_s, QVariantList{QByteArray(""), bytes}},
            {u"empty"_s, QVariantList{QVariantMap(), QVariantList()}},
            {u"long"_s, QVariantList(long20.begin(), long20.end())},
            {u"é & <key>"_s, QVariantMap{{u""_s, u"under an empty key"_s}}}};
}

QByteArray plistDocument(const QByteArray &element)
{
    return "<plist version=\"1.0\">" + element + "</plist>";
}

}  // namespace

TEST(PropertyList, ComesBackFromBothForms)
{
    QVariantMap value = richPlist();
    value.insert(u"uids"_s, QVariantList{plistUid(0), plistUid(255), plistUid(65536), plistUid(quint64(1) << 63)});
    for (const auto format : {PropertyListFormat::Xml, PropertyListFormat::Binary}) {
        const PropertyListResult result = readPropertyList(writePropertyList(value, format));
        ASSERT_TRUE(result.value) << result.error.toString().toStdString();
        EXPECT_EQ(result.format, format);
        EXPECT_TRUE(isSamePropertyList(*result.value, value)) << int(format);
    }
    const QDateTime precise = plistDate(2024, 2, 29).addMSecs(123);
    EXPECT_EQ(*readPropertyList(writePropertyList(precise, PropertyListFormat::Binary)).value, precise);
}

TEST(PropertyList, WritesXmlInThePlatformsLook)
{
    const QVariantMap value{{u"b"_s, QVariantList{true, -7, 24.0, HUGE_VAL, plistDate(2024, 1, 2, 3, 4, 5)}},
                            {u"a"_s, u"1 < 2\r"_s},
                            {u"c"_s, QVariantMap{{u"deep"_s, QByteArray(60, '\0')}}},
                            {u"d"_s, QVariantList{plistUid(3), QVariantMap(), QVariantList()}}};
    EXPECT_EQ(writePropertyList(value, PropertyListFormat::Xml).toStdString(),
              plistFile(u"look.plist"_s).toStdString());
}

TEST(PropertyList, ReadsWhatXmlAllows)
{
    const struct {
        const char *name;
        QByteArray element;
        QVariant expected;
    } table[] = {
        {"hexadecimal", "<integer>0xFf</integer>", 255},
        {"negative hexadecimal", "<integer>-0x10</integer>", -16},
        {"plus sign and blanks", "<integer>\n +5 </integer>", 5},
        {"unsigned", "<integer>9223372036854775808</integer>", quint64(1) << 63},
        {"real without fraction", "<real>1</real>", 1.0},
        {"real with exponent", "<real> -1.5E+2 </real>", -150.0},
        {"infinity", "<real>-Infinity</real>", -HUGE_VAL},
        {"not a number", "<real>NaN</real>", std::nan("")},
        {"spread base64", "<data>\n\tAQ\n\tI=\n</data>", QByteArray("\1\2")},
        {"CDATA, entities, comment", "<string>a<![CDATA[<b>]]>&amp;<!-- c -->&#x1F3AC;</string>", u"a<b>&🎬"_s},
        {"blanks kept", "<string> a\r\nb </string>", u" a\nb "_s},
        {"empty elements", "<array><string/><data/><array/><dict/></array>",
         QVariantList{u""_s, QByteArray(), QVariantList(), QVariantMap()}},
        {"reference", "<dict><key>CF$UID</key><integer>7</integer></dict>", plistUid(7)},
        {"negative is no reference", "<dict><key>CF$UID</key><integer>-7</integer></dict>",
         QVariantMap{{u"CF$UID"_s, -7}}},
        {"more is no reference", "<dict><key>CF$UID</key><integer>7</integer><key>a</key><true/></dict>",
         QVariantMap{{u"CF$UID"_s, 7}, {u"a"_s, true}}},
        {"unsorted keys", "<dict><key>b</key><true/><key>a</key><false/></dict>",
         QVariantMap{{u"a"_s, false}, {u"b"_s, true}}},
    };
    for (const auto &row : table) {
        SCOPED_TRACE(row.name);
        const PropertyListResult result = readPropertyList(plistDocument(row.element));
        ASSERT_TRUE(result.value) << result.error.toString().toStdString();
        EXPECT_TRUE(isSamePropertyList(*result.value, row.expected));
    }
    const QString wide = u"\uFEFF<plist><string>é</string></plist>"_s;
    const QByteArray utf16(reinterpret_cast<const char *>(wide.utf16()), wide.size() * 2);
    EXPECT_EQ(readPropertyList(utf16).value, QVariant(u"é"_s));
}

// Each file says in its first comment what is wrong with it, and where.
TEST(PropertyList, RefusesBrokenFiles)
{
    const QDir folder(plistFixtures + u"/broken_plists"_s);
    const QStringList names = folder.entryList(QDir::Files);
    ASSERT_FALSE(names.isEmpty());
    for (const QString &name : names) {
        SCOPED_TRACE(name.toStdString());
        const QByteArray bytes = plistFile("broken_plists/"_L1 + name);
        const qsizetype comment = bytes.indexOf("<!-- ") + 5;
        const QString expected = QString::fromUtf8(bytes.sliced(comment, bytes.indexOf(" -->") - comment));
        const PropertyListResult result = readPropertyList(bytes);
        EXPECT_FALSE(result.value);
        EXPECT_EQ(u"line %1: %2"_s.arg(result.error.line).arg(result.error.message).toStdString(),
                  expected.toStdString());
    }
    EXPECT_FALSE(readPropertyList({}).value);
    EXPECT_FALSE(readPropertyList(plistDocument("<string>a") + '\0').value);
}

TEST(PropertyList, KeepsToItsLimits)
{
    const auto nested = [](int depth) {
        QVariant value = QVariantList();
        for (int i = 1; i < depth; ++i)
            value = QVariantList{value};
        return value;
    };
    const auto accepts = [](const QByteArray &bytes, const PropertyListLimits &limits) {
        return readPropertyList(bytes, limits).value.has_value();
    };
    const QVariant wide = QVariantMap{{u"a"_s, QVariantList{1, 2}}, {u"b"_s, QVariantList{1, 2}}};  // 7 values
    for (const auto format : {PropertyListFormat::Xml, PropertyListFormat::Binary}) {
        SCOPED_TRACE(int(format));
        const QByteArray deep = writePropertyList(nested(512), format);
        EXPECT_TRUE(accepts(deep, {}));
        EXPECT_FALSE(accepts(deep, {.depth = 511}));
        EXPECT_TRUE(writePropertyList(nested(513), format).isNull());
        const QByteArray bytes = writePropertyList(wide, format);
        EXPECT_TRUE(accepts(bytes, {.bytes = bytes.size(), .depth = 2, .items = 7}));
        EXPECT_FALSE(accepts(bytes, {.bytes = bytes.size() - 1}));
        EXPECT_FALSE(accepts(bytes, {.items = 6}));
    }
}

TEST(PropertyList, RefusesAMillionLevels)
{
    const PropertyListResult result = readPropertyList("<plist>" + QByteArray("<array>").repeated(1'000'000));
    EXPECT_FALSE(result.value);
    EXPECT_EQ(result.error.message, u"nested deeper than 512"_s);
}

TEST(PropertyList, WritesNothingThatCouldNotBeRead)
{
    const struct {
        const char *name;
        QVariant value;
        bool inBinary;
    } table[] = {
        {"null", {}, false},
        {"another type", 1.0f, false},
        {"another type inside", QVariantMap{{u"a"_s, QVariantList{QVariant()}}}, false},
        {"invalid date", QDateTime(), false},
        {"date before year 1", plistDate(-1, 1, 1), false},
        {"date after year 9999", plistDate(10000, 1, 1), false},
        {"half a surrogate pair", QString(QChar(0xD83C)), false},
        {"half a surrogate pair as key", QVariantMap{{QString(QChar(0xDC00)), 1}}, false},
        {"control character", u"\u0001"_s, true},
        {"noncharacter", u"\uFFFE"_s, true},
        {"NUL in a key", QVariantMap{{u"a\0b"_s, 1}}, true},
        {"dictionary like a reference", QVariantMap{{u"CF$UID"_s, 1}}, true},
    };
    for (const auto &row : table) {
        SCOPED_TRACE(row.name);
        EXPECT_TRUE(writePropertyList(row.value, PropertyListFormat::Xml).isNull());
        const QByteArray binary = writePropertyList(row.value, PropertyListFormat::Binary);
        EXPECT_EQ(!binary.isNull(), row.inBinary);
        EXPECT_EQ(readPropertyList(binary).value == row.value, row.inBinary);
    }
}

TEST(PropertyList, ComparesTypesToo)
{
    // Values of one row are the same, of different rows are not.
    const QList<QVariantList> rows = {{1, 1u, qint64(1), quint64(1)},
                                      {-1, qint64(-1)},
                                      {std::numeric_limits<quint64>::max()},
                                      {1.0},
                                      {true},
                                      {std::nan(""), -std::nan("")},
                                      {u"1"_s},
                                      {QByteArray("1")},
                                      {u""_s, QString()},
                                      {QByteArray("")},
                                      {plistUid(1)},
                                      {plistDate(2001, 1, 1)},
                                      {QVariantList{1}, QVariantList{1u}},
                                      {QVariantList{1, 1}},
                                      {QVariantList{true}},
                                      {QVariantMap{{u"a"_s, 1}}},
                                      {QVariantMap{{u"a"_s, 1.0}}},
                                      {QVariantMap{{u"b"_s, 1}}}};
    for (qsizetype left = 0; left < rows.size(); ++left) {
        for (qsizetype right = 0; right < rows.size(); ++right) {
            for (const QVariant &a : rows[left]) {
                for (const QVariant &b : rows[right])
                    EXPECT_EQ(isSamePropertyList(a, b), left == right) << left << " and " << right;
            }
        }
    }
}

// Another implementation reads both our forms alike, and we read back both of its own.
TEST(PropertyList, AgreesWithAnotherImplementation)
{
    QTemporaryDir folder;
    const auto path = [&](const char *name) { return folder.filePath(QString::fromLatin1(name)); };
    const auto put = [&](const char *name, const QByteArray &bytes) {
        QFile file(path(name));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    };
    const auto get = [&](const char *name) {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? readPropertyList(file.readAll()).value.value_or(QVariant())
                                              : QVariant();
    };
    const QVariantMap value = richPlist();
    ASSERT_TRUE(put("ours.xml", writePropertyList(value, PropertyListFormat::Xml)));
    ASSERT_TRUE(put("ours.binary", writePropertyList(value, PropertyListFormat::Binary)));
    const QString program =
        uR"(
import plistlib, sys
xml, binary = (plistlib.load(open('ours.' + name, 'rb')) for name in ('xml', 'binary'))
if repr(xml) != repr(binary):
    sys.exit('the two forms differ')
xml['strings'].remove(' two\tlines\r\n')  # it loses carriage returns when it writes
plistlib.dump(xml, open('theirs.xml', 'wb'), fmt=plistlib.FMT_XML)
plistlib.dump(binary, open('theirs.binary', 'wb'), fmt=plistlib.FMT_BINARY)
)"_s;
    QProcess python;
    python.setWorkingDirectory(folder.path());
    python.start(u"python3"_s, {u"-c"_s, program});
    ASSERT_TRUE(python.waitForFinished(30000));
    ASSERT_EQ(python.exitCode(), 0) << python.readAllStandardError().toStdString();
    EXPECT_TRUE(isSamePropertyList(get("theirs.binary"), value));
    QVariantMap withoutReturns = value;
    QVariantList strings = value[u"strings"_s].toList();
    strings.removeAt(2);
    withoutReturns[u"strings"_s] = strings;
    EXPECT_TRUE(isSamePropertyList(get("theirs.xml"), withoutReturns));
}

// Whatever is still accepted after random damage can be written and comes back the same.
TEST(PropertyList, SurvivesRandomDamage)
{
    std::mt19937 random(20240229);
    const auto below = [&](qsizetype limit) { return qsizetype(random() % quint64(qMax<qsizetype>(1, limit))); };
    const QVariantMap value = richPlist();
    const QByteArray seeds[] = {writePropertyList(value, PropertyListFormat::Xml),
                                writePropertyList(value, PropertyListFormat::Binary),
                                plistFile(u"settings-foreign.archive"_s)};
    int accepted = 0;
    for (int round = 0; round < 4000; ++round) {
        QByteArray bytes = seeds[round % std::size(seeds)];
        for (qsizetype change = below(3); change >= 0; --change) {
            switch (below(4)) {
                case 0:
                    bytes[below(bytes.size())] = char(random());
                    break;
                case 1:
                    bytes[below(bytes.size())] = char(bytes[below(bytes.size())] ^ (1 << below(8)));
                    break;
                case 2:
                    bytes.remove(below(bytes.size()), below(8));
                    break;
                default:
                    bytes.insert(below(bytes.size()), bytes.mid(below(bytes.size()), below(40)));
            }
        }
        const PropertyListResult result = readPropertyList(bytes);
        if (!result.value)
            continue;
        ++accepted;
        const auto again = readPropertyList(writePropertyList(*result.value, PropertyListFormat::Binary)).value;
        ASSERT_TRUE(again && isSamePropertyList(*again, *result.value)) << "round " << round;
        // XML cannot carry every text, nor a date's fraction.
        const QByteArray xml = writePropertyList(*result.value, PropertyListFormat::Xml);
        if (!xml.isNull()) {
            const auto fromXml = readPropertyList(xml).value;
            ASSERT_TRUE(fromXml && writePropertyList(*fromXml, PropertyListFormat::Xml) == xml) << "round " << round;
        }
    }
    EXPECT_GT(accepted, 100);
}

}  // namespace kestrel::foundation
