#include "HeronController.h"
#include "ModuleSettings.h"
#include "NotificationCenter.h"
#include "PetrelController.h"
#include "PloversController.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

template <class Module>
std::unique_ptr<ModuleController> made(const ModuleConfigure &configure)
{
    return std::make_unique<Module>(configure);
}

}  // namespace

TEST(OverviewControllerTest, ShowsItsOwnFolderAndLeadsBack)
{
    const struct {
        const char *title;  // as on the home screen
        qint32 kind;
        ModuleFactory make;
    } rows[] = {{"DVD Ripper", ModuleSettingDVD, made<HeronController>},
                {"Downloader", ModuleSettingDownload, made<PetrelController>},
                {"Recorder", ModuleSettingRecord, made<PloversController>}};
    for (const auto &[title, kind, make] : rows) {
        test::ModuleSettings settings(kind);
        const auto module = make(settings.configure());
        EXPECT_EQ(module->view()->size(), QSize(900, 600));
        EXPECT_EQ(module->windowTitle(), QLatin1StringView(title));
        EXPECT_EQ(module->view()->findChild<QLabel *>(u"titleLabel"_s)->text(), QLatin1StringView(title));
        const auto *label = module->view()->findChild<QLabel *>(u"folderLabel"_s);
        EXPECT_EQ(label->text(), settings.folder());
        settings.dispatcher().setVideoDir(u"/elsewhere"_s);
        foundation::NotificationCenter::defaultCenter().postNotificationName(
            keyKestrelSettingDidChangedNotification.toString());
        EXPECT_EQ(label->text(), u"/elsewhere");
        ModuleController *leftBy = nullptr;
        module->setCompletedHandler([&](ModuleController *leaving) { leftBy = leaving; });
        module->view()->findChild<QPushButton *>(u"backButton"_s)->click();
        EXPECT_EQ(leftBy, module.get());
        EXPECT_TRUE(module->shouldTerminate());
    }
}

}  // namespace kestrel
