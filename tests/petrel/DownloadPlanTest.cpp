#include "foundation/UserDefaults.h"
#include "modules/petrel/Attempts.h"
#include "modules/petrel/Download.h"
#include "modules/petrel/DownloadRecipe.h"
#include "modules/petrel/PartFolder.h"
#include "settings/JKestrelSetting.h"
#include "settings/JKestrelSettingDispatcher.h"
#include "settings/ModuleSettings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

TEST(DownloadPlanTest, AddressesAsPeoplePasteThem)
{
    const std::pair<const char *, const char *> cases[] = {
        {" https://a.example/x \n", "https://a.example/x"},
        {"a.example/watch?v=1", "https://a.example/watch?v=1"},
        {"http://127.0.0.1:8080/f.mp4", "http://127.0.0.1:8080/f.mp4"},
        {"HTTPS://A.example/Ä", "https://a.example/%C3%84"},
        {"file:///etc/passwd", ""},
        {"javascript:alert(1)", ""},
        {"ftp://a.example/x", ""},
        {"--exec", ""},
        {"hello", ""},
        {"e.g.", ""},
        {"holiday.mkv", ""},
        {"https://a.example/x y", ""},
        {"https://a.example/\x01", ""},
        {"", ""},
    };
    for (const auto &[text, address] : cases)
        EXPECT_EQ(downloadAddress(QString::fromUtf8(text)), QString::fromLatin1(address)) << text;
    const QStringList both{u"https://a.example/1"_s, u"https://b.example/"_s};
    EXPECT_EQ(
        addressesIn(u"Look (https://a.example/1)\n\tURL=https://b.example/, <https://a.example/1> and file:///x"_s),
        both);
    EXPECT_EQ(textOfFile(QByteArray("h\0t\0t\0p\0", 8)), u"http");
}

TEST(DownloadPlanTest, StoredPlansComeBackAndNonsenseDoesNot)
{
    const DownloadPlan plan{.address = u"https://a.example/x"_s,
                            .item = 3,
                            .soundOnly = true,
                            .extension = u"mp3"_s,
                            .subtitles = {u"en"_s},
                            .proxy = u"socks5://p.example:1"_s,
                            .bytesPerSecond = 5000,
                            .manyFromServer = true,
                            .hasOwnProxy = true,
                            .title = u"Title"_s,
                            .seconds = 1.5,
                            .bytes = 12,
                            .picture = u"https://example.com/a.jpg"_s};
    EXPECT_EQ(DownloadPlan::fromJson(plan.toJson()), plan);
    QJsonObject json = plan.toJson();
    json[u"extension"_s] = u"exe"_s;
    json[u"bytesPerSecond"_s] = -4;
    const auto read = DownloadPlan::fromJson(json);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->extension, u"m4a"_s);
    EXPECT_EQ(read->bytesPerSecond, 0);
    json[u"address"_s] = u"file:///etc/passwd"_s;
    EXPECT_FALSE(DownloadPlan::fromJson(json));
    json = plan.toJson();
    json[u"version"_s] = 99;
    EXPECT_FALSE(DownloadPlan::fromJson(json));
}

TEST(DownloadTest, NothingGoesPastAProxyThatIsSwitchedOn)
{
    foundation::UserDefaults defaults(u"/nowhere/defaults.plist"_s);
    JKestrelSetting setting(defaults);
    setting.downloader()->setProxyEnabled(true);
    for (const auto &[text, proxy] : {std::pair(u"socks://p.example:1"_s, u"socks5://p.example:1"_s),
                                      std::pair(u"ssh://p.example:1"_s, deadProxy.toString())}) {
        setting.downloader()->setProxyURL(text);
        EXPECT_EQ(downloadProxy({ModuleSettingDownload, setting}), proxy);
    }
}

