#include "app/ui/KestrelController.h"

#include "app/RecorderAccess.h"
#include "app/ui/TextField.h"
#include "app/ui/_JKestrelWindow.h"
#include "tarnwell/Log.h"
#include "tarnwell/ProductInformation.h"
#include "tests/support/ProductFolder.h"
#include "tests/support/TestDesktop.h"
#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QLabel>
#include <QTest>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

struct RecordingHost final : AppMainMenuControllerDelegate {
    void onShowModule(ModuleSettingKind kind) override { messages.append(QString::number(kind)); }
    void onShowMarlin() override { messages.append(u"marlin"_s); }
    void onShowHeron() override { messages.append(u"heron"_s); }
    void onShowPetrel() override { messages.append(u"petrel"_s); }
    void onShowRecorder() override { messages.append(u"recorder"_s); }
    void onShowSetting() override { messages.append(u"setting"_s); }
    void onShowAbout() override { messages.append(u"about"_s); }
    QStringList messages;
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
    void installPermissionLibrary(const char *path)
    {
        QFile::copy(QString::fromLocal8Bit(path), m_product.contentsPath(u"Frameworks/libCapturePermission.dylib"_s));
    }

    test::ProductFolder m_product{test::productInformation()};
    RecordingHost m_host;
    test::TestDesktop m_desktop;
    KestrelController m_controller;
};

}  // namespace

TEST_F(KestrelControllerTest, hovering_shows_the_modules_texts_and_grows_its_disc)
{
    const QList<tarnwell::ImageLayer *> layers = m_controller.window()->findChildren<tarnwell::ImageLayer *>();
    ASSERT_EQ(layers.size(), 4);
    auto *button = find<JFeedbackButton>("convertButton");
    auto *headline = find<TextField>("introduceMain");
    const auto captionColor = [this] {
        return find<QLabel>("convertLabel")->palette().color(QPalette::WindowText).name();
    };
    button->setGeometry(91, button->parentWidget()->height() - 262 - 100, 100, 100);
    button->onMouseEnterExit(true);
    EXPECT_EQ(headline->text(), u"Convert & Process Video"_s);
    EXPECT_FALSE(headline->draw4K());
    EXPECT_EQ(captionColor(), u"#0074cc"_s);
    EXPECT_EQ(layers.at(0)->frame(), foundation::Rect(76, 247, 130, 130));
    button->onMouseEnterExit(false);
    EXPECT_EQ(headline->text(), u"Kestrel Converter 4K"_s);
    EXPECT_TRUE(headline->draw4K());
    EXPECT_EQ(captionColor(), u"#343641"_s);
    EXPECT_EQ(layers.at(0)->frame(), foundation::Rect(93, 264, 96, 96));
    JFeedbackButton stranger;
    m_controller.onButtonMouseEntered(&stranger);
    EXPECT_TRUE(headline->draw4K());
}

TEST_F(KestrelControllerTest, the_keyboard_shows_and_presses_as_the_pointer_does)
{
    m_controller.setSettingAndAboutEnabled(true, true);
    m_controller.showWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(m_controller.window()));
    const QList<tarnwell::ImageLayer *> layers = m_controller.window()->findChildren<tarnwell::ImageLayer *>();
    auto *headline = find<TextField>("introduceMain");
    EXPECT_TRUE(headline->draw4K());
    const QString resting = u"The strongest video processing software"_s;
    const struct {
        const char *button, *name, *headline;
        QString description;
    } rows[] = {{"convertButton", "Video Converter", "Convert & Process Video", u"Change video & audio formats"_s},
                {"ripButton", "DVD Ripper", "Convert & Backup DVD", u"Backup DVDs in 6 modes"_s},
                {"downloadButton", "Downloader", "Download Video", u"Download ultra-high quality"_s},
                {"recordButton", "Recorder", "Record Video", u"Record screen/webcam/iPhone"_s},
                {"aboutButton", "About", "Kestrel Converter 4K", resting},
                {"settingButton", "Settings", "Kestrel Converter 4K", resting}};
    for (size_t i = 0; i < std::size(rows); ++i) {
        SCOPED_TRACE(rows[i].button);
        auto *button = find<QAbstractButton>(rows[i].button);
        button->setFocus(Qt::TabFocusReason);
        EXPECT_EQ(headline->text(), QLatin1StringView(rows[i].headline));
        EXPECT_TRUE(find<QLabel>("introduceSub")->text().startsWith(rows[i].description));
        EXPECT_EQ(button->accessibleName(), QLatin1StringView(rows[i].name));
        auto *caption = find<QLabel>(QByteArray(rows[i].button).replace("Button", "Label").constData());
        EXPECT_TRUE(!caption || caption->text() == button->accessibleName());
        for (size_t disc = 0; disc < 4; ++disc)
            EXPECT_EQ(layers.at(disc)->frame().size.width > 100, disc == i);
        QTest::keyClick(button, Qt::Key_Return);
    }
    EXPECT_EQ(m_host.messages,
              (QStringList{u"marlin"_s, u"heron"_s, u"petrel"_s, u"recorder"_s, u"about"_s, u"setting"_s}));
    // What the pointer shows meanwhile goes again with the pointer.
    find<QAbstractButton>("ripButton")->setFocus(Qt::TabFocusReason);
    find<JFeedbackButton>("convertButton")->onMouseEnterExit(true);
    EXPECT_EQ(headline->text(), u"Convert & Process Video"_s);
    find<JFeedbackButton>("convertButton")->onMouseEnterExit(false);
    EXPECT_EQ(headline->text(), u"Convert & Backup DVD"_s);
    EXPECT_EQ(m_controller.window()->accessibleName(), tarnwell::GetApplicationName());
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
                {{{10, 16, 0}}, RecorderGate::AskForPermission, 30},
                {{{13, 0, 0}}, RecorderGate::AskForPermission, 30}};
    for (const auto &[version, expected, titleBarHeight] : rows) {
        SCOPED_TRACE(version ? version->number() : -1);
        EXPECT_EQ(recorderGate(version), expected);
        EXPECT_EQ(_JKestrelWindow::titleBarHeightFor(version), titleBarHeight);
    }
}

