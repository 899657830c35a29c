#include "ModuleSettings.h"
#include "foundation/NotificationCenter.h"
#include "modules/plover/ui/PloversController.h"

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
        qint32 kind;
        std::unique_ptr<ModuleController> (*make)(const ModuleConfigure &);
    } rows[] = {{ModuleSettingRecord, made<PloversController>}};
    for (const auto &[kind, make] : rows) {
        test::ModuleSettings settings(kind);
        const auto module = make(settings.configure());
        EXPECT_TRUE(module->view()->children().isEmpty() && module->view()->size() == QSize(900, 600)) << "at launch";
        QWidget window;  // which shows what is in it
        module->view()->setParent(&window);
        module->view()->ensurePolished();
        EXPECT_TRUE(module->view()->children().isEmpty()) << "the host has it in the window for a moment";
        window.show();
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
        EXPECT_EQ(module->view()->size(), QSize(900, 600));
        module->view()->setParent(nullptr);
    }
}

}  // namespace kestrel
