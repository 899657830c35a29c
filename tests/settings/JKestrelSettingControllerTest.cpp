#include "settings/ui/JKestrelSettingController.h"

#include "foundation/NotificationCenter.h"
#include "foundation/UserDefaults.h"
#include "settings/JKestrelSetting.h"
#include "settings/JKestrelSettingDispatcher.h"
#include "settings/ui/FolderRow.h"
#include "settings/ui/JSettingSearchObject.h"
#include "settings/ui/_SettingScrollView.h"
#include "tarnwell/ui/Frames.h"
#include "tests/support/ProductFolder.h"
#include "tests/support/TestDesktop.h"
#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QRadioButton>
#include <QTest>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

/// The row that shows what a search entry names.
QString rowNamed(const QString &entry)
{
    const QHash<QString, QString> others = {{u"open output folder"_s, u"openFolderButton"_s},
                                            {u"shutdown computer"_s, u"shutdownButton"_s},
                                            {u"notify"_s, u"notifyButton"_s},
                                            {u"dvd language"_s, u"dvdLangRow"_s},
                                            {u"download resolution"_s, u"downloadFBLRow"_s}};
    if (others.contains(entry))
        return others[entry];
    QStringList words = entry.split(u' ');  // as "download music folder"
    const QString module = words[0] == u"download"_s ? u"downloader"_s : words[0];
    const QString kind = words.size() == 2 ? u"video"_s : words[1];
    return module + kind[0].toUpper() + kind.mid(1) + u"FolderRow"_s;
}

class JKestrelSettingControllerTest : public testing::Test {
protected:
    JKestrelSettingControllerTest()
    {
        foundation::NotificationCenter::defaultCenter().addObserver(
            &m_parent, keyKestrelSettingDidChangedNotification.toString(), [this](const QObject *) {
                ++m_posted;
                m_atPost = m_stored();
            });
    }
    void present()
    {
        m_parent.show();
        m_controller.presentForWindow(&m_parent);
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_controller.window()));
    }
    template <class Widget = QWidget>
    Widget *find(const QString &name)
    {
        auto *widget = m_controller.window()->findChild<Widget *>(name);
        EXPECT_TRUE(widget) << qPrintable(name);
        return widget;
    }
    double visibleTop()
    {
        const foundation::Rect visible = find<_SettingScrollView>(u"settingScroll"_s)->documentVisibleRect();
        return visible.origin.y + visible.size.height;
    }
    double topOf(const QString &name)
    {
        const foundation::Rect frame = tarnwell::viewFrame(find(name));
        return frame.origin.y + frame.size.height;
    }
    bool markIsAt(const QString &button)
    {
        return test::waitUntil([this, button] {
            return find(u"selectionMark"_s)->geometry().center().y() == find(button)->geometry().center().y();
        });
    }
    void turnWheel(QWidget *target, int steps)
    {
        const QPointF place = target->rect().center();
        QWheelEvent event(place, target->mapToGlobal(place), {}, {0, -120 * steps}, {}, {}, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(target, &event);
    }

    QTemporaryDir m_folder;
    test::ProductFolder m_product{test::productInformation()};
    test::TestDesktop m_desktop;
    foundation::UserDefaults m_defaults{m_folder.filePath(u"defaults.plist"_s)};
    JKestrelSetting m_setting{m_defaults, true};
    int m_posted = 0;
    std::function<QVariant()> m_stored = [] { return QVariant(); };
    QVariant m_atPost;  ///< what `m_stored` said when it was posted last
    QWidget m_parent;
    JKestrelSettingController m_controller{m_setting, m_defaults};
};

}  // namespace

TEST_F(JKestrelSettingControllerTest, a_search_shows_the_row_and_then_its_section)
{
    present();
    auto *field = find<QLineEdit>(u"searchField"_s);
    const QStringList members = {u"common"_s, u"video"_s, u"dvd"_s, u"downloader"_s};
    EXPECT_EQ(m_controller.searchKeys().size(), 14);
    for (const auto &item : m_controller.searchKeys()) {
        SCOPED_TRACE(qPrintable(item->contents()));
        const auto &entry = static_cast<const JSettingSearchObject &>(*item);
        const QString member = members[entry.userdata() - 1];
        EXPECT_EQ(topOf(rowNamed(entry.contents())), entry.position());
        field->clear();
        QTest::keyClicks(field, entry.contents().toUpper());
        QTest::keyClick(field, Qt::Key_Down);
        QTest::keyClick(field, Qt::Key_Return);
        EXPECT_EQ(visibleTop(), std::max(460.0, entry.position() + 20));
        const double sectionTop = std::max(460.0, topOf(member + u"Label"_s) + 10);
        EXPECT_TRUE(test::waitUntil([&] { return visibleTop() == sectionTop; })) << visibleTop();
        EXPECT_TRUE(markIsAt(member + u"Button"_s));
    }
}

