#include "settings/JKestrelSetting.h"

#include "foundation/UserDefaults.h"
#include "tests/support/ProductFolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

class JKestrelSettingTest : public testing::Test {
protected:
    static QString inHome(const QString &path) { return QDir::home().filePath(path); }

    QTemporaryDir m_folder;
    test::ProductFolder m_product{test::productInformation()};
    foundation::UserDefaults m_defaults{m_folder.filePath(u"defaults.plist"_s)};
};

QByteArray foreignArchive()
{
    QFile file(QStringLiteral(KESTREL_FOREIGN_ARCHIVE));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

QVariant storedAs(const foundation::KeyedDecoder &coder, const QString &key, int type)
{
    if (type == QMetaType::QString)
        return coder.decodeString(key);
    return type == QMetaType::Bool ? QVariant(coder.decodeBool(key)) : QVariant(coder.decodeDouble(key));
}

/// An object of any class name with any fields.
struct ArchivedObject final : foundation::KeyedArchivable {
    ArchivedObject(const QString &name_, const QVariantMap &fields_ = {}) : name(name_), fields(fields_) {}
    QStringList archiveClasses() const override { return {name, u"NSObject"_s}; }
    void encodeWithCoder(foundation::KeyedEncoder &coder) const override
    {
        for (auto field = fields.begin(); field != fields.end(); ++field)
            field->typeId() == QMetaType::QString ? coder.encodeString(field->toString(), field.key())
                                                  : coder.encodeInteger(field->toInt(), field.key());
    }
    QString name;
    QVariantMap fields;
};

QByteArray archiveOf(const std::map<QString, ArchivedObject> &objects)
{
    foundation::KeyedArchiver archiver;
    for (const auto &[key, object] : objects)
        archiver.setObject(key, object);
    archiver.setNumbers(u"vars"_s, {{u"shutdown"_s, true}});
    return archiver.archivedData();
}

}  // namespace

TEST_F(JKestrelSettingTest, a_first_launch_has_the_defaults_and_makes_the_folders)
{
    const JKestrelSetting setting(m_defaults);
    const JSettingBase *const modules[] = {setting.video(), setting.dvd(), setting.downloader(), setting.recorder()};
    for (const JSettingBase *module : modules) {
        SCOPED_TRACE(module->metaObject()->className());
        const bool needsMusic = module == setting.downloader();
        const bool needsSnapshot = module == setting.video() || module == setting.dvd();
        EXPECT_EQ(module->videoOutputPath(), inHome(u"Movies/Mac Video Library"_s));
        EXPECT_EQ(module->musicOutputPath(), needsMusic ? inHome(u"Music/Mac Video Library"_s) : QString());
        EXPECT_EQ(module->snapshotOutputPath(), needsSnapshot ? inHome(u"Pictures/Mac Video Library"_s) : QString());
        EXPECT_EQ(module->cpuCore(), QThread::idealThreadCount());
    }
    for (const auto &folder : {u"Movies"_s, u"Music"_s, u"Pictures"_s})
        EXPECT_TRUE(QDir(inHome(folder + u"/Mac Video Library"_s)).exists()) << qPrintable(folder);
    EXPECT_TRUE(setting.openFolderWhenDone() && setting.notifyWhenAvailable() && !setting.shutdownWhenDone());
    EXPECT_TRUE(setting.currMode().isNull());
}

