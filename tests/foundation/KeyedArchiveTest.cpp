#include "foundation/KeyedArchive.h"

#include "foundation/PropertyList.h"

#include <gtest/gtest.h>

#include <QFile>

#include <limits>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

QVariant archiveUid(quint64 value)
{
    return QVariant::fromValue(PropertyListUid{value});
}

class ArchivedCamera : public KeyedArchivable {
public:
    QStringList archiveClasses() const override { return {u"Camera"_s, u"Device"_s, u"NSObject"_s}; }
    void encodeWithCoder(KeyedEncoder &coder) const override
    {
        coder.encodeString(QString(), u"nil"_s);
        coder.encodeString(u"dollar"_s, u"$class"_s);
        coder.encodeNumber(24.5, u"rate"_s);
    }
};

}  // namespace

TEST(KeyedArchive, IsReadAgain)
{
    KeyedArchiver archiver;
    archiver.setObject(u"camera"_s, ArchivedCamera());
    archiver.setNumbers(u"flags"_s, {{u"no"_s, false}});
    const auto root = KeyedDecoder::unarchive(archiver.archivedData());
    ASSERT_TRUE(root && !root->decodeObjectOfClass(u"Microphone"_s, u"camera"_s));
    const auto camera = root->decodeObjectOfClass(u"Device"_s, u"camera"_s);
    ASSERT_TRUE(camera && !camera->contains(u"nil"_s));
    EXPECT_EQ(camera->decodeString(u"$class"_s), u"dollar"_s);
    EXPECT_EQ(camera->decodeDouble(u"rate"_s), 24.5);
    EXPECT_TRUE(root->contains(u"flags"_s) && root->decodeObject(u"flags"_s)->contains(u"no"_s));
}

// What is damaged reads as absent, and the entry beside it is still there. Numbers out of range are clamped.
TEST(KeyedArchive, ReadsUnusualAndDamagedEntries)
{
    const struct {
        const char *name;
        QVariant field;       ///< of the root, entry 1, whose class is entry 2
        QVariant entry = {};  ///< entry 3
        qint64 integer = 0;
        QString string = {};
    } table[] = {
        {"negative real", -2.9, {}, -2},
        {"great real by reference", archiveUid(3), 1e300, std::numeric_limits<qint64>::max()},
        {"digits", archiveUid(3), u"1"_s, 0, u"1"_s},
        {"far out of range", archiveUid(std::numeric_limits<quint64>::max())},
        {"itself", archiveUid(1)},
        {"reference to a reference", archiveUid(3), archiveUid(4)},
        {"class is its own object", archiveUid(3), QVariantMap{{u"$class"_s, archiveUid(3)}}},
        {"more keys than values", archiveUid(3),
         QVariantMap{{u"$class"_s, archiveUid(5)}, {u"NS.keys"_s, QVariantList{archiveUid(4)}}}},
    };
    const QVariantMap thing{{u"$classname"_s, u"Thing"_s}}, dictionary{{u"$classname"_s, u"NSMutableDictionary"_s}};
    const QVariantMap mutableText{{u"$class"_s, archiveUid(2)}, {u"NS.string"_s, u"text"_s}};
    for (const auto &row : table) {
        SCOPED_TRACE(row.name);
        const QVariantMap object{{u"$class"_s, archiveUid(2)}, {u"a"_s, row.field}, {u"sound"_s, archiveUid(4)}};
        const QVariant entry = row.entry.isValid() ? row.entry : u"unused"_s;
        const QVariantList objects{u"$null"_s, object, thing, entry, mutableText, dictionary};
        QVariantMap archive{{u"$archiver"_s, u"NSKeyedArchiver"_s},
                            {u"$version"_s, 100000},
                            {u"$top"_s, QVariantMap{{u"root"_s, archiveUid(1)}}},
                            {u"$objects"_s, objects}};
        const auto root = KeyedDecoder::unarchive(writePropertyList(archive, PropertyListFormat::Binary));
        ASSERT_TRUE(root);
        EXPECT_FALSE(root->decodeObject(u"a"_s));
        EXPECT_EQ(root->decodeString(u"a"_s), row.string);
        EXPECT_EQ(root->decodeInteger(u"a"_s), row.integer);
        EXPECT_EQ(root->decodeString(u"sound"_s), u"text"_s);
        archive[u"$version"_s] = 100001;
        EXPECT_FALSE(KeyedDecoder::unarchive(writePropertyList(archive, PropertyListFormat::Binary)));
    }
}

}  // namespace kestrel::foundation
