#include "modules/plover/ui/PloversController.h"

#include "ModuleSettings.h"
#include "jobs/JobQueue.h"
#include "modules/plover/ui/CapturePanel.h"
#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QTimeEdit>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using test::waitUntil;

/// The module's window itself is offscreen; what it records is an X display of the test's own.
class PloversControllerTest : public testing::Test, public ModuleServices {
protected:
    ~PloversControllerTest() override
    {
        m_controller.reset();
        m_display.kill();
        m_display.waitForFinished();
        qunsetenv("DISPLAY");
    }

    JobQueue &queue() override { return m_queue; }
    void openInConverter(const QStringList &) override {}
    void startDisplay()
    {
        m_display.start(u"Xvfb"_s,
                        {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"640x360x24"_s, u"-nolisten"_s, u"tcp"_s});
        ASSERT_TRUE(waitUntil([&] { return m_display.canReadLine(); }, 30'000));
        qputenv("DISPLAY", ":" + m_display.readLine().trimmed());
    }
    void open()
    {
        m_controller = std::make_unique<PloversController>(m_settings.configure(), *this);
        m_controller->startRecorderSession();
    }
    template <class Widget>
    Widget *find(const QString &name)
    {
        return m_controller->view()->findChild<Widget *>(name);
    }
    void choose(const QString &box, const QVariant &data)
    {
        auto *choices = find<QComboBox>(box);
        choices->setCurrentIndex(choices->findData(data));
        emit choices->activated(choices->currentIndex());
    }
    /// A button of the control bar.
    static QPushButton *barButton(const QString &text)
    {
        for (QWidget *window : QApplication::topLevelWidgets()) {
            for (auto *button : window->findChildren<QPushButton *>()) {
                if (window->objectName() == u"controlBar" && button->text() == text)
                    return button;
            }
        }
        return nullptr;
    }
    const JobRecord *recording()
    {
        const QList<JobId> ids = m_queue.order(ploverJobs.toString());
        return ids.isEmpty() ? nullptr : m_queue.record(ids.first());
    }
    bool waitForSeconds(double seconds)
    {
        return waitUntil([&] { return recording() && recording()->progress.seconds >= seconds; }, 60'000);
    }

    test::ModuleSettings m_settings{ModuleSettingRecord};
    JobQueue m_queue{nullptr};
    QProcess m_display;
    std::unique_ptr<PloversController> m_controller;
};

TEST_F(PloversControllerTest, RecordsPausesAndStops)
{
    startDisplay();
    open();
    EXPECT_TRUE(find<QComboBox>(u"sourceComboBox"_s)->currentText().contains(u"640"));
    EXPECT_EQ(find<QLabel>(u"folderLabel"_s)->text(), m_settings.dispatcher().getVideoDir());
    choose(u"soundComboBox"_s, int(RecordPlan::Sound::None));
    choose(u"countdownComboBox"_s, false);
    choose(u"qualityComboBox"_s, int(RecordPlan::Quality::Small));
    auto *start = find<QPushButton>(u"startButton"_s);
    start->click();
    ASSERT_TRUE(waitForSeconds(1));
    EXPECT_EQ(m_settings.dispatcher().getRecorderDefaultQuality(), int(RecordPlan::Quality::Small));
    barButton(u"Pause"_s)->click();
    EXPECT_EQ(recording()->state, JobState::Paused);
    const double paused = recording()->progress.seconds;
    barButton(u"Go On"_s)->click();
    ASSERT_TRUE(waitForSeconds(paused + 1));
    // Without an answer to its question a recording is not thrown away.
    find<QPushButton>(u"cancelButton"_s)->click();
    EXPECT_EQ(recording()->state, JobState::Running);
    EXPECT_EQ(start->text(), u"Stop");
    start->click();
    ASSERT_TRUE(waitUntil([&] { return isEnded(recording()->state); }, 60'000));
    EXPECT_EQ(recording()->state, JobState::Done) << qPrintable(recording()->outcome.details);
    EXPECT_EQ(m_settings.outputs().size(), 1);
    EXPECT_EQ(start->text(), u"Record");
    EXPECT_TRUE(start->isEnabled());
    EXPECT_TRUE(waitUntil([] { return !barButton(u"Stop"_s); }));
}

TEST_F(PloversControllerTest, TheCountdownCanBeSkippedAndEndsWithTheModule)
{
    startDisplay();
    open();
    find<QTimeEdit>(u"beginTimeEdit"_s)->setTime(QTime::currentTime().addSecs(-120));
    EXPECT_GT(m_controller->view()->findChild<CapturePanel *>()->beginTime(), QDateTime::currentDateTime())
        << "tomorrow";
    choose(u"soundComboBox"_s, int(RecordPlan::Sound::None));
    auto *start = find<QPushButton>(u"startButton"_s);
    start->click();
    EXPECT_FALSE(recording());
    m_controller->onViewDidDisappear();
    m_controller->startRecorderSession();
    start->click();
    start->click();
    ASSERT_TRUE(recording());
    EXPECT_TRUE(isActive(recording()->state));
}

TEST_F(PloversControllerTest, WithoutDisplayAndPortalItSaysWhy)
{
    qputenv("WAYLAND_DISPLAY", "wayland-0");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    open();
    EXPECT_EQ(find<QComboBox>(u"sourceComboBox"_s)->currentText(), u"Screen or window (the desktop asks)");
    EXPECT_TRUE(waitUntil([&] { return find<QLabel>(u"previewLabel"_s)->text().contains(u"portal"); }));
    find<QPushButton>(u"startButton"_s)->click();
    EXPECT_FALSE(recording());
    qunsetenv("WAYLAND_DISPLAY");
}

}  // namespace

}  // namespace kestrel
