#include "JKestrelSetting.h"

#include "ProductFolder.h"
#include "UserDefaults.h"

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

/// An archive whose root has only these objects.
QByteArray archiveOf(const std::function<void(foundation::KeyedArchiver &)> &fill)
{
    foundation::KeyedArchiver archiver;
    fill(archiver);
    return archiver.archivedData();
}

/// An object of any class name with any fields.
struct ArchivedObject : foundation::KeyedArchivable {
    QString name;
    std::function<void(foundation::KeyedEncoder &)> fields = [](foundation::KeyedEncoder &) {};
    QStringList archiveClasses() const override { return {name, u"NSObject"_s}; }
    void encodeWithCoder(foundation::KeyedEncoder &coder) const override { fields(coder); }
};

}  // namespace

TEST_F(JKestrelSettingTest, a_first_launch_has_the_defaults_and_makes_the_folders)
{
    const JKestrelSetting setting(m_defaults);
    const struct {
        const JSettingBase *module;
        bool music, snapshot;
    } modules[] = {{setting.video(), false, true},
                   {setting.dvd(), false, true},
                   {setting.downloader(), true, false},
                   {setting.recorder(), false, false}};
    for (const auto &[module, music, snapshot] : modules) {
        SCOPED_TRACE(module->metaObject()->className());
        EXPECT_EQ(module->videoOutputPath(), inHome(u"Movies/Mac Video Library"_s));
        EXPECT_EQ(module->musicOutputPath(), music ? inHome(u"Music/Mac Video Library"_s) : QString());
        EXPECT_EQ(module->snapshotOutputPath(), snapshot ? inHome(u"Pictures/Mac Video Library"_s) : QString());
        EXPECT_EQ(module->cpuCore(), QThread::idealThreadCount());
        EXPECT_TRUE(module->autoCopy());
        EXPECT_FALSE(module->safeMode() || module->mergeMedia() || module->isAdd2iTunesLib());
    }
    for (const auto &folder : {u"Movies"_s, u"Music"_s, u"Pictures"_s})
        EXPECT_TRUE(QDir(inHome(folder + u"/Mac Video Library"_s)).exists()) << qPrintable(folder);
    EXPECT_EQ(setting.dvd()->prefferLanguage(), u"Default"_s);
    EXPECT_EQ(setting.downloader()->preferedConcurrent(), 5);
    EXPECT_TRUE(setting.downloader()->proxyURL().isNull());
    EXPECT_EQ(setting.recorder()->maxFrameRate(), 30.0);
    EXPECT_FALSE(setting.recorder()->recordVideoDeviceID().isNull());
    EXPECT_TRUE(setting.openFolderWhenDone() && setting.notifyWhenAvailable() && !setting.shutdownWhenDone());
    EXPECT_TRUE(setting.currMode().isNull());
}

TEST_F(JKestrelSettingTest, what_is_archived_comes_back_and_the_rest_begins_anew)
{
    {
        JKestrelSetting setting(m_defaults);
        setting.video()->setVideoOutputPath(inHome(u"vidéo 出力"_s));
        setting.video()->setMusicOutputPath(inHome(u"unneeded"_s));
        setting.video()->setAutoCopy(false);
        setting.dvd()->setPrefferLanguage(u"ko"_s);
        setting.downloader()->setPreferedConcurrent(0);
        setting.downloader()->setProxyEnabled(true);
        setting.downloader()->setProxyPort(u"8080"_s);
        setting.recorder()->setRecordQuality(-3);
        setting.recorder()->setMaxFrameRate(59.94);
        setting.recorder()->setCaptureMouseClick(false);
        setting.setOpenFolderWhenDone(false);
        setting.setShutdownWhenDone(true);
        setting.setCurrMode(u"video"_s);
        setting.sync();
    }
    foundation::UserDefaults read(m_folder.filePath(u"defaults.plist"_s));
    const JKestrelSetting setting(read);
    EXPECT_EQ(setting.video()->videoOutputPath(), inHome(u"vidéo 出力"_s));
    EXPECT_TRUE(QDir(inHome(u"vidéo 出力"_s)).exists());
    EXPECT_TRUE(setting.video()->musicOutputPath().isNull());
    EXPECT_TRUE(setting.video()->autoCopy());
    EXPECT_EQ(setting.dvd()->prefferLanguage(), u"ko"_s);
    EXPECT_EQ(setting.downloader()->preferedConcurrent(), 0);
    EXPECT_TRUE(setting.downloader()->proxyEnabled());
    EXPECT_TRUE(setting.downloader()->proxyURL().isNull());
    EXPECT_EQ(setting.downloader()->proxyPort(), u"8080"_s);
    EXPECT_EQ(setting.recorder()->recordQuality(), -3);
    EXPECT_EQ(setting.recorder()->maxFrameRate(), 59.94);
    EXPECT_FALSE(setting.recorder()->captureMouseClick());
    EXPECT_TRUE(!setting.openFolderWhenDone() && setting.shutdownWhenDone() && setting.notifyWhenAvailable());
    EXPECT_TRUE(setting.currMode().isNull());
}

