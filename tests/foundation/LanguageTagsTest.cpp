#include "LanguageTags.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

TEST(LanguageTagsTest, MakesTagsOfLocaleNames)
{
    const struct {
        QString name;
        QString tag;
    } rows[] = {
        {u"en_GB.UTF-8"_s, u"en-GB"_s},
        {u"de"_s, u"de"_s},
        {u"pt-BR"_s, u"pt-BR"_s},
        {u"es_419"_s, u"es-419"_s},
        {u"EN_gb"_s, u"en-GB"_s},
        {u"de_AT@euro"_s, u"de-AT"_s},
        {u"zh_TW"_s, u"zh-Hant-TW"_s},
        {u"zh_HK.BIG5-HKSCS"_s, u"zh-Hant-HK"_s},
        {u"zh_CN.UTF-8"_s, u"zh-Hans-CN"_s},
        {u"zh"_s, u"zh-Hans"_s},
        {u"zh-Hant"_s, u"zh-Hant"_s},
        {u"sr_RS"_s, u"sr-Cyrl-RS"_s},
        {u"sr_RS@latin"_s, u"sr-Latn-RS"_s},
        {u"sr_ME.UTF-8"_s, u"sr-Latn-ME"_s},
        {u"uz_UZ@cyrillic"_s, u"uz-Cyrl-UZ"_s},
        {u"be_BY@latin"_s, u"be-Latn-BY"_s},
        {u"ru-Cyrl-RU"_s, u"ru-RU"_s},
        {u"ca_ES.UTF-8@valencia"_s, u"ca-ES"_s},
        {u"en_US_POSIX"_s, u"en-US"_s},
        {u"de-DE-u-co-phonebk"_s, u"de-DE"_s},
        {u"iw_IL"_s, u"he-IL"_s},
        {u"fil_PH"_s, u"fil-PH"_s},
        {u"C"_s, QString()},
        {u"C.UTF-8"_s, QString()},
        {u"POSIX"_s, QString()},
        {QString(), QString()},
        {u"german"_s, QString()},
        {u"/usr/lib/x"_s, QString()},
        {u"en__GB"_s, QString()},
        {u"日本"_s, QString()},
        {u"en_GB; rm"_s, QString()},
    };
    for (const auto &[name, tag] : rows)
        EXPECT_EQ(languageTag(name), tag) << qPrintable(name);
}

TEST(LanguageTagsTest, NamesLanguagesInThemselves)
{
    const struct {
        QString code;
        QString name;
    } rows[] = {{u"en"_s, u"English"_s},
                {u"ja"_s, u"日本語"_s},
                {u"es"_s, u"español"_s},
                {u"pt-BR"_s, u"português (Brasil)"_s},
                {u"zh-Hans"_s, u"简体中文"_s},
                {u"zh-Hant"_s, u"繁體中文"_s},
                {u"xx"_s, u"xx"_s},
                {u"xx-YY"_s, u"xx-YY"_s},
                {u"no code"_s, u"no code"_s},
                {QString(), QString()}};
    for (const auto &[code, name] : rows)
        EXPECT_EQ(languageDisplayName(code), name) << qPrintable(code);
}

TEST(LanguageTagsTest, AsksTheSystemAsGettextDoes)
{
    const struct {
        const char *name;
        const char *language;
        const char *lcAll;
        const char *lcMessages;
        const char *lang;
        QStringList tags;
    } rows[] = {
        {"LANG alone", "", "", "", "en_GB.UTF-8", {u"en-GB"_s}},
        {"LC_MESSAGES before LANG", "", "", "de_DE", "en_GB", {u"de-DE"_s}},
        {"LC_ALL before both", "", "fr_FR", "de_DE", "en_GB", {u"fr-FR"_s}},
        {"LANGUAGE before all", "zh_TW:de:zh_TW::C", "", "", "en_GB", {u"zh-Hant-TW"_s, u"de"_s}},
        {"an unusable LANGUAGE", ":C", "", "", "en_GB", {u"en-GB"_s}},
        {"LANGUAGE in the C locale", "de", "C.UTF-8", "", "en_GB", {u"en"_s}},
        {"LANGUAGE without a locale", "de", "", "", "", {u"en"_s}},
    };
    for (const auto &row : rows) {
        qputenv("LANGUAGE", row.language);
        qputenv("LC_ALL", row.lcAll);
        qputenv("LC_MESSAGES", row.lcMessages);
        qputenv("LANG", row.lang);
        EXPECT_EQ(systemPreferredLanguages(), row.tags) << row.name;
    }
}

}  // namespace kestrel::foundation
