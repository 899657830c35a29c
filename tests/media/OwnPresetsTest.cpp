#include "media/OwnPresets.h"

#include "foundation/UserDefaults.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSignalSpy>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

const QString key = u"presets"_s;

class OwnPresetsTest : public testing::Test {
protected:
    OwnPresetsTest()
    {
        plan.sources = {u"/films/a.mkv"_s};
        plan.preset = *presetOfId(u"mkv-h264"_s);
        plan.speed = -2;
        plan.maximumHeight = 720;
        plan.mirrored = true;
        plan.pieces = {{1, 2}};
        plan.watermark = TranscodePlan::Watermark{.text = u"mine"_s, .imagePath = {}};
    }

    /// An exported preset with a change.
    QByteArray changedFile(const std::function<void(QJsonObject &root, QJsonObject &preset)> &change)
    {
        QJsonObject root = QJsonDocument::fromJson(presets.exported(*presets.save(u"mine"_s, plan))).object();
        QJsonObject preset = root[u"presets"_s].toArray().first().toObject();
        change(root, preset);
        if (root.contains(u"presets"_s))
            root[u"presets"_s] = QJsonArray{preset};
        return QJsonDocument(root).toJson();
    }

    QTemporaryDir folder;
    foundation::UserDefaults defaults{folder.filePath(u"defaults.plist"_s)};
    OwnPresets presets{defaults, key};
    TranscodePlan plan;
};

}  // namespace

TEST_F(OwnPresetsTest, KeepOptionsAndNothingOfTheFile)
{
    const auto id = presets.save(u"  Small \n films "_s, plan);
    ASSERT_TRUE(id);
    const OwnPresets again(defaults, key);
    ASSERT_EQ(again.presets().size(), 1);
    EXPECT_EQ(again.presets().first().name, u"Small films");
    EXPECT_EQ(again.presets().first().group, u"own");

    TranscodePlan other;
    other.sources = {u"/films/b.mkv"_s};
    other.preset = *presetOfId(u"mkv-h265"_s);
    other.pieces = {{5, 6}};
    again.apply(*id, other);
    EXPECT_EQ(other.preset.id, *id);
    EXPECT_EQ(other.preset.videoCodec, u"h264");
    EXPECT_EQ(other.speed, -2);
    EXPECT_EQ(other.maximumHeight, 720);
    EXPECT_EQ(other.sources, QStringList{u"/films/b.mkv"_s});
    ASSERT_EQ(other.pieces.size(), 1);
    EXPECT_EQ(other.pieces.first().start, 5);
    EXPECT_FALSE(other.mirrored || other.watermark);
    TranscodePlan applied;
    EXPECT_TRUE(applyPresetFile(presets.exported(*id), applied));
    EXPECT_EQ(applied.preset.name, u"Small films");
    EXPECT_EQ(applied.maximumHeight, 720);
    EXPECT_FALSE(applyPresetFile("{}", applied));
    TranscodePlan draft;
    again.apply(*id, draft);
    EXPECT_TRUE(draft.sources.isEmpty());
    EXPECT_EQ(draft.preset.id, *id);
}

TEST_F(OwnPresetsTest, AreRenamedAndRemoved)
{
    EXPECT_FALSE(presets.save(u"  "_s, plan));
    const QString first = *presets.save(u"first"_s, plan), second = *presets.save(u"second"_s, plan);
    EXPECT_NE(first, second);
    QSignalSpy changes(&presets, &OwnPresets::changed);
    EXPECT_FALSE(presets.rename(first, u" "_s));
    EXPECT_FALSE(presets.rename(u"nobody"_s, u"x"_s));
    EXPECT_TRUE(presets.rename(first, u"renamed"_s));
    presets.remove(second);
    EXPECT_EQ(changes.size(), 2);
    ASSERT_EQ(OwnPresets(defaults, key).presets().size(), 1);
    EXPECT_EQ(OwnPresets(defaults, key).presetOfId(first)->name, u"renamed");
    presets.removeAll();
    EXPECT_FALSE(defaults.objectForKey(key).isValid());
}

TEST_F(OwnPresetsTest, RefuseWhatIsNone)
{
    const QByteArray newer = changedFile([](QJsonObject &root, QJsonObject &) { root[u"kestrelPresets"_s] = 2; });
    const QByteArray newerPreset = changedFile([](QJsonObject &, QJsonObject &preset) { preset[u"version"_s] = 99; });
    const QByteArray noCodec =
        changedFile([](QJsonObject &, QJsonObject &preset) { preset[u"video"_s] = u"rm -rf"_s; });
    const QByteArray empty = changedFile([](QJsonObject &root, QJsonObject &) { root.remove(u"presets"_s); });
    const qsizetype before = presets.presets().size();
    for (const QByteArray &file : {QByteArray(), QByteArray("[]"), QByteArray("\xff\0{", 3), newer, newerPreset,
                                   noCodec, empty, QByteArray(maximumPresetFileBytes + 1, ' ')}) {
        const auto id = presets.import(file);
        EXPECT_FALSE(id) << file.left(80).toStdString();
        EXPECT_FALSE(!id && id.reason().localized().isEmpty());
    }
    EXPECT_EQ(presets.presets().size(), before);
}

TEST_F(OwnPresetsTest, AllOfThemAreReadAgainAndWhatIsNotUnderstoodIsKeptAside)
{
    QJsonObject root = QJsonDocument::fromJson(presets.exported(*presets.save(u"mine"_s, plan))).object();
    QJsonObject row = root[u"presets"_s].toArray().first().toObject();
    row[u"name"_s] = QString(100, u'ä');
    const auto store = [&](int count, int newerOnes) {
        QJsonArray rows;
        for (int i = 0; i < count; ++i) {
            row[u"id"_s] = u"own-%1"_s.arg(i);
            row[u"version"_s] = i < newerOnes ? 99 : 1;
            rows.append(row);
        }
        root[u"presets"_s] = rows;
        defaults.setObject(QJsonDocument(root).toJson(), key);
        return defaults.dataForKey(key).size();
    };
    EXPECT_GT(store(500, 0), maximumPresetFileBytes);
    EXPECT_EQ(OwnPresets(defaults, key).presets().size(), 500);
    store(3, 1);
    OwnPresets rest(defaults, key);
    ASSERT_EQ(rest.presets().size(), 2);
    rest.remove(u"own-1"_s);
    rest.remove(u"own-2"_s);
    EXPECT_EQ(QDir(folder.path()).entryList({u"*.presets.corrupt-*"_s}).size(), 1);
}

TEST_F(OwnPresetsTest, TakeNoFilesOfAnotherMachine)
{
    const QByteArray file = changedFile([](QJsonObject &, QJsonObject &preset) {
        preset[u"options"_s] = QJsonObject{{u"version"_s, 1},
                                           {u"speed"_s, 99},
                                           {u"fadeIn"_s, 3},
                                           {u"maximumHeight"_s, 500},
                                           {u"sources"_s, QJsonArray{u"/etc/passwd"_s}},
                                           {u"watermark"_s, QJsonObject{{u"image"_s, u"/etc/passwd"_s}}}};
    });
    const auto id = presets.import(file);
    ASSERT_TRUE(id);
    TranscodePlan other;
    presets.apply(*id, other);
    EXPECT_TRUE(other.sources.isEmpty() && !other.watermark);
    EXPECT_EQ(other.speed, 0);
    EXPECT_EQ(other.fadeIn, 0);
    EXPECT_EQ(other.maximumHeight, 500) << "what serves every file comes with it";
}

}  // namespace kestrel