TEST_F(JKestrelSettingTest, an_archive_by_another_implementation_is_read)
{
    m_defaults.setObject(foreignArchive(), u"setting"_s);
    const JKestrelSetting setting(m_defaults);
    EXPECT_EQ(setting.video()->videoOutputPath(), u"/tmp/kestrel-fixture/JVideoSetting/vidéo"_s);
    EXPECT_EQ(setting.dvd()->prefferLanguage(), u"ko"_s);
    EXPECT_EQ(setting.downloader()->preferedResolution(), u"480P"_s);
    EXPECT_EQ(setting.downloader()->preferedFormat(), u"flv"_s);
    EXPECT_EQ(setting.downloader()->preferedConcurrent(), 2);
    EXPECT_EQ(setting.downloader()->proxyURL(), u"socks5://10.0.0.1"_s);
    EXPECT_EQ(setting.recorder()->recordQuality(), 2);
    EXPECT_EQ(setting.recorder()->maxFrameRate(), 24.0);
    EXPECT_EQ(setting.recorder()->recordAudioDeviceID(), u"mic-1"_s);
    EXPECT_FALSE(setting.recorder()->captureMouseClick());
    EXPECT_TRUE(!setting.openFolderWhenDone() && setting.shutdownWhenDone() && !setting.notifyWhenAvailable());
    QDir(u"/tmp/kestrel-fixture"_s).removeRecursively();
}

TEST_F(JKestrelSettingTest, missing_values_read_as_each_module_says)
{
    m_defaults.setObject(archiveOf([](foundation::KeyedArchiver &archiver) {
                             ArchivedObject object;
                             object.name = u"JDownloaderSetting"_s;
                             archiver.setObject(u"downloader"_s, object);
                             object.name = u"JRecorderSetting"_s;
                             archiver.setObject(u"recorder"_s, object);
                             object.name = u"JDVDSetting"_s;
                             object.fields = [](foundation::KeyedEncoder &coder) {
                                 coder.encodeString(u""_s, u"DVDAudioLanCode"_s);
                                 coder.encodeString(u""_s, u"video_out"_s);
                             };
                             archiver.setObject(u"dvd"_s, object);
                             archiver.setNumbers(u"vars"_s, {{u"shutdown"_s, true}});
                         }),
                         u"setting"_s);
    const JKestrelSetting setting(m_defaults);
    EXPECT_EQ(setting.downloader()->preferedConcurrent(), 0);
    EXPECT_EQ(setting.downloader()->preferedFormat(), u"mp4"_s);
    EXPECT_EQ(setting.downloader()->preferedResolution(), u"Highest Resolution"_s);
    EXPECT_EQ(setting.recorder()->maxFrameRate(), 0.0);
    EXPECT_EQ(setting.recorder()->recordQuality(), 0);
    EXPECT_TRUE(setting.recorder()->recordVideoDeviceID().isNull());
    EXPECT_FALSE(setting.recorder()->captureMouseClick());
    EXPECT_EQ(setting.dvd()->prefferLanguage(), u"Default"_s);
    EXPECT_EQ(setting.dvd()->videoOutputPath(), inHome(u"Movies/Mac Video Library"_s));
    EXPECT_EQ(setting.video()->needSnapshotFolder(), true);
    EXPECT_TRUE(!setting.openFolderWhenDone() && setting.shutdownWhenDone() && !setting.notifyWhenAvailable());
}

TEST_F(JKestrelSettingTest, damaged_or_foreign_values_read_as_defaults_object_by_object)
{
    ArchivedObject stranger;
    stranger.name = u"NSURL"_s;
    ArchivedObject wrongTypes;
    wrongTypes.name = u"JDownloaderSetting"_s;
    wrongTypes.fields = [](foundation::KeyedEncoder &coder) {
        coder.encodeInteger(12, u"format"_s);
        coder.encodeString(u"many"_s, u"concurrent"_s);
        coder.encodeInteger(1, u"video_out"_s);
    };
    const struct {
        const char *name;
        QVariant stored;
    } rows[] = {
        {"no data", u"text"_s},
        {"noise", QByteArray("bplist00 but not really")},
        {"truncated", foreignArchive().left(900)},
        {"wrong classes and types", archiveOf([&](foundation::KeyedArchiver &archiver) {
             archiver.setObject(u"video"_s, stranger);
             archiver.setObject(u"downloader"_s, wrongTypes);
         })},
    };
    for (const auto &[name, stored] : rows) {
        SCOPED_TRACE(name);
        m_defaults.setObject(stored, u"setting"_s);
        const JKestrelSetting setting(m_defaults);
        EXPECT_EQ(setting.video()->videoOutputPath(), inHome(u"Movies/Mac Video Library"_s));
        EXPECT_EQ(setting.downloader()->preferedFormat(), u"mp4"_s);
        EXPECT_EQ(setting.downloader()->videoOutputPath(), inHome(u"Movies/Mac Video Library"_s));
        EXPECT_EQ(setting.recorder()->maxFrameRate(), 30.0);
        EXPECT_TRUE(setting.openFolderWhenDone());
    }
}

TEST_F(JKestrelSettingTest, check_looks_at_the_video_folder_only)
{
    JKestrelSetting setting(m_defaults);
    QString error;
    EXPECT_TRUE(setting.downloader()->checkSetting(&error));
    for (const QString &path : {QString(), u""_s, inHome(u"nowhere"_s)}) {
        setting.downloader()->setVideoOutputPath(path);
        EXPECT_FALSE(setting.downloader()->checkSetting(&error));
        EXPECT_EQ(error, u"The output directory does not exist. Please check the setting."_s);
    }
}

TEST_F(JKestrelSettingTest, a_folder_that_cannot_be_made_is_no_error_until_it_is_checked)
{
    QFile blocker(inHome(u"blocker"_s));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    {
        JKestrelSetting setting(m_defaults);
        setting.video()->setVideoOutputPath(blocker.fileName() + u"/below"_s);
        setting.sync();
    }
    const JKestrelSetting setting(m_defaults);
    QString error;
    EXPECT_FALSE(setting.video()->checkSetting(&error));
}

}  // namespace kestrel
