#include "AppDelegate.h"

#include "JKestrelSetting.h"
#include "JTitledWindow.h"
#include "NotificationCenter.h"
#include "Notifications.h"
#include "ProductFolder.h"
#include "PropertyList.h"
#include "Queues.h"
#include "RecordingModule.h"
#include "TestDesktop.h"
#include "TestEnvironment.h"
#include "UPParser.h"
#include "UserDefaults.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

const QString descriptorLink = u"http://127.0.0.1/kestrel.plist"_s;
const QString configurationLink = u"http://127.0.0.1/configuration.json"_s;
const QString pictureLink = u"http://127.0.0.1/picture.png"_s;

/// What the publisher's server holds, and what it was asked for.
struct TestServer {
    foundation::FetchResult fetch(const foundation::FetchRequest &request)
    {
        asked.append(request.address.section(u'/', -1));
        const auto document = documents.constFind(request.address);
        return document != documents.cend() ? foundation::FetchResult{*document, {}}
                                            : foundation::FetchResult{{}, u"there is none"_s};
    }

    QHash<QString, QByteArray> documents;
    QStringList asked;
};

QByteArray descriptor(const QString &version)
{
    return foundation::writePropertyList(
        QVariantMap{{u"LastestVersion"_s, version},
                    {u"ADConfigURL"_s, configurationLink},
                    {u"DownloaderUISupportURLTop"_s,
                     QVariantMap{{u"en"_s, QVariantMap{{u"Title"_s, u"Support"_s}, {u"URL"_s, u"http://a"_s}}}}}},
        foundation::PropertyListFormat::Xml);
}

const QByteArray configuration = R"({"ads": {"picture": "http://127.0.0.1/picture.png",
    "full": {"title": "Offer", "button": "Look", "label": "No", "rate": 30, "next_rate": 5}},
    "top-right-button": {"name": "plain"}, "top-right-button-v2": {"full": {"name": "full"}}})";

}  // namespace

TEST(AppDelegateUpdates, the_automatic_check_shows_one_window_at_most)
{
    const struct {
        const char *name;
        QString version;  ///< the server's; null where it cannot be reached
        QVariantMap stored;
        quint32 drawn;
        QString window;  ///< an outlet that only it has
        QString day, asked;
    } rows[] = {
        {"unreachable", {}, {}, 0, {}, {}, u"kestrel.plist"_s},
        {"newer", u"9.0"_s, {}, 0, u"whatsNewFiled"_s, {}, u"kestrel.plist configuration.json"_s},
        {"promotion",
         u"1.0.0"_s,
         {},
         129,
         u"myDetailLabel"_s,
         u"2026-01-02"_s,
         u"kestrel.plist configuration.json picture.png"_s},
        {"against the draw", u"1.0.0"_s, {}, 130, {}, {}, u"kestrel.plist configuration.json"_s},
        {"shown today",
         u"1.0.0"_s,
         {{u"_AdvertisementDateString"_s, u"2026-01-02"_s}},
         0,
         {},
         u"2026-01-02"_s,
         u"kestrel.plist configuration.json"_s},
        {"declined before, and another day",
         u"1.0.0"_s,
         {{u"_AdvertisementDateString"_s, u"2025-12-31"_s}, {u"_AdvertisementRate"_s, 5}},
         5,
         {},
         u"2025-12-31"_s,
         u"kestrel.plist configuration.json"_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        const QTemporaryDir folder;
        const test::ProductFolder product(test::productInformation({{u"TWUpdateXMLLink"_s, descriptorLink}}));
        const test::TestDesktop desktop;
        foundation::UserDefaults defaults(folder.filePath(u"defaults.plist"_s));
        for (const auto &[key, value] : row.stored.asKeyValueRange())
            defaults.setObject(value, key);
        JKestrelSetting setting(defaults);
        TestServer server;
        server.documents.insert(configurationLink, configuration);
        if (!row.version.isNull())
            server.documents.insert(descriptorLink, descriptor(row.version));
        AppDelegate delegate({.setting = setting,
                              .defaults = defaults,
                              .modules = {},
                              .windows = {},
                              .terminate = [] {},
                              .startProcess = [](const QString &, const QStringList &) { return false; },
                              .updates = {.fetch = [&](const auto &request) { return server.fetch(request); },
                                          .today = [] { return QDate(2026, 1, 2); },
                                          .draw = [&] { return row.drawn; }}});
        int posts = 0;
        foundation::NotificationCenter::defaultCenter().addObserver(
            &delegate, tarnwell::RMTConfigureDidParse.toString(), [&](const QObject *object) {
                ++posts;
                EXPECT_EQ(object, delegate.upConfigure().get());
            });
        QString window;
        QTimer closer;
        closer.callOnTimeout([&] {
            if (auto *modal = qobject_cast<tarnwell::JTitledWindow *>(QApplication::activeModalWidget())) {
                for (const QString &outlet : {u"whatsNewFiled"_s, u"myDetailLabel"_s})
                    if (modal->findChild<QWidget *>(outlet))
                        window = outlet;
                modal->performClose();
            }
        });
        closer.start(5);

        foundation::queue::asyncGlobal([&] { delegate.checkUpgradesAutomatically(); });
        EXPECT_TRUE(test::waitUntil([&] { return posts > 0 && window == row.window; }));
        foundation::queue::finishGlobal();
        QCoreApplication::processEvents();
        EXPECT_EQ(posts, 1);
        EXPECT_EQ(window, row.window);
        EXPECT_EQ(server.asked.join(u' '), row.asked);
        EXPECT_EQ(defaults.stringForKey(u"_AdvertisementDateString"_s), row.day);
        EXPECT_EQ(delegate.titleOfSupportField(), row.version.isNull() ? QString() : u"Support"_s);
        EXPECT_EQ(delegate.topRightWndBtnConfig().has_value(), !row.version.isNull());
        if (const auto button = delegate.topRightWndBtnConfig(); button.has_value()) {
            EXPECT_EQ(button->dictionary().value(u"name"_s).toString(), u"full"_s);
        }
    }
}

}  // namespace kestrel
