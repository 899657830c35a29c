#include "app/ui/LaunchCheck.h"

#include "foundation/NotificationCenter.h"
#include "foundation/PropertyList.h"
#include "foundation/Queues.h"
#include "foundation/UserDefaults.h"
#include "tarnwell/Notifications.h"
#include "tarnwell/ui/TitledWindow.h"
#include "tests/support/ProductFolder.h"
#include "tests/support/TestDesktop.h"
#include "update/UPParser.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QBuffer>
#include <QStackedWidget>
#include <QTimer>

#include <algorithm>

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
        if (onFetch)
            onFetch(request);
        const auto document = documents.constFind(request.address);
        return document != documents.cend() ? foundation::FetchResult{*document, {}}
                                            : foundation::FetchResult{{}, u"there is none"_s};
    }

    QHash<QString, QByteArray> documents;
    QStringList asked;
    std::function<void(const foundation::FetchRequest &)> onFetch;
};

QByteArray descriptor(const QString &version)
{
    return foundation::writePropertyList(
        QVariantMap{{u"LastestVersion"_s, version}, {u"de"_s, QVariantMap{{u"ADConfigURL"_s, configurationLink}}}},
        foundation::PropertyListFormat::Xml);
}

const QByteArray configuration = R"({"ads": {"picture": "http://127.0.0.1/picture.png",
    "full": {"title": "Offer", "button": "Look", "label": "No", "rate": 30, "next_rate": 5}}})";

QByteArray greenPicture()
{
    QImage image(300, 200, QImage::Format_RGB32);
    image.fill(Qt::green);
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

/// A check with such a server, and what it shows: each window is closed once it has something to say.
class LaunchCheckTest : public testing::Test {
protected:
    void make(const QString &link, const QVariantMap &stored = {}, quint32 drawn = 0)
    {
        m_product.emplace(test::productInformation({{u"TWUpdateXMLLink"_s, link}}));
        m_defaults.emplace(m_product->contentsPath(u"defaults.plist"_s));
        m_defaults->setObject(QVariantList{u"de"_s, u"en"_s}, u"AppleLanguages"_s);
        for (const auto &[key, value] : stored.asKeyValueRange())
            m_defaults->setObject(value, key);
        m_server.documents = {{configurationLink, configuration}, {pictureLink, greenPicture()}};
        m_check.emplace(*m_defaults,
                        LaunchCheck::Sources{.fetch = [this](const auto &asked) { return m_server.fetch(asked); },
                                             .today = [] { return QDate(2026, 1, 2); },
                                             .draw = [drawn] { return drawn; }},
                        [] {});
        foundation::NotificationCenter::defaultCenter().addObserver(
            &*m_check, tarnwell::RMTConfigureDidParse.toString(), [this](const QObject *object) {
                ++m_posts;
                EXPECT_EQ(object, m_check->descriptor().get());
            });
        m_closer.callOnTimeout(&*m_check, [this] { closeWindow(); });
        m_closer.start(5);
    }

    void checkAutomatically()
    {
        foundation::queue::asyncGlobal([this] { m_check->run(); });
        // The check, and then the picture's fetch.
        for (int jobs = 0; jobs < 2; ++jobs) {
            foundation::queue::finishGlobal();
            QCoreApplication::processEvents();
        }
    }

    void closeWindow()
    {
        auto *modal = qobject_cast<tarnwell::TitledWindow *>(QApplication::activeModalWidget());
        const auto *views = modal ? modal->findChild<QStackedWidget *>(u"upgradeContentView"_s) : nullptr;
        if (!modal || (views && views->currentWidget()->objectName() == "progressView"_L1))
            return;
        m_shown += views ? u"update"_s : u"promotion"_s;
        if (auto *picture = modal->findChild<QWidget *>(u"myImageView"_s))
            m_color = picture->grab().toImage().pixelColor(picture->rect().center());
        modal->performClose();
    }

    const test::TestDesktop m_desktop;
    std::optional<test::ProductFolder> m_product;
    std::optional<foundation::UserDefaults> m_defaults;
    TestServer m_server;
    QTimer m_closer;
    int m_posts = 0;
    QStringList m_shown;
    QColor m_color;
    std::optional<LaunchCheck> m_check;
};

}  // namespace

