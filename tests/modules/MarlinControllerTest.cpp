#include "ModuleSettings.h"
#include "modules/marlin/ui/MarlinController.h"
#include "modules/marlin/ui/MarlinView.h"
#include "tests/support/TestDesktop.h"
#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

class MarlinControllerTest : public testing::Test {
protected:
    MarlinControllerTest()
    {
        m_controller.setCompletedHandler([this](ModuleController *module) { m_leftBy.append(module); });
        m_controller.view()->show();
        m_settings.dispatcher().setOpenFolder(false);
        m_desktop.answer = tarnwell::AlertAnswer::Default;
    }

    template <class Control>
    Control *control(const QString &name)
    {
        return m_controller.view()->findChild<Control *>(name);
    }
    void click(const QString &name) { control<QPushButton>(name)->click(); }
    QStringList column(int column)
    {
        const QAbstractItemModel *model = control<QTreeView>(u"fileList"_s)->model();
        QStringList texts;
        for (int row = 0; row < model->rowCount(); ++row)
            texts.append(model->index(row, column).data().toString());
        return texts;
    }
    bool waitForStates(const QStringList &states)
    {
        return test::waitUntil([&] { return column(ConversionList::StateColumn) == states; }, 20'000);
    }
    QString makeClip(const QString &name)
    {
        QDir().mkpath(QFileInfo(m_settings.path(name)).path());
        m_settings.makeClip(m_settings.path(name), QLatin1StringView(test::shortTone));
        return m_settings.path(name);
    }
    bool openClip()
    {
        m_controller.openFiles({makeClip(u"a.wav"_s)});
        return waitForStates({u"Ready"_s});
    }

    test::ModuleSettings m_settings;
    test::TestDesktop m_desktop;
    MarlinController m_controller{m_settings.configure()};
    QList<ModuleController *> m_leftBy;
};

}  // namespace

TEST_F(MarlinControllerTest, FilesComeIntoTheListAndGoConverted)
{
    EXPECT_FALSE(control<QPushButton>(u"convertButton"_s)->isEnabled());
    const QString first = makeClip(u"in/b.wav"_s), second = makeClip(u"in/deep/a.flac"_s);
    QFile::copy(first, m_settings.path(u"in/notes.txt"_s));
    m_controller.openFiles({m_settings.path(u"in"_s), second, m_settings.path(u"no.mp4"_s)});
    EXPECT_TRUE(waitForStates({u"Ready"_s, u"Ready"_s, u"There is no such file."_s}));
    EXPECT_EQ(column(ConversionList::DurationColumn), QStringList({u"0:02"_s, u"0:02"_s, u"–"_s}));

    m_settings.dispatcher().setOpenFolder(true);
    click(u"convertButton"_s);
    EXPECT_TRUE(control<QPushButton>(u"cancelButton"_s)->isVisible());
    const QString other = m_settings.path(u"other"_s);
    QDir().mkpath(other);
    m_settings.dispatcher().setVideoDir(other);  // for the next run
    EXPECT_TRUE(waitForStates({u"Done"_s, u"Done"_s, u"There is no such file."_s}));
    ASSERT_TRUE(test::waitUntil([this] { return control<QPushButton>(u"convertButton"_s)->isVisible(); }));
    EXPECT_EQ(m_settings.outputs(), QStringList({u"a.mp4"_s, u"b.mp4"_s}));
    click(u"openFolderButton"_s);
    EXPECT_EQ(m_desktop.opened, (QList{QUrl::fromLocalFile(m_settings.folder()), QUrl::fromLocalFile(other)}));
    EXPECT_EQ(control<QLabel>(u"statusLabel"_s)->text(), u"Converted: 2");
    EXPECT_FALSE(control<QPushButton>(u"convertButton"_s)->isEnabled());
    control<QComboBox>(u"targetComboBox"_s)->setCurrentIndex(3);
    EXPECT_TRUE(control<QPushButton>(u"convertButton"_s)->isEnabled());
}

TEST_F(MarlinControllerTest, DroppedFilesAreRemovedWithTheDeleteKey)
{
    const QString clip = makeClip(u"a.wav"_s);
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(clip), QUrl(u"http://127.0.0.1/b.mp4"_s)});
    QDragEnterEvent enter({100, 100}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_controller.view(), &enter);
    QDropEvent drop({100, 100}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(m_controller.view(), &drop);
    ASSERT_TRUE(waitForStates({u"Ready"_s}));
    auto *list = control<QTreeView>(u"fileList"_s);
    list->setFocus();
    list->selectAll();
    m_controller.view()->activateWindow();
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_EQ(list->model()->rowCount(), 0);
    EXPECT_TRUE(control<QPushButton>(u"emptyAddButton"_s)->isVisible());
}

TEST_F(MarlinControllerTest, WhatStandsInTheWayIsSaidBeforeTheStart)
{
    ASSERT_TRUE(openClip());
    m_settings.dispatcher().setVideoDir(m_settings.path(u"missing"_s));
    click(u"convertButton"_s);
    m_settings.dispatcher().setVideoDir(m_settings.folder());
    QFile::remove(m_settings.dispatcher().getTranscoderPath());
    click(u"convertButton"_s);
    ASSERT_EQ(m_desktop.alerts.size(), 2);
    EXPECT_EQ(m_desktop.alerts[0].message, u"The output directory does not exist. Please check the setting."_s);
    EXPECT_EQ(m_desktop.alerts[1].message, u"The converter is missing. Please install the application again."_s);
    EXPECT_EQ(column(ConversionList::StateColumn), QStringList{u"Ready"_s});
}

TEST_F(MarlinControllerTest, LeavingARunAsksFirst)
{
    EXPECT_TRUE(m_controller.shouldTerminate());
    ASSERT_TRUE(openClip());
    m_settings.replaceTranscoder("echo x > \"$output\"; exec sleep 60");
    click(u"convertButton"_s);
    click(u"backButton"_s);
    EXPECT_FALSE(m_controller.shouldTerminate());
    EXPECT_TRUE(m_leftBy.isEmpty());
    ASSERT_EQ(m_desktop.alerts.size(), 2);
    EXPECT_EQ(m_desktop.alerts[0].defaultButton, u"Keep Converting"_s);
    EXPECT_EQ(m_desktop.alerts[0].escapeAnswer, tarnwell::AlertAnswer::Default);

    m_desktop.answer = tarnwell::AlertAnswer::Alternate;
    m_controller.doBackAction();
    EXPECT_EQ(m_leftBy, QList<ModuleController *>{&m_controller});
    EXPECT_TRUE(waitForStates({u"Stopped"_s}));
    EXPECT_EQ(m_settings.outputs(), QStringList());
    EXPECT_TRUE(m_controller.shouldTerminate());
}

}  // namespace kestrel
