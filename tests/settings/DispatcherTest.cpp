#include "JKestrelSettingDispatcher.h"

#include "JKestrelSetting.h"
#include "ProductFolder.h"
#include "UserDefaults.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

class DispatcherTest : public testing::Test {
protected:
    JKestrelSettingDispatcher dispatcher(qint32 kind) { return JKestrelSettingDispatcher(kind, m_setting); }

    QTemporaryDir m_folder;
    test::ProductFolder m_product{test::productInformation()};
    foundation::UserDefaults m_defaults{m_folder.filePath(u"defaults.plist"_s)};
    JKestrelSetting m_setting{m_defaults};
};

}  // namespace

TEST_F(DispatcherTest, each_kind_reaches_its_own_module)
{
    JSettingBase *const modules[] = {m_setting.video(), m_setting.dvd(), m_setting.downloader(), m_setting.recorder()};
    for (qint32 kind = 0; kind < 4; ++kind) {
        SCOPED_TRACE(kind);
        JKestrelSettingDispatcher subject = dispatcher(kind);
        EXPECT_EQ(subject.currentSetting(), modules[kind]);
        EXPECT_EQ(subject.dispatchType(), kind);
        subject.setVideoDir(u"/out/%1"_s.arg(kind));
        subject.setCpuCore(kind + 1);
        subject.setHQE(true);
        subject.setMergeMKV(true);
        subject.setAutoCopy(false);
        subject.setAdd2iTunesLib(true);
    }
    for (qint32 kind = 0; kind < 4; ++kind) {
        SCOPED_TRACE(kind);
        const JSettingBase &module = *modules[kind];
        EXPECT_EQ(module.videoOutputPath(), u"/out/%1"_s.arg(kind));
        EXPECT_EQ(module.cpuCore(), kind + 1);
        EXPECT_TRUE(module.highQualityEngine() && module.merge2MKV() && module.isAdd2iTunesLib());
        EXPECT_FALSE(module.autoCopy() || module.mergeMedia() || module.safeMode() || module.deinterlacing());
    }
    EXPECT_TRUE(dispatcher(ModuleSettingRecord).getMusicDir().isNull());
    EXPECT_TRUE(dispatcher(ModuleSettingRecord).getSnapshotDir().isNull());
    EXPECT_EQ(dispatcher(ModuleSettingDownload).getMusicDir(), m_setting.downloader()->musicOutputPath());
}

TEST_F(DispatcherTest, shared_preferences_ignore_the_kind)
{
    JKestrelSettingDispatcher video = dispatcher(ModuleSettingVideo);
    video.setConcurrentThread(7);
    video.setDefaultFormat(u"mkv"_s);
    video.setDefaultResolution(u"720P"_s);
    video.setProxyEnable(true);
    video.setMaxFramerate(12.5);
    video.setDefaultRecordQuality(3);
    video.setAudioDeviceID(u"mic"_s);
    video.setVideoDeviceID(u"cam"_s);
    video.setCaptureMouseClick(false);
    video.setQSV(true);
    video.setShutdownJiQi(true);
    video.setOpenFolder(false);
    m_setting.dvd()->setPrefferLanguage(u"fr"_s);

    const JKestrelSettingDispatcher other = dispatcher(ModuleSettingDVD);
    EXPECT_EQ(other.getConcurrentThread(), 7);
    EXPECT_EQ(other.getDefaultFormat(), u"mkv"_s);
    EXPECT_EQ(other.getDefaultResolution(), u"720P"_s);
    EXPECT_TRUE(other.isProxyEnabled());
    EXPECT_EQ(other.getRecorderMaxFramerate(), 12.5);
    EXPECT_EQ(other.getRecorderDefaultQuality(), 3);
    EXPECT_EQ(other.getCurrentAudioDeviceID(), u"mic"_s);
    EXPECT_EQ(other.getCurrentVideoDeviceID(), u"cam"_s);
    EXPECT_FALSE(other.isCaptureMouseClick());
    EXPECT_TRUE(other.getQSV() && other.isShutdownWhenDone() && !other.isOpenWhenDone());
    EXPECT_EQ(other.getDVDPreferredAudioLanCode(), u"fr"_s);
    EXPECT_TRUE(other.getTranscoderPath().endsWith(u"Contents/Resources/transcoder.bundle/Contents/Resources/ffmpeg"_s));
    EXPECT_TRUE(other.getDisc2ISOPath().endsWith(u"heron.bundle/Contents/Resources/disc2iso"_s));
}

TEST_F(DispatcherTest, proxy_string_prints_what_is_stored)
{
    JKestrelSettingDispatcher subject = dispatcher(ModuleSettingDownload);
    EXPECT_EQ(subject.proxyString(), u"(null):(null)"_s);
    subject.setProxyString(u"http://proxy.example"_s, u"8080"_s);
    EXPECT_EQ(subject.proxyString(), u"http://proxy.example:8080"_s);
    EXPECT_FALSE(subject.isProxyEnabled());
}

TEST_F(DispatcherTest, an_unknown_kind_answers_nothing_of_its_own)
{
    JKestrelSettingDispatcher subject = dispatcher(9);
    EXPECT_EQ(subject.currentSetting(), nullptr);
    subject.setVideoDir(u"/nowhere"_s);
    subject.setCpuCore(3);
    QString error;
    EXPECT_TRUE(subject.getVideoDir().isNull());
    EXPECT_EQ(subject.getCpuCore(), 0);
    EXPECT_FALSE(subject.autoCopy() || subject.check(&error));
    subject.setConcurrentThread(4);
    EXPECT_EQ(m_setting.downloader()->preferedConcurrent(), 4);
}

}  // namespace kestrel