TEST_F(LaunchCheckTest, the_automatic_check_shows_one_window_at_most)
{
    const QString read = u"kestrel.plist configuration.json"_s, today = u"2026-01-02"_s;
    const auto shownOn = [](const QString &day) { return QVariantMap{{u"_AdvertisementDateString"_s, day}}; };
    QVariantMap declined = shownOn(u"2025-12-31"_s);
    declined.insert(u"_AdvertisementRate"_s, 5);
    const struct {
        const char *name;
        QString link, version;  ///< the server's; null where it cannot be reached
        QVariantMap stored;
        quint32 drawn;
        QString shown, day, asked;
        int posts = 1;
    } rows[] = {
        {"no address", u""_s, {}, {}, 0, {}, {}, {}, 0},
        {"no address that could be one", u"http://127.0.0.1:port/"_s, {}, {}, 0, {}, {}, {}, 0},
        {"unreachable", descriptorLink, {}, {}, 0, {}, {}, u"kestrel.plist"_s},
        {"newer", descriptorLink, u"9.0"_s, {}, 0, u"update"_s, {}, read},
        {"promotion", descriptorLink, u"1.0.0"_s, {}, 129, u"promotion"_s, today, read + " picture.png"_L1},
        {"shown today", descriptorLink, u"1.0.0"_s, shownOn(today), 0, {}, today, read},
        {"declined before, another day", descriptorLink, u"1.0.0"_s, declined, 5, {}, u"2025-12-31"_s, read},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        m_posts = 0;
        m_shown.clear();
        m_server.asked.clear();
        make(row.link, row.stored, row.drawn);
        if (!row.version.isNull())
            m_server.documents.insert(descriptorLink, descriptor(row.version));
        checkAutomatically();
        EXPECT_EQ(m_posts, row.posts);
        EXPECT_EQ(m_shown.join(u' '), row.shown);
        EXPECT_EQ(m_server.asked.join(u' '), row.asked);
        EXPECT_EQ(m_defaults->stringForKey(u"_AdvertisementDateString"_s), row.day);
        EXPECT_EQ(m_check->descriptor() != nullptr, !row.version.isNull());
    }
    EXPECT_EQ(m_color, QColor(Qt::green));
}

TEST_F(LaunchCheckTest, the_picture_comes_from_the_web_after_the_day_was_kept)
{
    make(descriptorLink);
    m_server.documents.insert(descriptorLink, descriptor(u"1.0.0"_s));
    QString day;
    foundation::FetchRequest picture;
    m_server.onFetch = [&](const foundation::FetchRequest &request) {
        day = m_defaults->stringForKey(u"_AdvertisementDateString"_s);
        picture = request;
    };
    checkAutomatically();
    EXPECT_EQ(picture.address, pictureLink);
    EXPECT_EQ(picture.schemes, foundation::FetchSchemes::Web) << "what is fetched must never lead to a file";
    EXPECT_EQ(picture.maximumBytes, 16 * 1024 * 1024);
    EXPECT_EQ(day, u"2026-01-02"_s);
}

TEST_F(LaunchCheckTest, a_check_by_hand_stands_for_the_automatic_one)
{
    const struct {
        const char *name;
        QString version;
        bool isAnsweredLater = false;
    } rows[] = {{"new version", u"9.0"_s}, {"promotion", u"1.0.0"_s}, {"after its window was closed", u"9.0"_s, true}};
    for (const auto &[name, version, isAnsweredLater] : rows) {
        SCOPED_TRACE(name);
        m_shown.clear();
        make(descriptorLink);
        m_server.documents.insert(descriptorLink, descriptor(version));
        qsizetype mostWindows = 0;
        const auto run = [this] { m_check->run(); };
        QTimer::singleShot(0, &*m_check, [&] {
            m_check->showUpdateWindow();  // once more, by its shortcut
            if (!isAnsweredLater)
                foundation::queue::asyncGlobal(run);
            m_closer.callOnTimeout(&*m_check, [&] {
                mostWindows =
                    std::max(mostWindows, std::ranges::count_if(QApplication::topLevelWidgets(), [](const QWidget *w) {
                                 return w->isModal() && w->isVisible();
                             }));
            });
        });
        m_check->showUpdateWindow();
        if (isAnsweredLater)
            foundation::queue::asyncGlobal(run);
        foundation::queue::finishGlobal();
        QCoreApplication::processEvents();
        EXPECT_EQ(m_shown, QStringList(u"update"_s));
        EXPECT_EQ(mostWindows, 1);
        EXPECT_EQ(m_posts, 1) << "the automatic one is read all the same";
        EXPECT_FALSE(m_defaults->objectForKey(u"_AdvertisementDateString"_s).isValid());
        m_closer.disconnect();
        m_closer.stop();
        m_posts = 0;
    }
}

TEST_F(LaunchCheckTest, the_check_by_hand_only_shows_its_window)
{
    make(descriptorLink);
    m_server.documents.insert(descriptorLink, descriptor(u"1.0.0"_s));
    m_check->showUpdateWindow();
    foundation::queue::finishGlobal();
    QCoreApplication::processEvents();
    EXPECT_EQ(m_shown, QStringList(u"update"_s));
    EXPECT_EQ(m_server.asked, QStringList({u"kestrel.plist"_s, u"configuration.json"_s}));
    EXPECT_TRUE(m_posts == 0 && !m_check->descriptor());
    EXPECT_FALSE(m_defaults->objectForKey(u"_AdvertisementDateString"_s).isValid());
}

}  // namespace kestrel
