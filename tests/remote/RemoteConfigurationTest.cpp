#include "remote/AppRMConfig.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QJsonDocument>
#include <QStringConverter>

#include <ctime>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

QByteArray configurationFile(const QString &name)
{
    QFile file(QDir(QStringLiteral(KESTREL_TEST_DATA)).filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

ADItem itemOf(const QByteArray &json)
{
    return ADItem::initWithDictionary(QJsonDocument::fromJson(json).object());
}

}  // namespace

TEST(RemoteConfiguration, ReadsEveryField)
{
    foundation::FetchRequest request;
    const auto configuration = AppRMConfig::remoteConfigWithURL(u"https://example.com/c"_s, [&](const auto &asked) {
        request = asked;
        return foundation::FetchResult{configurationFile(u"configuration.json"_s), {}};
    });
    ASSERT_TRUE(configuration && configuration->adParser() && configuration->adParser()->full());
    // What a fetched document names must never lead to a file.
    EXPECT_EQ(request.schemes, foundation::FetchSchemes::Web);
    EXPECT_EQ(request.maximumBytes, 1024 * 1024);
    EXPECT_EQ(request.timeLimit, std::chrono::seconds(5));
    EXPECT_EQ(configuration->adParser()->pictureURL(), u"https://example.com/picture.png"_s);
    const ADItem &item = *configuration->adParser()->full();
    EXPECT_EQ(QStringList({item.title(), item.rightBtnTitle(), item.rightBtnURL(), item.leftBtnTitle()}),
              QStringList({u"Spring sale"_s, u"Show me"_s, u"https://example.com/"_s, u"Not now"_s}));
    ASSERT_TRUE(item.details() && item.details()->size() == 2);
    EXPECT_TRUE(item.details()->first().style.bold);
    EXPECT_EQ(plainText(*item.details()), u"Half price"_s);
    EXPECT_EQ(item.rate(), 30);
    EXPECT_EQ(item.nextRate(), 12);
    EXPECT_EQ(item.maxCount(), 1);
    EXPECT_EQ(configuration->topRightBtnConfig()->dictionary(), QJsonObject({{u"text"_s, u"old"_s}}));
    EXPECT_EQ(configuration->topRightBtnConfig_full()->dictionary().value(u"list"_s), QJsonArray({1, u"2"_s}));
    EXPECT_FALSE(AppRMConfig::initWithURL(u"x"_s, [](const auto &) { return foundation::FetchResult{{}, u"no"_s}; }));
}

TEST(RemoteConfiguration, ReadsEveryEncodingOfUnicode)
{
    const QString text = u"\n{\"ads\": {\"full\": {\"title\": \"Frühling 🎬\"}}}"_s;
    using Encoding = QStringConverter::Encoding;
    for (const Encoding encoding : {Encoding::Utf8, Encoding::Utf16LE, Encoding::Utf16BE, Encoding::Utf32LE}) {
        for (const auto flag : {QStringConverter::Flag::Default, QStringConverter::Flag::WriteBom}) {
            QStringEncoder encoder(encoding, flag);
            const QByteArray bytes = encoder(text);
            const auto configuration = AppRMConfig::initWithData(bytes);
            ASSERT_TRUE(configuration->adParser()) << bytes.toHex(' ').left(20).toStdString();
            EXPECT_EQ(configuration->adParser()->full()->title(), u"Frühling 🎬"_s);
        }
    }
    EXPECT_FALSE(AppRMConfig::initWithData(QByteArray("\xFF\xFE{\0\x00\xD8}\0", 8))->adParser());
}

TEST(RemoteConfiguration, ReadsItemsLeniently)
{
    const std::pair<const char *, qint64> rates[] = {{R"("30")", 30}, {R"(" -7 %")", -7}, {"true", 1},
                                                     {"null", 0},     {"-1.9", -1},       {"1e300", LLONG_MAX},
                                                     {"[1]", 0},      {R"("many")", 0}};
    for (const auto &[rate, expected] : rates)
        EXPECT_EQ(itemOf(QByteArray("{\"rate\":") + rate + '}').rate(), expected) << rate;
    // There is a body from one character on.
    const std::pair<const char *, const char *> bodies[] = {
        {"[]", nullptr},   {R"([""])", nullptr}, {R"("text")", nullptr},         {"[1, null]", nullptr},
        {R"(["a"])", "a"}, {R"(["",""])", ""},   {R"(["a",5,"<br>b"])", "a\nb"}, {R"(["\ud83c"])", "?"}};
    for (const auto &[body, expected] : bodies) {
        const auto details = itemOf(QByteArray("{\"details\":") + body + '}').details();
        EXPECT_EQ(details.has_value(), expected != nullptr) << body;
        EXPECT_EQ(details ? plainText(*details) : QString(), QString::fromUtf8(expected)) << body;
    }
    for (const QJsonValue &picture :
         {QJsonValue(u""_s), QJsonValue(u"http://a b/"_s), QJsonValue(u"http://[::1"_s), QJsonValue(5)})
        EXPECT_TRUE(AdParser::initWithDictionary({{u"picture"_s, picture}}).pictureURL().isNull())
            << qPrintable(picture.toString());
}

TEST(RemoteConfiguration, ReadsDamagedOnesAsEmpty)
{
    const QStringList names = QDir(QStringLiteral(KESTREL_TEST_DATA)).entryList({u"broken_*.json"_s});
    ASSERT_FALSE(names.isEmpty());
    for (const QString &name : names) {
        const auto configuration = AppRMConfig::initWithData(configurationFile(name));
        EXPECT_FALSE(configuration->adParser() && configuration->adParser()->full()) << qPrintable(name);
        EXPECT_FALSE(configuration->topRightBtnConfig() || configuration->topRightBtnConfig_full()) << qPrintable(name);
    }
}

TEST(RemoteConfiguration, ReadsHostileOnesQuickly)
{
    const QByteArray bodies[] = {
        QByteArray(1'000'000, '['), '{' + QByteArray("\"ads\":{},").repeated(100'000) + "\"a\":1}",
        R"({"ads":{"full":{"details":[)" + QByteArray(R"("<b>",)").repeated(160'000) + R"("a"]}}})"};
    for (const QByteArray &body : bodies) {
        const std::clock_t start = std::clock();
        EXPECT_TRUE(AppRMConfig::initWithData(body));
        EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC / 2) << body.left(40).toStdString();
    }
}

}  // namespace kestrel
