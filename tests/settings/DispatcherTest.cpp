#include "settings/JKestrelSettingDispatcher.h"

#include "foundation/UserDefaults.h"
#include "settings/JKestrelSetting.h"
#include "tests/support/ProductFolder.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrel {

TEST(DispatcherTest, each_kind_reaches_its_own_module_and_the_shared_preferences)
{
    const test::ProductFolder product(test::productInformation());
    const QTemporaryDir folder;
    foundation::UserDefaults defaults(folder.filePath(u"defaults.plist"_s));
    JKestrelSetting setting(defaults);
    JSettingBase *const modules[] = {setting.video(), setting.dvd(), setting.downloader(), setting.recorder()};
    for (qint32 kind = 0; kind < 4; ++kind) {
        JKestrelSettingDispatcher subject(kind, setting);
        EXPECT_EQ(subject.currentSetting(), modules[kind]);
        subject.setVideoDir(u"/out/%1"_s.arg(kind));
        subject.setCpuCore(kind + 1);
        subject.setHQE(true);
        subject.setAutoCopy(false);
        EXPECT_EQ(subject.getConcurrentThread(), kind == 0 ? 5 : kind);
        subject.setConcurrentThread(kind + 1);
        subject.setShutdownJiQi(true);
        subject.setOpenFolder(false);
    }
    for (qint32 kind = 0; kind < 4; ++kind) {
        const JSettingBase &module = *modules[kind];
        EXPECT_EQ(module.videoOutputPath(), u"/out/%1"_s.arg(kind));
        EXPECT_EQ(module.cpuCore(), kind + 1);
        EXPECT_TRUE(module.highQualityEngine() && !module.merge2MKV() && !module.isAdd2iTunesLib()) << kind;
        EXPECT_FALSE(module.autoCopy() || module.mergeMedia() || module.safeMode() || module.deinterlacing()) << kind;
    }
    EXPECT_TRUE(setting.shutdownWhenDone() && !setting.openFolderWhenDone());
    EXPECT_TRUE(JKestrelSettingDispatcher(ModuleSettingRecord, setting).getMusicDir().isNull());

    JKestrelSettingDispatcher unknown(9, setting);
    EXPECT_EQ(unknown.currentSetting(), nullptr);
    unknown.setVideoDir(u"/nowhere"_s);
    QString error;
    EXPECT_TRUE(unknown.getVideoDir().isNull() && unknown.getCpuCore() == 0 && !unknown.check(&error));
    EXPECT_EQ(unknown.proxyString(), u"(null):(null)"_s);
    unknown.setProxyString(u"http://proxy.example"_s, u"8080"_s);
    EXPECT_EQ(unknown.proxyString(), u"http://proxy.example:8080"_s);
}

}  // namespace kestrel
