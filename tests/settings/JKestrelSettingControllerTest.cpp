#include "JKestrelSettingController.h"

#include "Alerts.h"
#include "FolderRow.h"
#include "Folders.h"
#include "Frames.h"
#include "JKestrelSetting.h"
#include "JKestrelSettingDispatcher.h"
#include "JSettingSearchObject.h"
#include "NotificationCenter.h"
#include "ProductFolder.h"
#include "TestEnvironment.h"
#include "Theme.h"
#include "UserDefaults.h"
#include "WebPages.h"
#include "_SettingScrollView.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

struct ScriptedDesktop final : tarnwell::FolderPanel, tarnwell::AlertPresenter, tarnwell::WebOpener {
    QString chooseFolder(QWidget *, const QString &startFolder) override
    {
        startFolders.append(startFolder);
        return answer;
    }
    tarnwell::AlertAnswer runModal(const tarnwell::Alert &alert) override
    {
        alerts.append(alert.message);
        return tarnwell::AlertAnswer::Default;
    }
    bool openUrl(const QUrl &url) override
    {
        opened.append(url.toLocalFile());
        return true;
    }
    QString answer;
    QStringList startFolders, alerts, opened;
};

/// The row that shows what a search entry names.
const QHash<QString, QString> rowNames = {
    {u"open output folder"_s, u"openFolderButton"_s},
    {u"shutdown computer"_s, u"shutdownButton"_s},
    {u"notify"_s, u"notifyButton"_s},
    {u"video folder"_s, u"videoVideoFolderRow"_s},
    {u"video music folder"_s, u"videoMusicFolderRow"_s},
    {u"video snapshot folder"_s, u"videoSnapshotFolderRow"_s},
    {u"dvd folder"_s, u"dvdVideoFolderRow"_s},
    {u"dvd music folder"_s, u"dvdMusicFolderRow"_s},
    {u"dvd snapshot folder"_s, u"dvdSnapshotFolderRow"_s},
    {u"dvd language"_s, u"dvdLangRow"_s},
    {u"download folder"_s, u"downloaderVideoFolderRow"_s},
    {u"download music folder"_s, u"downloaderMusicFolderRow"_s},
    {u"download snapshot folder"_s, u"downloaderSnapshotFolderRow"_s},
    {u"download resolution"_s, u"downloadFBLRow"_s},
};