TEST_F(JKestrelSettingTest, every_archived_field_has_its_own_name)
{
    const struct {
        const char *module, *property, *key;
        QVariant value;  ///< not its default, and no other's
    } rows[] = {{"video", "videoOutputPath", "video_out", inHome(u"vidéo 出力"_s)},
                {"video", "snapshotOutputPath", "snapshot_out", inHome(u"2"_s)},
                {"dvd", "videoOutputPath", "video_out", inHome(u"3"_s)},
                {"dvd", "snapshotOutputPath", "snapshot_out", inHome(u"4"_s)},
                {"dvd", "prefferLanguage", "DVDAudioLanCode", u"ko"_s},
                {"downloader", "videoOutputPath", "video_out", inHome(u"5"_s)},
                {"downloader", "musicOutputPath", "audio_out", inHome(u"6"_s)},
                {"downloader", "preferedResolution", "rso", u"360P"_s},
                {"downloader", "preferedConcurrent", "concurrent", 10},
                {"downloader", "preferedFormat", "format", u"flv"_s},
                {"downloader", "proxyEnabled", "proxyEnable", true},
                {"downloader", "proxyURL", "proxyURL", u"http://proxy"_s},
                {"downloader", "proxyPort", "proxyPort", u"8080"_s},
                {"recorder", "videoOutputPath", "video_out", inHome(u"7"_s)},
                {"recorder", "recordQuality", "quality", 2},
                {"recorder", "maxFrameRate", "maxFramerate", 59.94},
                {"recorder", "recordVideoDeviceID", "videoDevice", u"camera"_s},
                {"recorder", "recordAudioDeviceID", "audioDevice", u"microphone"_s},
                {"recorder", "recordChoices", "recordChoices", u"{}"_s},
                {"recorder", "captureMouseClick", "captureMouse", false}};
    const auto moduleOf = [](const JKestrelSetting &setting, const char *name) {
        return setting.property(name).value<QObject *>();
    };
    const std::pair<const char *, const char *> switches[] = {
        {"openFolderWhenDone", "openFolder"}, {"shutdownWhenDone", "shutdown"}, {"notifyWhenAvailable", "notify"}};
    for (const auto &on : switches) {  // alone, so that none can stand for another
        JKestrelSetting setting(m_defaults);
        for (const auto &row : rows)
            ASSERT_TRUE(moduleOf(setting, row.module)->setProperty(row.property, row.value)) << row.property;
        for (const auto &each : switches)
            ASSERT_TRUE(setting.setProperty(each.first, &each == &on));
        setting.sync();
        const auto root = foundation::KeyedDecoder::unarchive(m_defaults.dataForKey(u"setting"_s));
        ASSERT_TRUE(root);
        foundation::UserDefaults file(m_folder.filePath(u"defaults.plist"_s));
        const JKestrelSetting read(file);
        for (const auto &[module, property, name, value] : rows) {
            SCOPED_TRACE(std::string(module) + '.' + name);
            const auto stored = root->decodeObject(QString::fromLatin1(module));
            const QString key = QString::fromLatin1(name);
            ASSERT_TRUE(stored && stored->contains(key));
            EXPECT_EQ(storedAs(*stored, key, value.typeId()), value);
            EXPECT_EQ(moduleOf(read, module)->property(property), value);
        }
        for (const auto &each : switches) {
            EXPECT_EQ(root->decodeObject(u"vars"_s)->decodeBool(QString::fromLatin1(each.second)), &each == &on);
            EXPECT_EQ(read.property(each.first).toBool(), &each == &on) << on.second;
        }
    }
}

TEST_F(JKestrelSettingTest, what_is_not_archived_begins_anew_and_folders_are_made)
{
    QFile blocker(inHome(u"blocker"_s));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    {
        JKestrelSetting setting(m_defaults);
        setting.video()->setVideoOutputPath(inHome(u"new folder"_s));
        setting.video()->setMusicOutputPath(inHome(u"unneeded"_s));
        setting.video()->setAutoCopy(false);
        setting.dvd()->setVideoOutputPath(blocker.fileName() + u"/below"_s);
        setting.setCurrMode(u"video"_s);
        setting.sync();
    }
    const JKestrelSetting setting(m_defaults);
    EXPECT_TRUE(QDir(inHome(u"new folder"_s)).exists() && setting.currMode().isNull());
    EXPECT_TRUE(setting.video()->musicOutputPath().isNull() && setting.video()->autoCopy());
    EXPECT_TRUE(setting.downloader()->proxyURL().isNull());
    QString error;
    EXPECT_TRUE(setting.video()->checkSetting(&error));
    for (const QString &path : {setting.dvd()->videoOutputPath(), QString(), u""_s}) {  // the first could not be made
        setting.dvd()->setVideoOutputPath(path);
        EXPECT_FALSE(setting.dvd()->checkSetting(&error));
        EXPECT_EQ(error, u"The output directory does not exist. Please check the setting."_s);
    }
}

