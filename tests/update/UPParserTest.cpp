#include "update/UPParser.h"

#include "foundation/PropertyList.h"

#include <gtest/gtest.h>

#include <QDir>

#include <ctime>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

QByteArray descriptorFile(const QString &name)
{
    QFile file(QDir(QStringLiteral(KESTREL_TEST_DATA)).filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Answers every request with `body`, and notes what was asked for.
struct Server {
    std::optional<QByteArray> body;
    QStringList addresses = {};
    QList<foundation::FetchSchemes> schemes = {};

    UpdateContext context(const QString &language)
    {
        return {{language, u"3.4"_s}, [this](const foundation::FetchRequest &request) {
                    addresses += request.address;
                    schemes += request.schemes;
                    return foundation::FetchResult{body, u"no answer"_s};
                }};
    }
};

std::unique_ptr<const UPParser> parsed(const QVariantMap &root)
{
    auto parser = std::make_unique<UPParser>(UpdateReading{u"en"_s, u"3.4"_s});
    parser->parseUpgradeConfig(root);
    return parser;
}

}  // namespace

TEST(UPParser, ReadsEveryFieldInBothForms)
{
    const QByteArray xml = descriptorFile(u"descriptor.plist"_s);
    const auto root = foundation::readPropertyList(xml).value;
    ASSERT_TRUE(root);
    for (const QByteArray &body : {xml, writePropertyList(*root, foundation::PropertyListFormat::Binary)}) {
        Server server{body};
        const auto fetched = UPParser::initWithXMLURL(u"file:///descriptor"_s, server.context(u"de"_s));
        ASSERT_TRUE(fetched);
        const auto &parser = *fetched;
        EXPECT_TRUE(parser->forceUpgrade() && parser->foundNewVerion() && parser->rmtConfig());
        EXPECT_EQ(
            QStringList({parser->versionFromServer(), parser->buildTimeFromServer(), parser->productDownloadURLReg(),
                         parser->promotionRegitsteredTitle(), parser->promotionRegitsteredNotes(),
                         parser->promotionRegitsteredURL(), parser->dlSupportLinkTitleReg(),
                         parser->dlSupportLinkURLReg()}),
            QStringList({u"3.4.1"_s, u"May 2024"_s, u"https://example.com/de/download"_s, u"Neues"_s, u"Mehr davon"_s,
                         u"https://example.com/de/news"_s, u"Hilfe"_s, u"https://example.com/de/help"_s}));
        EXPECT_TRUE(parser->dl300PlusTitleReg().isNull() && parser->dl300PlusURLReg().isNull());
        EXPECT_EQ(server.addresses, QStringList({u"file:///descriptor"_s, u"https://example.com/configuration"_s}));
        EXPECT_EQ(server.schemes, QList({foundation::FetchSchemes::WebAndFile, foundation::FetchSchemes::Web}));
        EXPECT_EQ(plainText(parser->updateLog()), u" 1. Schneller & <b>\n 2. \n 3. Kleiner\n"_s);
    }
}

TEST(UPParser, ForgivesADescriptorWrittenByHand)
{
    Server server{
        "\n<?xml version=\"1.0\" encoding=\"windows-1252\"?><plist><dict><key>LastestVersion</key>"
        "<string>1.0</string><key>BuildDate</key><string>M\xE4rz</string><key>LastestVersion</key>"
        "<string>4.0</string></dict></plist>"};
    const auto parser = UPParser::initWithXMLURL(u"x"_s, server.context(u"en"_s));
    ASSERT_TRUE(parser);
    EXPECT_EQ((*parser)->versionFromServer() + (*parser)->buildTimeFromServer(), u"4.0März"_s);
}

TEST(UPParser, FallsBackToTheRootAndToTheEnglishLinks)
{
    for (const QString &language : {u"ja"_s, u"fr"_s, QString()}) {
        Server server{descriptorFile(u"descriptor.plist"_s)};
        const auto fetched = UPParser::initWithXMLURL(u"x"_s, server.context(language));
        ASSERT_TRUE(fetched);
        const auto &parser = *fetched;
        EXPECT_EQ(parser->promotionRegitsteredTitle(), u"Root title"_s) << qPrintable(language);
        EXPECT_TRUE(parser->productDownloadURLReg().isNull()) << qPrintable(language);
        EXPECT_EQ(parser->dlSupportLinkTitleReg(), u"Help"_s) << qPrintable(language);
        EXPECT_TRUE(parser->dlSupportLinkURLReg().isNull()) << qPrintable(language);
        // An address of one character is none.
        EXPECT_TRUE(server.addresses.size() == 1 && !parser->rmtConfig()) << qPrintable(language);
    }
}

TEST(UPParser, ReadsBooleansInEveryType)
{
    const QVariantList yes = {true, 1, -1, 0.5, u"YES"_s, u" -007"_s, u"t"_s, u"+1 no"_s};
    const QVariantList no = {
        false, 0, 0.0, u"NO"_s, u"000"_s, u""_s, u"a1"_s, u"--1"_s, QByteArray("1"), QVariantList{1}, QVariant()};
    for (const QVariant &value : yes + no)
        EXPECT_EQ(parsed({{u"ForceAppUpgrade"_s, value}})->forceUpgrade(), yes.contains(value)) << value.typeName();
}

TEST(UPParser, StylesTheReleaseNotes)
{
    using foundation::StyledText;
    const QString fixed = u" 1. Add the support more media format.\n 2. minor bug improvements."_s;
    const StyledText standard = {{fixed, {.color = 0xFF696969, .fontFamily = {}, .link = {}}}};
    EXPECT_EQ(parsed({})->updateLog(), standard);
    for (const QVariant &none : {QVariant(QVariantList()), QVariant(u"text"_s)})
        EXPECT_EQ(parsed({{u"UpdateLog"_s, none}})->updateLog(), standard) << none.typeName();
    const auto entry = [](const QVariant &content, const QVariant &color) {
        return QVariantMap{{u"content"_s, content}, {u"color"_s, color}};
    };
    const auto line = [](const QString &text, QRgb color) {
        return foundation::StyledRun{text, {.color = color, .fontFamily = u"Arial"_s, .pixelSize = 13, .link = {}}};
    };
    EXPECT_EQ(parsed({{u"UpdateLog"_s, QVariantList{entry(u"a"_s, u"#0074cc"_s), entry(u"b\u202Ec"_s, u"red"_s),
                                                    entry(5, 5), entry(u"d\te"_s, u"FF0000"_s)}}})
                  ->updateLog(),
              StyledText({line(u" 1. a\n"_s, 0xFF0074CC), line(u" 2. bc\n 3. \n"_s, 0xFF000000),
                          line(u" 4. d e\n"_s, 0xFFFF0000)}));
    const StyledText longNotes =
        parsed({{u"UpdateLog"_s, QVariantList(9, entry(QString(9000, u'x'), {}))}})->updateLog();
    EXPECT_EQ(plainText(longNotes).size(), 20'000);
    EXPECT_EQ(plainText(longNotes).indexOf(QChar(0x200B)), 4 + 200);
}

TEST(UPParser, RefusesDamagedDescriptors)
{
    QStringList names = QDir(QStringLiteral(KESTREL_TEST_DATA)).entryList({u"broken_*.plist"_s});
    ASSERT_FALSE(names.isEmpty());
    for (const QString &name : names) {
        const auto parsed = UPParser::initWithData(descriptorFile(name), {u"en"_s, u"3.4"_s});
        ASSERT_FALSE(parsed) << qPrintable(name);
        EXPECT_FALSE(parsed.reason().isEmpty()) << qPrintable(name);
    }
    Server silent;
    const auto unfetched = UPParser::initWithXMLURL(u"x"_s, silent.context(u"en"_s));
    ASSERT_FALSE(unfetched);
    EXPECT_EQ(unfetched.reason(), u"no answer"_s);
}

TEST(UPParser, ReadsHostileDescriptorsQuickly)
{
    for (const QByteArray &repeated :
         {QByteArray("<true/>"), QByteArray("<dict><key>content</key><string>a</string></dict>"),
          QByteArray("<array>").repeated(498) + QByteArray("</array>").repeated(498)}) {
        const QByteArray bytes = "<plist><dict><key>UpdateLog</key><array>" +
                                 repeated.repeated(1'000'000 / repeated.size()) + "</array></dict></plist>";
        const std::clock_t start = std::clock();
        const auto parser = UPParser::initWithData(bytes, {u"en"_s, u"3.4"_s});
        EXPECT_TRUE(parser && plainText((*parser)->updateLog()).size() > 500) << repeated.left(20).constData();
        EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC / 2) << repeated.left(20).constData();
    }
}

}  // namespace kestrel