TEST_F(JKestrelSettingControllerTest, the_mark_follows_the_wheel_but_never_to_the_download_section)
{
    present();
    EXPECT_EQ(visibleTop(), topOf(u"commonLabel"_s) + 10);
    EXPECT_TRUE(markIsAt(u"commonButton"_s));
    auto *scroll = find<_SettingScrollView>(u"settingScroll"_s);
    scroll->scrollToPoint(topOf(u"videoLabel"_s) + 30 - 460);
    EXPECT_TRUE(markIsAt(u"commonButton"_s)) << "no wheel was turned";
    turnWheel(scroll->viewport(), 0);
    EXPECT_TRUE(markIsAt(u"videoButton"_s));
    while (scroll->documentVisibleRect().origin.y > 0)
        turnWheel(scroll->viewport(), 1);
    EXPECT_TRUE(markIsAt(u"dvdButton"_s));

    turnWheel(find<QComboBox>(u"downloaderFormatList"_s), -1);
    EXPECT_GT(scroll->documentVisibleRect().origin.y, 0) << "the list left the wheel to the page";
    find<QAbstractButton>(u"downloaderButton"_s)->click();
    EXPECT_TRUE(markIsAt(u"downloaderButton"_s));
}

TEST_F(JKestrelSettingControllerTest, values_outside_the_lists_are_kept_until_the_user_picks)
{
    JDownloaderSetting &downloader = *m_setting.downloader();
    const QString longProxy = u"http://"_s + u"x"_s.repeated(100'000);
    const QString oddPath = u"/tmp/a\nb\rc"_s;
    downloader.setPreferedFormat(u"avi"_s);
    downloader.setPreferedConcurrent(4);
    downloader.setProxyURL(longProxy);
    downloader.setProxyPort(u"12\n34"_s);
    m_setting.dvd()->setPrefferLanguage(u"tlh"_s);
    m_setting.video()->setVideoOutputPath(oddPath);
    present();
    const struct {
        QString list, shown;
        int newIndex;
        std::function<QString()> stored;
        QString before, after;
    } lists[] = {{u"downloaderFormatList"_s, {}, 1, [&] { return downloader.preferedFormat(); }, u"avi"_s, u"webm"_s},
                 {u"downloaderConcurrentList"_s, u"5"_s, 5,
                  [&] { return QString::number(downloader.preferedConcurrent()); }, u"4"_s, u"0"_s},
                 {u"dvdLangList"_s, u"Default"_s, 9, [&] { return m_setting.dvd()->prefferLanguage(); }, u"tlh"_s,
                  u"zh-Hant"_s}};
    for (const auto &row : lists)
        EXPECT_EQ(find<QComboBox>(row.list)->currentText(), row.shown) << qPrintable(row.list);
    m_controller.onCloseAction();
    EXPECT_EQ(downloader.proxyURL(), longProxy);
    EXPECT_EQ(downloader.proxyPort(), u"12\n34"_s);
    EXPECT_EQ(m_setting.video()->videoOutputPath(), oddPath);
    for (const auto &row : lists) {
        EXPECT_EQ(row.stored(), row.before) << qPrintable(row.list);
        auto *box = find<QComboBox>(row.list);
        box->setCurrentIndex(row.newIndex);
        emit box->activated(row.newIndex);
        EXPECT_EQ(row.stored(), row.after) << qPrintable(row.list);
    }
    EXPECT_EQ(m_posted, 0);
}

TEST_F(JKestrelSettingControllerTest, bound_controls_store_edits_and_reload)
{
    present();
    auto *notify = find<QAbstractButton>(u"notifyButton"_s);
    auto *row = find<FolderRow>(u"dvdVideoFolderRow"_s);
    notify->click();
    EXPECT_FALSE(m_setting.notifyWhenAvailable());
    m_setting.dvd()->setVideoOutputPath(u"/out/dvd"_s);
    m_controller.refreshAttributes(u"appSetting.video"_s);
    m_controller.refreshAttributes(u"appSetting.dv"_s);
    EXPECT_NE(row->path(), u"/out/dvd"_s);
    m_controller.refreshAttributes(u"appSetting.dvd"_s);
    EXPECT_EQ(row->path(), u"/out/dvd"_s);
    m_setting.setNotifyWhenAvailable(true);
    m_controller.onCloseAction();
    m_controller.presentForWindow(&m_parent);
    EXPECT_TRUE(notify->isChecked()) << "what changed while it was closed";
}

TEST_F(JKestrelSettingControllerTest, hardware_choices)
{
    present();
    m_stored = [this] { return QVariant(m_setting.intelQSV()); };
    for (const int button : {3, 1, 3, 2}) {
        find<QAbstractButton>(u"hardwareButton%1"_s.arg(button))->click();
        EXPECT_EQ(m_setting.intelQSV(), button != 3);
        EXPECT_EQ(m_atPost, m_setting.intelQSV()) << "announced before it held";
    }
    EXPECT_EQ(m_posted, 4);
    m_setting.setIntelQSV(false);
    m_controller.refreshAttributes(u"appSetting"_s);
    EXPECT_TRUE(find<QAbstractButton>(u"hardwareButton3"_s)->isChecked()) << "a module turned it off";

    JKestrelSetting without(m_defaults, false);
    JKestrelSettingController controller(without, m_defaults);
    controller.presentForWindow(&m_parent);
    auto *intel = controller.window()->findChild<QRadioButton *>(u"hardwareButton2"_s);
    EXPECT_FALSE(intel->isEnabled() || intel->toolTip().isEmpty());
    EXPECT_TRUE(controller.window()->findChild<QRadioButton *>(u"hardwareButton1"_s)->isChecked());
}

TEST_F(JKestrelSettingControllerTest, choosing_folders)
{
    const QStringList members = {u"video"_s, u"dvd"_s, u"downloader"_s};
    m_controller.window();
    for (int index = 0; index < 9; ++index) {
        const QString kind = QStringList{u"Video"_s, u"Music"_s, u"Snapshot"_s}[index % 3];
        auto *row = find<FolderRow>(members[index / 3] + kind + u"FolderRow"_s);
        SCOPED_TRACE(qPrintable(row->objectName()));
        const JSettingBase *setting = m_controller.getSettingObjectWithID(index / 3 + 1);
        const auto stored = [&] { return setting->property((kind.toLower() + u"OutputPath"_s).toLatin1()).toString(); };
        const QString before = stored();
        m_stored = stored;
        for (const QString &answer : {QString(), m_folder.filePath(u"missing"_s)}) {  // cancelled, not writable
            m_desktop.folder = answer;
            row->chooseButton()->click();
            EXPECT_EQ(m_desktop.startFolders.constLast(), before);
            EXPECT_EQ(stored(), before);
        }
        EXPECT_EQ(m_posted, index);
        m_desktop.folder = m_folder.filePath(row->objectName());
        QDir().mkpath(m_desktop.folder);
        row->chooseButton()->click();
        EXPECT_EQ(stored(), m_desktop.folder);
        EXPECT_EQ(m_atPost, m_desktop.folder) << "announced before it held";
        EXPECT_EQ(row->path(), m_desktop.folder);
        EXPECT_EQ(m_posted, index + 1);
        row->openButton()->click();
        EXPECT_EQ(m_desktop.opened.constLast().toLocalFile(), m_desktop.folder);
    }
    EXPECT_EQ(m_controller.getSettingObjectWithID(4), nullptr);
    m_desktop.alerts.clear();
    QDir(m_setting.video()->musicOutputPath()).removeRecursively();
    find<FolderRow>(u"videoMusicFolderRow"_s)->openButton()->click();
    EXPECT_EQ(m_desktop.alerts.size(), 1);
}

TEST_F(JKestrelSettingControllerTest, the_proxy_is_stored_when_the_window_closes)
{
    present();
    auto *enable = find<QAbstractButton>(u"downloaderProxyEnableButton"_s);
    auto *url = find<QLineEdit>(u"downloaderProxyURLField"_s);
    auto *port = find<QLineEdit>(u"downloaderProxyPortField"_s);
    JDownloaderSetting &downloader = *m_setting.downloader();
    const struct {
        bool isOn;
        QString url, port;
        bool isEnabled;
    } rows[] = {{true, u"socks5://10.0.0.1"_s, u"abc"_s, true},
                {true, u"10.0.0.1"_s, u"80"_s, false},
                {false, u"http://proxy"_s, u"8080"_s, false},
                {true, u""_s, u""_s, false}};
    for (const auto &[isOn, urlText, portText, isEnabled] : rows) {
        SCOPED_TRACE(qPrintable(urlText));
        if (enable->isChecked() != isOn)
            enable->click();
        EXPECT_TRUE(url->isEnabled() == isOn && port->isEnabled() == isOn);
        url->setText(urlText);
        port->setText(portText);
        QTest::keyClick(m_controller.window(), Qt::Key_Escape);
        EXPECT_TRUE(downloader.proxyURL() == urlText && downloader.proxyPort() == portText);
        EXPECT_EQ(downloader.proxyEnabled(), isEnabled);
        m_controller.presentForWindow(&m_parent);
        EXPECT_TRUE(enable->isChecked() == isEnabled && url->text() == urlText);
    }
    EXPECT_EQ(m_posted, 0);
}

TEST_F(JKestrelSettingControllerTest, an_address_that_will_be_refused_is_marked_while_it_is_typed)
{
    present();
    auto *enable = find<QAbstractButton>(u"downloaderProxyEnableButton"_s);
    auto *url = find<QLineEdit>(u"downloaderProxyURLField"_s);
    auto *hint = find<QLabel>(u"downloaderProxyHint"_s);
    const struct {
        bool isOn;
        QString url;
        bool isMarked;
    } rows[] = {{false, u"proxy"_s, false},  {true, u"proxy"_s, true}, {true, u"http://proxy"_s, false},
                {true, u"10.0.0.1"_s, true}, {true, u""_s, true},      {false, u""_s, false}};
    for (const auto &[isOn, text, isMarked] : rows) {
        SCOPED_TRACE(qPrintable(text));
        if (enable->isChecked() != isOn)
            enable->click();
        url->clear();
        QTest::keyClicks(url, text);
        EXPECT_EQ(url->property("refused").toBool(), isMarked);
        EXPECT_EQ(hint->text().startsWith(u"Will not be accepted"_s), isMarked);
        EXPECT_EQ(url->accessibleDescription(), hint->text());
    }
}

TEST_F(JKestrelSettingControllerTest, return_does_what_the_control_with_the_keyboard_says_and_closes_nothing)
{
    present();
    find<QAbstractButton>(u"downloaderProxyEnableButton"_s)->click();
    for (const QString &name : {u"downloaderProxyURLField"_s, u"downloaderProxyPortField"_s, u"searchField"_s,
                                u"shutdownButton"_s, u"dvdLangList"_s, u"videoButton"_s}) {
        QTest::keyClick(find(name), Qt::Key_Return);
        EXPECT_TRUE(m_controller.isPresented()) << qPrintable(name);
    }
    EXPECT_FALSE(m_setting.shutdownWhenDone());
    EXPECT_TRUE(markIsAt(u"videoButton"_s));
    find(u"closeButton"_s)->setFocus();
    QTest::keyClick(find(u"closeButton"_s), Qt::Key_Return);
    EXPECT_FALSE(m_controller.isPresented());
}

TEST_F(JKestrelSettingControllerTest, settings_that_cannot_be_saved_say_so)
{
    present();
    EXPECT_FALSE(find(u"saveNote"_s)->isVisible());
    m_controller.onCloseAction();
    const QString obstacle = m_folder.filePath(u"defaults.plist"_s);
    ASSERT_TRUE(QDir().mkpath(obstacle));
    m_defaults.setObject(1, u"key"_s);
    present();
    EXPECT_TRUE(find(u"saveNote"_s)->isVisible());
    m_controller.onCloseAction();
    QDir().rmdir(obstacle);
    present();
    EXPECT_FALSE(find(u"saveNote"_s)->isVisible());
}

TEST_F(JKestrelSettingControllerTest, the_page_gives_way_on_a_small_screen)
{
    QDialog *window = m_controller.window();
    present();
    const int wanted = window->height();
    window->resize(window->width(), 400);
    EXPECT_EQ(window->height(), 400);
    auto *close = find(u"closeButton"_s);
    EXPECT_TRUE(window->rect().contains(QRect(close->mapTo(window, QPoint()), close->size())));
    EXPECT_LT(find(u"settingScroll"_s)->height(), 400);
    m_controller.onCloseAction();
    present();
    EXPECT_EQ(window->height(), wanted);
}

}  // namespace kestrel