TEST(DownloadTest, ThreeFromOneServerUnlessMoreAreWanted)
{
    const auto job = [](const QString &address, bool isMany = false) {
        return downloadJob({.address = address, .manyFromServer = isMany}, {});
    };
    const QString server = u"http://127.0.0.1:1/"_s;
    const JobRecord one = job(server + u'1'), two = job(server + u'2'), three = job(server + u'3'),
                    other = job(u"http://127.0.0.1:2/"_s);
    const DownloadRecipe recipe([] { return DownloadTools(); });
    EXPECT_TRUE(recipe.obstacle(job(server), {&one, &two, &other, &other}).isEmpty());
    EXPECT_FALSE(recipe.obstacle(job(server), {&one, &two, &three}).isEmpty());
    EXPECT_TRUE(recipe.obstacle(job(server, true), {&one, &two, &three}).isEmpty());
    foundation::UserDefaults defaults(u"/nowhere/defaults.plist"_s);
    JKestrelSetting setting(defaults);
    JKestrelSettingDispatcher settings(ModuleSettingDownload, setting);
    settings.setConcurrentThread(4);
    EXPECT_EQ(downloadsAtOnce(settings), 4);
    settings.setConcurrentThread(0);
    EXPECT_GT(downloadsAtOnce(settings), 100);
}

TEST(AttemptsTest, SoonAtFirstAndNotForEver)
{
    using Kind = EngineFailure::Kind;
    Attempts attempts;
    EXPECT_EQ(attempts.next(Kind::TooMany, 60), 60);
    EXPECT_EQ(attempts.next(Kind::TooMany, 0), 15);
    EXPECT_FALSE(attempts.next(Kind::TooMany, 3600)) << "others wait for the place";
    EXPECT_FALSE(attempts.next(Kind::Server, 0)) << "has broken off twice";
    for (int night = 0; night < 100; ++night)
        EXPECT_TRUE(attempts.next(Kind::NoNetwork, 0));
    attempts.reset();
    EXPECT_EQ(attempts.next(Kind::Server, 0), 5);
}

TEST(PartFolderTest, IsFoundAgainByThePlanAndNobodyElseHasItMeanwhile)
{
    const QTemporaryDir folder;
    const DownloadPlan plan{.address = u"https://a.example/x"_s, .extension = u"mp4"_s};
    DownloadPlan other = plan;
    other.height = 480;
    QString path;
    {
        const auto first = PartFolder::take(folder.path(), plan);
        ASSERT_TRUE(first);
        path = (*first)->path();
        QFile file(path + u"/media.mp4.part"_s);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("12345") == 5);
        file.close();
        EXPECT_EQ((*first)->bytes(), 5);
        EXPECT_EQ((*first)->downloaded(), QString());
        const auto second = PartFolder::take(folder.path(), plan);
        ASSERT_TRUE(second);
        EXPECT_NE((*second)->path(), path);
        PartFolder::removeLeft(folder.path(), plan);
        EXPECT_TRUE(QFile::exists(path));
    }
    const auto another = PartFolder::take(folder.path(), other);
    ASSERT_TRUE(another);
    EXPECT_NE((*another)->path(), path);
    {
        const auto again = PartFolder::take(folder.path(), plan);
        ASSERT_TRUE(again);
        EXPECT_EQ((*again)->path(), path);
        EXPECT_EQ((*again)->bytes(), 5);
        // A whole file is one whose name has nothing between.
        for (const char *name : {"media.f1.mp4", "media.en.vtt", "media.ytdl", "media.webm"}) {
            QFile file(path + u'/' + QString::fromLatin1(name));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        }
        EXPECT_EQ((*again)->downloaded(), path + u"/media.webm"_s);
        EXPECT_EQ((*again)->missingCompanions(), std::nullopt);
        (*again)->setMissingCompanions(u"no cover"_s);
        EXPECT_EQ((*again)->missingCompanions(), u"no cover"_s);
    }
    const QString elsewhere = folder.filePath(u"elsewhere"_s);
    QDir().mkdir(elsewhere);
    PartFolder::moveLeft(folder.path(), plan, elsewhere);
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_EQ((*PartFolder::take(elsewhere, plan))->missingCompanions(), u"no cover"_s);
    PartFolder::removeLeft(elsewhere, plan);
    EXPECT_TRUE(QDir(elsewhere).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    EXPECT_FALSE(PartFolder::take(folder.path() + u"/none"_s, plan));
}

}  // namespace

}  // namespace kestrel