class JKestrelSettingControllerTest : public testing::Test {
protected:
    JKestrelSettingControllerTest()
    {
        foundation::NotificationCenter::defaultCenter().addObserver(
            &m_parent, keyKestrelSettingDidChangedNotification.toString(), [this](QObject *) { ++m_posted; });
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
    void pick(const QString &list, int index)
    {
        auto *box = find<QComboBox>(list);
        box->setCurrentIndex(index);
        emit box->activated(index);
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
    ScriptedDesktop m_desktop;
    tarnwell::Installed<tarnwell::FolderPanel> m_installedPanel{m_desktop};
    tarnwell::Installed<tarnwell::AlertPresenter> m_installedAlerts{m_desktop};
    tarnwell::Installed<tarnwell::WebOpener> m_installedOpener{m_desktop};
    foundation::UserDefaults m_defaults{m_folder.filePath(u"defaults.plist"_s)};
    JKestrelSetting m_setting{m_defaults, true};
    int m_posted = 0;
    QWidget m_parent;
    JKestrelSettingController m_controller{m_setting, m_defaults};
};

}  // namespace

TEST_F(JKestrelSettingControllerTest, every_search_position_is_the_upper_edge_of_its_row)
{
    m_controller.window();
    ASSERT_EQ(m_controller.searchKeys().size(), rowNames.size());
    for (const auto &item : m_controller.searchKeys())
        EXPECT_EQ(topOf(rowNames[item->contents()]), static_cast<const JSettingSearchObject &>(*item).position())
            << qPrintable(item->contents());
}

TEST_F(JKestrelSettingControllerTest, a_search_shows_the_row_and_then_its_section)
{
    present();
    auto *field = find<QLineEdit>(u"searchField"_s);
    const QStringList members = {u"common"_s, u"video"_s, u"dvd"_s, u"downloader"_s};
    for (const auto &item : m_controller.searchKeys()) {
        SCOPED_TRACE(qPrintable(item->contents()));
        const auto &entry = static_cast<const JSettingSearchObject &>(*item);
        const QString member = members[entry.userdata() - 1];
        field->setFocus();
        field->clear();
        QTest::keyClicks(field, entry.contents().toUpper());
        QTest::keyClick(field, Qt::Key_Down);
        QTest::keyClick(field, Qt::Key_Return);
        EXPECT_EQ(visibleTop(), std::max(460.0, entry.position() + 20));
        const double sectionTop = std::max(460.0, topOf(member + u"Label"_s) + 10);
        EXPECT_TRUE(test::waitUntil([&] { return visibleTop() == sectionTop; })) << visibleTop();
        EXPECT_TRUE(markIsAt(member + u"Button"_s));
    }
    QTest::keyClicks(field, u"nothing of the kind"_s);
    QTest::keyClick(field, Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_TRUE(markIsAt(u"downloaderButton"_s));
    EXPECT_TRUE(m_controller.isPresented());
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

    auto *list = find<QComboBox>(u"downloaderFormatList"_s);
    turnWheel(list, -1);
    EXPECT_EQ(list->currentIndex(), 0);
    EXPECT_GT(scroll->documentVisibleRect().origin.y, 0) << "the list left the wheel to the page";
    find<QAbstractButton>(u"downloaderButton"_s)->click();
    EXPECT_TRUE(markIsAt(u"downloaderButton"_s));
    EXPECT_EQ(scroll->documentVisibleRect().origin.y, 0);
    while (scroll->verticalScrollBar()->value() > 0)
        turnWheel(scroll->verticalScrollBar(), -1);
    EXPECT_TRUE(markIsAt(u"commonButton"_s)) << "over the scroll bar";
}

TEST_F(JKestrelSettingControllerTest, values_outside_the_lists_are_kept_until_the_user_picks)
{
    JDownloaderSetting &downloader = *m_setting.downloader();
    const QString longProxy = u"http://"_s + u"x"_s.repeated(100'000);
    const QString oddPath = u"/tmp/a\nb\rc"_s;
    downloader.setPreferedFormat(u"avi"_s);
    downloader.setPreferedResolution(u"9999P"_s);
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
    } lists[] = {
        {u"downloaderFormatList"_s, {}, 1, [&] { return downloader.preferedFormat(); }, u"avi"_s, u"webm"_s},
        {u"downloadFBLList"_s, {}, 5, [&] { return downloader.preferedResolution(); }, u"9999P"_s, u"Highest Resolution"_s},
        {u"downloaderConcurrentList"_s, u"5"_s, 5, [&] { return QString::number(downloader.preferedConcurrent()); }, u"4"_s, u"0"_s},
        {u"dvdLangList"_s, u"Default"_s, 9, [&] { return m_setting.dvd()->prefferLanguage(); }, u"tlh"_s, u"zh-Hant"_s},
    };
    for (const auto &row : lists)
        EXPECT_EQ(find<QComboBox>(row.list)->currentText(), row.shown) << qPrintable(row.list);
    m_controller.onCloseAction();
    EXPECT_EQ(downloader.proxyURL(), longProxy);
    EXPECT_EQ(downloader.proxyPort(), u"12\n34"_s);
    EXPECT_EQ(m_setting.video()->videoOutputPath(), oddPath);
    EXPECT_FALSE(find(u"videoVideoFolderRow"_s)->findChild<QLabel *>(u"pathLabel"_s)->text().contains(u'\n'));
    for (const auto &row : lists) {
        EXPECT_EQ(row.stored(), row.before) << qPrintable(row.list);
        pick(row.list, row.newIndex);
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
    EXPECT_EQ(m_posted, 0);
    m_setting.setNotifyWhenAvailable(true);
    m_setting.dvd()->setVideoOutputPath(u"/out/dvd"_s);
    m_controller.refreshAttributes(u"appSetting.video"_s);
    m_controller.refreshAttributes(u"appSetting.dv"_s);
    EXPECT_TRUE(row->path() != u"/out/dvd"_s && !notify->isChecked());
    m_controller.refreshAttributes(u"appSetting.dvd"_s);
    EXPECT_EQ(row->path(), u"/out/dvd"_s);
    m_controller.onCloseAction();
    m_controller.presentForWindow(&m_parent);
    EXPECT_TRUE(notify->isChecked()) << "what changed while it was closed";
}

TEST_F(JKestrelSettingControllerTest, hardware_choices)
{
    present();
    const struct {
        QString button;
        bool isOn;
    } rows[] = {{u"hardwareButton3"_s, false}, {u"hardwareButton1"_s, true}, {u"hardwareButton3"_s, false}, {u"hardwareButton2"_s, true}};
    for (int i = 0; const auto &[button, isOn] : rows) {
        find<QAbstractButton>(button)->click();
        EXPECT_EQ(m_setting.intelQSV(), isOn) << qPrintable(button);
        EXPECT_EQ(m_posted, ++i);
    }
    m_setting.setIntelQSV(false);
    m_controller.refreshAttributes(u"appSetting"_s);
    EXPECT_TRUE(find<QAbstractButton>(u"hardwareButton3"_s)->isChecked()) << "a module turned it off";
    EXPECT_FALSE(m_setting.intelQSV());

    JKestrelSetting without(m_defaults, false);
    JKestrelSettingController controller(without, m_defaults);
    controller.presentForWindow(&m_parent);
    auto *intel = controller.window()->findChild<QRadioButton *>(u"hardwareButton2"_s);
    EXPECT_FALSE(intel->isEnabled());
    EXPECT_FALSE(intel->toolTip().isEmpty());
    EXPECT_TRUE(controller.window()->findChild<QRadioButton *>(u"hardwareButton1"_s)->isChecked());
}

TEST_F(JKestrelSettingControllerTest, choosing_folders)
{
    m_controller.window();
    const QStringList members = {u"video"_s, u"dvd"_s, u"downloader"_s}, kinds = {u"Video"_s, u"Music"_s, u"Snapshot"_s};
    for (int module = 1; module <= 3; ++module) {
        for (int folder = 1; folder <= 3; ++folder) {
            auto *row = find<FolderRow>(members[module - 1] + kinds[folder - 1] + u"FolderRow"_s);
            const QByteArray property = kinds[folder - 1].toLower().toLatin1() + "OutputPath";
            SCOPED_TRACE(qPrintable(row->objectName()));
            JSettingBase *setting = m_controller.getSettingObjectWithID(module);
            const QString before = setting->property(property).toString();
            const int posted = m_posted;
            m_desktop.answer = QString();
            row->chooseButton()->click();
            EXPECT_EQ(m_desktop.startFolders.constLast(), before);
            m_desktop.answer = m_folder.filePath(u"missing"_s);
            row->chooseButton()->click();
            EXPECT_EQ(setting->property(property).toString(), before);
            EXPECT_EQ(m_posted, posted) << "cancelled or not writable";

            m_desktop.answer = m_folder.filePath(row->objectName());
            QDir().mkpath(m_desktop.answer);
            row->chooseButton()->click();
            EXPECT_EQ(setting->property(property).toString(), m_desktop.answer);
            EXPECT_EQ(row->path(), m_desktop.answer);
            EXPECT_EQ(m_posted, posted + 1);
            row->openButton()->click();
            EXPECT_EQ(m_desktop.opened.takeLast(), m_desktop.answer);
        }
    }
    QWidget stranger;
    stranger.setProperty("tag", 4);
    const int posted = m_posted;
    m_controller.onDVDSelectFolderAction(&stranger);
    EXPECT_EQ(m_posted, posted + 1) << "a folder that stands for nothing is announced all the same";
    m_controller.onOpenMusicFolderAction(&stranger);
    EXPECT_TRUE(m_desktop.opened.isEmpty());
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
        const char *name;
        bool isOn;
        QString url, port;
        bool isEnabled;
    } rows[] = {{"valid", true, u"socks5://10.0.0.1"_s, u"abc"_s, true},
                {"invalid", true, u"10.0.0.1"_s, u"80"_s, false},
                {"off", false, u"http://proxy"_s, u"8080"_s, false},
                {"emptied", true, u""_s, u""_s, false}};
    for (const auto &[name, isOn, urlText, portText, isEnabled] : rows) {
        SCOPED_TRACE(name);
        if (enable->isChecked() != isOn)
            enable->click();
        EXPECT_TRUE(url->isEnabled() == isOn && port->isEnabled() == isOn);
        url->setText(urlText);
        port->setText(portText);
        QTest::keyClick(m_controller.window(), Qt::Key_Escape);
        EXPECT_FALSE(m_controller.isPresented());
        EXPECT_EQ(downloader.proxyURL(), urlText);
        EXPECT_EQ(downloader.proxyPort(), portText);
        EXPECT_EQ(downloader.proxyEnabled(), isEnabled);
        m_controller.presentForWindow(&m_parent);
        EXPECT_TRUE(enable->isChecked() == isEnabled && url->text() == urlText);
    }
    EXPECT_EQ(m_posted, 0);
}

TEST_F(JKestrelSettingControllerTest, longer_texts_fit)
{
    tarnwell::applyTheme(*static_cast<QApplication *>(QCoreApplication::instance()));
    present();
    const auto longer = [](const QString &text) { return text + u"n"_s.repeated((text.size() + 2) / 3); };
    QWidget *page = find(u"settingView"_s);
    for (QLabel *label : page->findChildren<QLabel *>())
        label->setText(longer(label->text()));
    for (QAbstractButton *button : m_controller.window()->findChildren<QAbstractButton *>())
        button->setText(longer(button->text()));
    for (QComboBox *list : page->findChildren<QComboBox *>())
        list->setItemText(list->count() - 1, longer(list->itemText(list->count() - 1)));
    QCoreApplication::processEvents();
    const QStringList fixedWidths = {u"hardwareButton1"_s, u"hardwareButton2"_s};  // fits its text once; holds a maker's name
    const QList<QWidget *> rows = page->findChildren<QWidget *>(Qt::FindDirectChildrenOnly);
    for (const QWidget *widget : m_controller.window()->findChildren<QWidget *>()) {
        const bool isPlain = qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QComboBox *>(widget) ||
                             (qobject_cast<const QLabel *>(widget) && widget->objectName() != "pathLabel"_L1);
        if (!isPlain || !widget->isVisible() || fixedWidths.contains(widget->objectName()))
            continue;
        EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << qPrintable(widget->objectName());
        EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry())) << qPrintable(widget->objectName());
    }
    for (const QWidget *row : rows) {
        EXPECT_TRUE(page->rect().contains(row->geometry())) << qPrintable(row->objectName());
        for (const QWidget *other : rows)
            EXPECT_TRUE(row == other || !row->geometry().intersects(other->geometry()))
                << qPrintable(row->objectName()) << qPrintable(other->objectName());
    }
}

}  // namespace kestrel
