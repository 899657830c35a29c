#include "KestrelController.h"

#include "Alerts.h"
#include "Log.h"
#include "ProductFolder.h"
#include "RecorderAccess.h"
#include "TestEnvironment.h"
#include "TextField.h"
#include "_JKestrelWindow.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

struct RecordingHost final : AppMainMenuControllerDelegate {
    void onShowMarlin() override { messages.append(u"marlin"_s); }
    void onShowHeron() override { messages.append(u"heron"_s); }
    void onShowPetrel() override { messages.append(u"petrel"_s); }
    void onShowRecorder() override { messages.append(u"recorder"_s); }
    void onShowSetting() override { messages.append(u"setting"_s); }
    void onShowAbout() override { messages.append(u"about"_s); }
    QStringList messages;
};

struct AnsweringPresenter final : tarnwell::AlertPresenter {
    tarnwell::AlertAnswer runModal(const tarnwell::Alert &alert) override
    {
        shown.append(alert);
        return answer;
    }
    QList<tarnwell::Alert> shown;
    tarnwell::AlertAnswer answer = tarnwell::AlertAnswer::Default;
};

class KestrelControllerTest : public testing::Test {
protected:
    KestrelControllerTest()
    {
        m_controller.makeInit();
        m_controller.setMenuDelegate(&m_host);
    }
    template <class Widget>
    Widget *find(const char *name)
    {
        return m_controller.window()->findChild<Widget *>(QString::fromLatin1(name));
    }
    QString captionColor(const char *name)
    {
        return find<QLabel>(name)->palette().color(QPalette::WindowText).name().toUpper();
    }
    void installPermissionLibrary(const char *path)
    {
        QFile::copy(QString::fromLocal8Bit(path), m_product.contentsPath(u"Frameworks/libCapturePermission.dylib"_s));
    }

    test::ProductFolder m_product{test::productInformation()};
    RecordingHost m_host;
    AnsweringPresenter m_alerts;
    tarnwell::Installed<tarnwell::AlertPresenter> m_installedAlerts{m_alerts};
    KestrelController m_controller;
};

constexpr char restingStart[] = "The strongest video processing software";

}  // namespace

TEST_F(KestrelControllerTest, hovering_shows_each_modules_texts_and_leaving_the_resting_ones)
{
    const struct {
        const char *button, *caption, *headline, *description;
    } rows[] = {{"convertButton", "convertLabel", "Convert & Process Video", "Change video & audio"},
                {"ripButton", "ripLabel", "Convert & Backup DVD", "Backup DVDs in 6 modes"},
                {"downloadButton", "downloadLabel", "Download Video", "Download ultra-high"},
                {"recordButton", "recordLabel", "Record Video", "Record screen/webcam"}};
    auto *headline = find<TextField>("introduceMain");
    auto *description = find<QLabel>("introduceSub");
    EXPECT_TRUE(headline->draw4K());
    for (const auto &[button, caption, expectedHeadline, expectedDescription] : rows) {
        SCOPED_TRACE(button);
        auto *sender = find<JFeedbackButton>(button);
        sender->onMouseEnterExit(true);
        EXPECT_EQ(headline->text(), QString::fromLatin1(expectedHeadline));
        EXPECT_TRUE(description->text().startsWith(QString::fromLatin1(expectedDescription)));
        EXPECT_FALSE(headline->draw4K());
        EXPECT_EQ(captionColor(caption), u"#0074CC"_s);
        sender->onMouseEnterExit(false);
        EXPECT_EQ(headline->text(), u"Kestrel Converter 4K"_s);
        EXPECT_TRUE(description->text().startsWith(QString::fromLatin1(restingStart)));
        EXPECT_TRUE(headline->draw4K());
        EXPECT_EQ(captionColor(caption), u"#343641"_s);
    }
}

TEST_F(KestrelControllerTest, discs_grow_around_their_button_and_shrink_back)
{
    const QList<tarnwell::ImageLayer *> layers = m_controller.window()->findChildren<tarnwell::ImageLayer *>();
    ASSERT_EQ(layers.size(), 4);
    EXPECT_EQ(layers.at(1)->frame(), foundation::Rect(260, 262, 94, 94));
    auto *button = find<JFeedbackButton>("convertButton");
    button->setGeometry(91, button->parentWidget()->height() - 262 - 100, 100, 100);
    m_controller.onButtonMouseEntered(button);
    EXPECT_EQ(layers.at(0)->frame(), foundation::Rect(76, 247, 130, 130));
    m_controller.onButtonMouseExit(button);
    EXPECT_EQ(layers.at(0)->frame(), foundation::Rect(93, 264, 96, 96));
    JFeedbackButton stranger;
    m_controller.onButtonMouseEntered(&stranger);
    EXPECT_TRUE(find<TextField>("introduceMain")->draw4K());
}

TEST_F(KestrelControllerTest, buttons_reach_the_host)
{
    m_controller.setSettingAndAboutEnabled(true, false);
    for (const char *name : {"convertButton", "ripButton", "downloadButton", "settingButton", "aboutButton"})
        find<QAbstractButton>(name)->click();
    EXPECT_EQ(m_host.messages, (QStringList{u"marlin"_s, u"heron"_s, u"petrel"_s, u"setting"_s}));
    EXPECT_EQ(find<QLabel>("homeLabel")->text(), u"Tarnwell Software, Inc. www.tarnwell.example"_s);
    EXPECT_EQ(find<QAbstractButton>("aboutButton")->pos().x(), 574);
}