TEST_F(KestrelControllerTest, the_recorder_by_system_version)
{
    const auto press = [this](const tarnwell::SystemVersion &version) {
        const tarnwell::ReportedSystemVersion reported{version};
        const tarnwell::Installed<const tarnwell::ReportedSystemVersion> installed(reported);
        m_controller.onRecordButtonAction();
    };
    press({10, 6, 8});
    EXPECT_TRUE(m_host.messages.isEmpty());
    ASSERT_EQ(m_desktop.alerts.size(), 1);
    EXPECT_EQ(m_desktop.alerts[0].message, u"Screen Record Unavailable!"_s);
    EXPECT_EQ(m_desktop.alerts[0].style, tarnwell::AlertStyle::Critical);
    press({10, 14, 0});  // without a permission library
    EXPECT_EQ(m_host.messages.size(), 1);
    installPermissionLibrary(KESTREL_FAKE_PERMISSION);
    qputenv("KESTREL_FAKE_STATUS", "-1");
    press({10, 13, 6});  // before there were permissions
    EXPECT_EQ(m_host.messages, (QStringList{u"recorder"_s, u"recorder"_s}));
}

TEST_F(KestrelControllerTest, the_permission_library_decides)
{
    installPermissionLibrary(KESTREL_FAKE_PERMISSION);
    const struct {
        const char *name, *status, *error;
        tarnwell::AlertAnswer answer;
        qsizetype alerts, openings;
    } rows[] = {{"decided", "3", "", tarnwell::AlertAnswer::Default, 0, 1},
                {"denied is decided", "2", "", tarnwell::AlertAnswer::Default, 0, 1},
                {"failed, continue", "-1", "broken", tarnwell::AlertAnswer::Default, 1, 1},
                {"failed, cancel", "-1", "broken", tarnwell::AlertAnswer::Alternate, 1, 0},
                {"failed without a reason", "-1", "", tarnwell::AlertAnswer::Default, 0, 0}};
    for (const auto &[name, status, error, answer, alerts, openings] : rows) {
        SCOPED_TRACE(name);
        qputenv("KESTREL_FAKE_STATUS", status);
        qputenv("KESTREL_FAKE_ERROR", error);
        m_desktop.answer = answer;
        m_desktop.alerts.clear();
        m_host.messages.clear();
        m_controller.onRecordButtonAction();
        EXPECT_EQ(m_desktop.alerts.size(), alerts);
        EXPECT_EQ(m_host.messages.size(), openings);
    }
}

TEST_F(KestrelControllerTest, the_recorder_opens_after_the_user_was_asked)
{
    qputenv("KESTREL_FAKE_STATUS", "0");
    installPermissionLibrary(KESTREL_FAKE_PERMISSION);
    m_controller.onRecordButtonAction();
    EXPECT_TRUE(m_host.messages.isEmpty());
    EXPECT_TRUE(test::waitUntil([this] { return m_host.messages == QStringList(u"recorder"_s); }));
}

TEST_F(KestrelControllerTest, a_library_that_cannot_ask_opens_nothing)
{
    qputenv("KESTREL_FAKE_STATUS", "0");
    installPermissionLibrary(KESTREL_FAKE_PERMISSION_WITHOUT_DEVICE);
    m_controller.onRecordButtonAction();
    EXPECT_FALSE(test::waitUntil([this] { return !m_host.messages.isEmpty(); }, 300));
}

}  // namespace kestrel
