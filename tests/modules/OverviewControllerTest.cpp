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

TEST(OverviewControllerTest, ShowsItsOwnFolderAndLeadsBack)
{
    const struct {
        qint32 kind;
        ModuleFactory make;
    } rows[] = {
        {ModuleSettingDVD,
         [](const ModuleConfigure &configure) { return std::make_unique<HeronController>(configure); }},
        {ModuleSettingDownload,
         [](const ModuleConfigure &configure) { return std::make_unique<PetrelController>(configure); }},
        {ModuleSettingRecord,
         [](const ModuleConfigure &configure) { return std::make_unique<PloversController>(configure); }},
    };
    QSet<QString> titles;
    for (const auto &[kind, make] : rows) {
        test::ModuleSettings settings(kind);
        const auto module = make(settings.configure());
        EXPECT_EQ(module->view()->size(), QSize(900, 600));
        titles.insert(module->windowTitle());
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
    EXPECT_EQ(titles.size(), 3);
}

}  // namespace kestrel