TEST(RecorderGateTest, opens_by_system_version)
{
    const struct {
        std::optional<tarnwell::SystemVersion> version;
        RecorderGate expected;
        double titleBarHeight;
    } rows[] = {{{}, RecorderGate::Unavailable, 22},
                {{{10, 6, 8}}, RecorderGate::Unavailable, 22},
                {{{10, 7, 0}}, RecorderGate::Open, 22},
                {{{10, 13, 6}}, RecorderGate::Open, 22},
                {{{10, 14, 0}}, RecorderGate::AskForPermission, 22},
                {{{10, 15, 7}}, RecorderGate::AskForPermission, 22},
                {{{10, 16, 0}}, RecorderGate::AskForPermission, 30},
                {{{13, 0, 0}}, RecorderGate::AskForPermission, 30}};
    for (const auto &[version, expected, titleBarHeight] : rows) {
        SCOPED_TRACE(version ? version->number() : -1);
        EXPECT_EQ(recorderGate(version), expected);
        EXPECT_EQ(_JKestrelWindow::titleBarHeightFor(version), titleBarHeight);
    }
}

TEST_F(KestrelControllerTest, an_old_system_gets_an_alert_and_one_before_permissions_the_recorder)
{
    const tarnwell::ReportedSystemVersion old{{{10, 6, 8}}};
    {
        const tarnwell::Installed<const tarnwell::ReportedSystemVersion> installed(old);
        m_controller.onRecordButtonAction();
    }
    EXPECT_TRUE(m_host.messages.isEmpty());
    EXPECT_EQ(m_alerts.shown,
              (QList<tarnwell::Alert>{{u"Screen Record Unavailable!"_s,
                                       u"OK"_s,
                                       {},
                                       u"The screen recorder is only supported on Mac OS Lion and later."_s,
                                       tarnwell::AlertStyle::Critical}}));
    installPermissionLibrary(KESTREL_FAKE_PERMISSION);
    qputenv("KESTREL_FAKE_STATUS", "-1");
    const tarnwell::ReportedSystemVersion beforePermissions{{{10, 13, 6}}};
    const tarnwell::Installed<const tarnwell::ReportedSystemVersion> installed(beforePermissions);
    m_controller.onRecordButtonAction();
    EXPECT_EQ(m_host.messages, QStringList(u"recorder"_s));
}

TEST_F(KestrelControllerTest, without_a_permission_library_the_recorder_opens)
{
    find<QAbstractButton>("recordButton")->click();
    EXPECT_EQ(m_host.messages, QStringList(u"recorder"_s));
    EXPECT_TRUE(m_alerts.shown.isEmpty());
}

TEST_F(KestrelControllerTest, the_permission_library_decides)
{
    installPermissionLibrary(KESTREL_FAKE_PERMISSION);
    const struct {
        const char *name;
        const char *status, *error;
        tarnwell::AlertAnswer answer;
        qsizetype alerts;
        bool opens;
    } rows[] = {{"decided", "3", "", tarnwell::AlertAnswer::Default, 0, true},
                {"denied is decided", "2", "", tarnwell::AlertAnswer::Default, 0, true},
                {"failed, continue", "-1", "broken", tarnwell::AlertAnswer::Default, 1, true},
                {"failed, cancel", "-1", "broken", tarnwell::AlertAnswer::Alternate, 1, false},
                {"failed without a reason", "-1", "", tarnwell::AlertAnswer::Default, 0, false}};
    for (const auto &[name, status, error, answer, alerts, opens] : rows) {
        SCOPED_TRACE(name);
        qputenv("KESTREL_FAKE_STATUS", status);
        qputenv("KESTREL_FAKE_ERROR", error);
        m_alerts.answer = answer;
        m_alerts.shown.clear();
        m_host.messages.clear();
        m_controller.onRecordButtonAction();
        EXPECT_EQ(m_alerts.shown.size(), alerts);
        EXPECT_EQ(m_host.messages.size(), opens ? 1 : 0);
    }
}

TEST_F(KestrelControllerTest, the_recorder_opens_after_the_user_was_asked)
{
    installPermissionLibrary(KESTREL_FAKE_PERMISSION);
    qputenv("KESTREL_FAKE_STATUS", "0");
    m_controller.onRecordButtonAction();
    EXPECT_TRUE(m_host.messages.isEmpty());
    EXPECT_TRUE(test::waitUntil([this] { return m_host.messages == QStringList(u"recorder"_s); }));
}

TEST_F(KestrelControllerTest, a_library_that_cannot_ask_opens_nothing)
{
    installPermissionLibrary(KESTREL_FAKE_PERMISSION_WITHOUT_DEVICE);
    qputenv("KESTREL_FAKE_STATUS", "0");
    m_controller.onRecordButtonAction();
    EXPECT_FALSE(test::waitUntil([this] { return !m_host.messages.isEmpty(); }, 300));
}

}  // namespace kestrel