TEST_F(JKestrelSettingTest, an_archive_by_another_implementation_is_read)
{
    m_defaults.setObject(foreignArchive(), u"setting"_s);
    const JKestrelSetting setting(m_defaults);
    EXPECT_EQ(setting.video()->videoOutputPath(), u"/tmp/kestrel-fixture/JVideoSetting/vidéo"_s);
    EXPECT_EQ(setting.dvd()->prefferLanguage(), u"ko"_s);
    EXPECT_EQ(setting.downloader()->preferedConcurrent(), 2);
    EXPECT_EQ(setting.downloader()->proxyURL(), u"socks5://10.0.0.1"_s);
    EXPECT_EQ(setting.recorder()->maxFrameRate(), 24.0);
    EXPECT_EQ(setting.recorder()->recordAudioDeviceID(), u"mic-1"_s);
    EXPECT_FALSE(setting.recorder()->captureMouseClick());
    EXPECT_TRUE(!setting.openFolderWhenDone() && setting.shutdownWhenDone() && !setting.notifyWhenAvailable());
    QDir(u"/tmp/kestrel-fixture"_s).removeRecursively();
}

TEST_F(JKestrelSettingTest, missing_values_read_as_each_module_says)
{
    const QVariantMap emptyTexts = {{u"DVDAudioLanCode"_s, u""_s}, {u"video_out"_s, u""_s}};
    m_defaults.setObject(archiveOf({{u"downloader"_s, {u"JDownloaderSetting"_s}},
                                    {u"recorder"_s, {u"JRecorderSetting"_s, {{u"maxFramerate"_s, qQNaN()}}}},
                                    {u"dvd"_s, {u"JDVDSetting"_s, emptyTexts}}}),
                         u"setting"_s);
    const JKestrelSetting setting(m_defaults);
    EXPECT_EQ(setting.downloader()->preferedConcurrent(), 0);
    EXPECT_EQ(setting.downloader()->preferedFormat(), u"mp4"_s);
    EXPECT_EQ(setting.recorder()->maxFrameRate(), 0.0) << "not a number";
    EXPECT_TRUE(setting.recorder()->recordVideoDeviceID().isNull());
    EXPECT_EQ(setting.dvd()->prefferLanguage(), u"Default"_s);
    EXPECT_EQ(setting.dvd()->videoOutputPath(), inHome(u"Movies/Mac Video Library"_s));
    EXPECT_TRUE(!setting.openFolderWhenDone() && setting.shutdownWhenDone() && !setting.notifyWhenAvailable());
}

TEST_F(JKestrelSettingTest, damaged_or_foreign_values_read_as_defaults_object_by_object)
{
    const ArchivedObject wrongTypes(u"JDownloaderSetting"_s, {{u"format"_s, 12}, {u"video_out"_s, 1}});
    const QVariant rows[] = {u"text"_s, QByteArray("bplist00 but not really"), foreignArchive().left(900),
                             archiveOf({{u"video"_s, {u"NSURL"_s}}, {u"downloader"_s, wrongTypes}})};
    for (const QVariant &stored : rows) {
        m_defaults.setObject(stored, u"setting"_s);
        const JKestrelSetting setting(m_defaults);
        EXPECT_EQ(setting.video()->videoOutputPath(), inHome(u"Movies/Mac Video Library"_s)) << &stored - rows;
        EXPECT_EQ(setting.downloader()->preferedFormat(), u"mp4"_s) << &stored - rows;
        EXPECT_EQ(setting.downloader()->videoOutputPath(), setting.video()->videoOutputPath()) << &stored - rows;
        EXPECT_EQ(setting.recorder()->maxFrameRate(), 30.0) << &stored - rows;
        EXPECT_EQ(setting.shutdownWhenDone(), &stored == &rows[3]) << &stored - rows;
    }
}

TEST_F(JKestrelSettingTest, an_archive_that_cannot_be_read_is_kept_beside_the_file)
{
    const QDir folder(m_folder.path());
    const auto keptNames = [&] { return folder.entryList({u"defaults.plist.setting.corrupt-*"_s}, QDir::Files); };
    const QByteArray unreadable = "archived by a later version";
    for (const QByteArray &stored : {foreignArchive(), unreadable}) {
        m_defaults.setObject(stored, u"setting"_s);
        JKestrelSetting setting(m_defaults);
        EXPECT_TRUE(keptNames().isEmpty()) << "kept before anything replaced it";
        setting.sync();
        setting.sync();
    }
    ASSERT_EQ(keptNames().size(), 1);
    QFile kept(folder.filePath(keptNames().constFirst()));
    EXPECT_TRUE(kept.open(QIODevice::ReadOnly) && kept.readAll() == unreadable);
}

}  // namespace kestrel
