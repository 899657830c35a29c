#include "KeyedArchive.h"

#include "PropertyList.h"

#include <gtest/gtest.h>

#include <QFile>

#include <limits>
#include <random>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

QVariant archiveUid(quint64 value)
{
    return QVariant::fromValue(PropertyListUid{value});
}

QByteArray foreignArchive()
{
    QFile file(QStringLiteral(KESTREL_TEST_DATA "/settings-foreign.archive"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class ArchivedCamera : public KeyedArchivable {
public:
    QStringList archiveClasses() const override { return {u"Camera"_s, u"Device"_s, u"NSObject"_s}; }
    void encodeWithCoder(KeyedEncoder &coder) const override
    {
        coder.encodeString(u"cam"_s, u"name"_s);
        coder.encodeString(u""_s, u"empty"_s);
        coder.encodeString(QString(), u"nil"_s);
        coder.encodeString(u"dollar"_s, u"$class"_s);
        coder.encodeBool(true, u"on"_s);
        coder.encodeInteger(-5, u"count"_s);
        coder.encodeDouble(24, u"rate"_s);
        coder.encodeNumber(24.0, u"rateObject"_s);
        coder.encodeNumber(true, u"onObject"_s);
        coder.encodeNumber(u"text"_s, u"notANumber"_s);
    }
};

QByteArray cameraArchive()
{
    KeyedArchiver archiver;
    archiver.setObject(u"first"_s, ArchivedCamera());
    archiver.setObject(u"second"_s, ArchivedCamera());
    archiver.setNumbers(u"flags"_s, {{u"yes"_s, true}, {u"no"_s, false}, {u"one"_s, 1}, {u"text"_s, u"left out"_s}});
    return archiver.archivedData();
}

/// An archive whose root, entry 1, is an object of the class in entry 2; `more` are the entries from 3 on.
QByteArray archiveOf(const QVariantMap &rootFields, const QVariantList &more = {})
{
    QVariantMap root = rootFields;
    root.insert(u"$class"_s, archiveUid(2));
    const QVariantMap record{{u"$classname"_s, u"Thing"_s}, {u"$classhints"_s, QVariantList{1}}};
    const QVariantMap archive{{u"$archiver"_s, u"NSKeyedArchiver"_s},
                              {u"$version"_s, 100000},
                              {u"$top"_s, QVariantMap{{u"root"_s, archiveUid(1)}}},
                              {u"$objects"_s, QVariantList{u"$null"_s, root, record} + more}};
    return writePropertyList(archive, PropertyListFormat::Binary);
}

}  // namespace

TEST(KeyedArchive, HasThePlatformsForm)
{
    const QVariantMap archive = readPropertyList(cameraArchive()).value.value_or(QVariant()).toMap();
    EXPECT_EQ(archive.keys(), QStringList({u"$archiver"_s, u"$objects"_s, u"$top"_s, u"$version"_s}));
    EXPECT_TRUE(isSamePropertyList(archive[u"$version"_s], 100000));
    EXPECT_EQ(archive[u"$archiver"_s], u"NSKeyedArchiver"_s);
    const QVariantList objects = archive[u"$objects"_s].toList();
    const auto at = [&](const QVariant &reference) { return objects.value(reference.value<PropertyListUid>().value); };
    EXPECT_EQ(objects.value(0), u"$null"_s);

    const QVariantMap root = at(archive[u"$top"_s].toMap()[u"root"_s]).toMap();
    const QVariantMap dictionaryClass = at(root[u"$class"_s]).toMap();
    EXPECT_EQ(dictionaryClass[u"$classname"_s], u"NSDictionary"_s);
    EXPECT_EQ(dictionaryClass[u"$classes"_s], QVariant(QVariantList{u"NSDictionary"_s, u"NSObject"_s}));
    const QVariantList keys = root[u"NS.keys"_s].toList();
    const QVariantList values = root[u"NS.objects"_s].toList();
    ASSERT_EQ(keys.size(), 3);
    ASSERT_EQ(values.size(), 3);
    EXPECT_EQ(at(keys[0]), u"first"_s);

    const QVariantMap camera = at(values[0]).toMap();
    EXPECT_EQ(at(camera[u"$class"_s]).toMap()[u"$classes"_s],
              QVariant(QVariantList{u"Camera"_s, u"Device"_s, u"NSObject"_s}));
    EXPECT_EQ(at(camera[u"name"_s]), u"cam"_s);
    EXPECT_EQ(camera[u"nil"_s], archiveUid(0));
    EXPECT_EQ(camera[u"notANumber"_s], archiveUid(0));
    EXPECT_EQ(at(camera[u"$$class"_s]), u"dollar"_s);
    EXPECT_TRUE(isSamePropertyList(camera[u"on"_s], true));
    EXPECT_TRUE(isSamePropertyList(camera[u"count"_s], -5));
    EXPECT_TRUE(isSamePropertyList(camera[u"rate"_s], 24.0));
    EXPECT_TRUE(isSamePropertyList(at(camera[u"rateObject"_s]), 24.0));
    EXPECT_TRUE(isSamePropertyList(at(camera[u"onObject"_s]), true));
    // Strings, numbers and class records are shared by both objects.
    EXPECT_EQ(at(values[2]), QVariant(camera));
    EXPECT_NE(values[0], values[2]);
}

TEST(KeyedArchive, ReadsItsOwn)
{
    const auto root = KeyedDecoder::unarchive(cameraArchive());
    ASSERT_TRUE(root);
    EXPECT_EQ(root->className(), u"NSDictionary"_s);
    const auto camera = root->decodeObjectOfClass(u"Device"_s, u"first"_s);
    ASSERT_TRUE(camera);
    EXPECT_EQ(camera->className(), u"Camera"_s);
    EXPECT_FALSE(root->decodeObjectOfClass(u"Microphone"_s, u"first"_s));
    EXPECT_EQ(camera->decodeString(u"name"_s), u"cam"_s);
    EXPECT_TRUE(!camera->decodeString(u"empty"_s).isNull() && camera->contains(u"empty"_s));
    EXPECT_TRUE(camera->decodeString(u"nil"_s).isNull() && !camera->contains(u"nil"_s));
    EXPECT_EQ(camera->decodeString(u"$class"_s), u"dollar"_s);
    EXPECT_EQ(camera->decodeInteger(u"count"_s), -5);
    EXPECT_TRUE(camera->decodeBool(u"on"_s) && camera->decodeBool(u"onObject"_s));
    EXPECT_EQ(camera->decodeDouble(u"rateObject"_s), 24);
    const auto flags = root->decodeObject(u"flags"_s);
    ASSERT_TRUE(flags);
    EXPECT_TRUE(flags->decodeBool(u"yes"_s) && !flags->decodeBool(u"no"_s) && flags->contains(u"no"_s));
    EXPECT_FALSE(flags->contains(u"text"_s));
}

TEST(KeyedArchive, IsNotWrittenWithIllFormedText)
{
    KeyedArchiver archiver;
    archiver.setNumbers(QString(QChar(0xD800)), {});
    EXPECT_TRUE(archiver.archivedData().isNull());
}

TEST(KeyedArchive, ReadsAnotherImplementations)
{
    const auto root = KeyedDecoder::unarchive(foreignArchive());
    ASSERT_TRUE(root);
    EXPECT_EQ(root->className(), u"NSMutableDictionary"_s);
    const auto vars = root->decodeObject(u"vars"_s);
    ASSERT_TRUE(vars);
    EXPECT_TRUE(vars->decodeBool(u"shutdown"_s) && !vars->decodeBool(u"notify"_s) && vars->contains(u"notify"_s));
    const auto recorder = root->decodeObjectOfClass(u"JRecorderSetting"_s, u"recorder"_s);
    ASSERT_TRUE(recorder);
    EXPECT_TRUE(recorder->decodeString(u"video_out"_s).endsWith(u"/vidéo"_s));
    EXPECT_EQ(recorder->decodeInteger(u"quality"_s), 2);
    EXPECT_EQ(recorder->decodeDouble(u"maxFramerate"_s), 24.0);
    EXPECT_TRUE(recorder->decodeString(u"maxFramerate"_s).isNull());
    const auto downloader = root->decodeObjectOfClass(u"JDownloaderSetting"_s, u"downloader"_s);
    ASSERT_TRUE(downloader);
    EXPECT_EQ(downloader->decodeInteger(u"concurrent"_s), 2);
    EXPECT_TRUE(downloader->decodeBool(u"proxyEnable"_s));
    EXPECT_EQ(downloader->decodeString(u"proxyPort"_s), u"1080"_s);
}

TEST(KeyedArchive, ReadsNumbersAsAsked)
{
    using Limits = std::numeric_limits<qint64>;
    const struct {
        const char *name;
        QVariant number;
        bool asBool;
        qint64 asInteger;
        double asDouble;
    } table[] = {
        {"true", true, true, 1, 1},
        {"false", false, false, 0, 0},
        {"one", 1, true, 1, 1},
        {"negative real", -2.9, true, -2, -2.9},
        {"half", 0.5, true, 0, 0.5},
        {"great real", 1e300, true, Limits::max(), 1e300},
        {"least real", -1e300, true, Limits::min(), -1e300},
        {"unsigned", std::numeric_limits<quint64>::max(), true, Limits::max(), 0x1p64},
        {"text", u"1"_s, false, 0, 0},
        {"data", QByteArray("1"), false, 0, 0},
    };
    for (const auto &row : table) {
        SCOPED_TRACE(row.name);
        const auto root = KeyedDecoder::unarchive(
            archiveOf({{u"inline"_s, row.number}, {u"reference"_s, archiveUid(3)}}, {row.number}));
        ASSERT_TRUE(root);
        for (const QString &key : {u"inline"_s, u"reference"_s}) {
            EXPECT_EQ(root->decodeBool(key), row.asBool);
            EXPECT_EQ(root->decodeInteger(key), row.asInteger);
            EXPECT_EQ(root->decodeDouble(key), row.asDouble);
            EXPECT_TRUE(root->contains(key));
        }
    }
}

// What is damaged reads as absent, and the entry beside it is still there.
TEST(KeyedArchive, DamagedEntriesReadAsAbsent)
{
    const QVariantMap dictionaryClass{{u"$classname"_s, u"NSMutableDictionary"_s}};
    const struct {
        const char *name;
        QVariant field;  ///< of the root, whose class is entry 2
        QVariant entry;  ///< entry 3
    } table[] = {
        {"out of range", archiveUid(5), {}},
        {"far out of range", archiveUid(std::numeric_limits<quint64>::max()), {}},
        {"nil", archiveUid(0), {}},
        {"itself", archiveUid(1), {}},
        {"reference to a reference", archiveUid(3), archiveUid(4)},
        {"no class", archiveUid(3), QVariantMap{{u"NS.string"_s, u"text"_s}}},
        {"class is nil", archiveUid(3), QVariantMap{{u"$class"_s, archiveUid(0)}}},
        {"class is a name", archiveUid(3), QVariantMap{{u"$class"_s, u"Thing"_s}}},
        {"class out of range", archiveUid(3), QVariantMap{{u"$class"_s, archiveUid(9)}}},
        {"class is no record", archiveUid(3), QVariantMap{{u"$class"_s, archiveUid(4)}}},
        {"class is its own object", archiveUid(3), QVariantMap{{u"$class"_s, archiveUid(3)}}},
        {"more keys than values", archiveUid(3),
         QVariantMap{{u"$class"_s, archiveUid(5)}, {u"NS.keys"_s, QVariantList{archiveUid(4)}}}},
        {"inline object", QVariantMap{{u"$class"_s, archiveUid(2)}}, {}},
        {"absent", {}, {}},
    };
    for (const auto &row : table) {
        SCOPED_TRACE(row.name);
        QVariantMap fields{{u"sound"_s, archiveUid(4)}};
        if (row.field.isValid())
            fields.insert(u"damaged"_s, row.field);
        QVariantList more{row.entry.isValid() ? row.entry : u"unused"_s, u"text"_s};
        if (QByteArray(row.name).startsWith("more keys"))
            more.append(dictionaryClass);
        const auto root = KeyedDecoder::unarchive(archiveOf(fields, more));
        ASSERT_TRUE(root);
        EXPECT_FALSE(root->decodeObject(u"damaged"_s));
        EXPECT_TRUE(root->decodeString(u"damaged"_s).isNull());
        EXPECT_EQ(root->decodeString(u"sound"_s), u"text"_s);
    }
}

TEST(KeyedArchive, ReadsMutableTextsAndStopsAtCycles)
{
    const QVariantMap mutableText{{u"$class"_s, archiveUid(2)}, {u"NS.string"_s, u"mutable"_s}};
    const QVariantMap back{{u"$class"_s, archiveUid(2)}, {u"root"_s, archiveUid(1)}, {u"text"_s, archiveUid(3)}};
    const auto root = KeyedDecoder::unarchive(
        archiveOf({{u"text"_s, archiveUid(3)}, {u"child"_s, archiveUid(4)}}, {mutableText, back}));
    ASSERT_TRUE(root);
    EXPECT_EQ(root->decodeString(u"text"_s), u"mutable"_s);
    const auto child = root->decodeObject(u"child"_s);
    ASSERT_TRUE(child);
    EXPECT_FALSE(child->decodeObject(u"root"_s) || child->contains(u"root"_s));
    EXPECT_EQ(child->decodeString(u"text"_s), u"mutable"_s);
}

TEST(KeyedArchive, RefusesWhatIsNoArchive)
{
    const QVariantMap sound = readPropertyList(archiveOf({})).value.value_or(QVariant()).toMap();
    ASSERT_TRUE(KeyedDecoder::unarchive(writePropertyList(sound, PropertyListFormat::Xml)));
    const struct {
        QString key;
        QVariant value;
    } table[] = {
        {u"$archiver"_s, u"OtherArchiver"_s},
        {u"$version"_s, 100001},
        {u"$version"_s, true},
        {u"$top"_s, QVariantMap{{u"root"_s, archiveUid(0)}}},
        {u"$top"_s, QVariantMap{{u"root"_s, archiveUid(2)}}},
        {u"$top"_s, archiveUid(1)},
        {u"$objects"_s, QVariantMap()},
        {u"$objects"_s, QVariantList{u"$null"_s, u"text"_s}},
    };
    for (const auto &row : table) {
        QVariantMap archive = sound;
        archive.insert(row.key, row.value);
        EXPECT_FALSE(KeyedDecoder::unarchive(writePropertyList(archive, PropertyListFormat::Binary)))
            << row.key.toStdString();
    }
    EXPECT_FALSE(KeyedDecoder::unarchive({}));
}

// Any one damaged byte leaves either no archive or one whose objects can be asked for everything.
TEST(KeyedArchive, SurvivesDamage)
{
    const QByteArray sound = foreignArchive();
    std::mt19937 random(7);
    int readable = 0;
    for (qsizetype i = 0; i < sound.size(); ++i) {
        QByteArray bytes = sound;
        bytes[i] = char(bytes[i] ^ (1 + random() % 255));
        const auto root = KeyedDecoder::unarchive(bytes);
        for (const QString &name : {u"video"_s, u"recorder"_s, u"downloader"_s, u"vars"_s}) {
            const auto object = root ? root->decodeObject(name) : std::nullopt;
            readable += object.has_value();
            for (const QString &key : {u"video_out"_s, u"quality"_s, u"concurrent"_s, u"shutdown"_s}) {
                const bool isAbsent = object && !object->contains(key);
                EXPECT_FALSE(isAbsent && (!object->decodeString(key).isNull() || object->decodeInteger(key) != 0));
            }
        }
    }
    EXPECT_GT(readable, 1000);
}

}  // namespace kestrel::foundation
