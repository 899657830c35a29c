#include "settings/ProxyRule.h"
#include "settings/SettingLists.h"
#include "settings/SettingPage.h"
#include "tarnwell/Installed.h"
#include "tarnwell/Localization.h"
#include "tarnwell/TextKey.h"

#include <gtest/gtest.h>

#include <ctime>

using namespace Qt::StringLiterals;

namespace kestrel {

TEST(SettingRulesTest, proxy_addresses)
{
    const QString valid[] = {u"http://proxy.example.com"_s,
                             u"socks5://10.0.0.1"_s,
                             u"ftp://x"_s,
                             u"http://"_s,
                             u"use http://proxy today"_s,
                             u"a_^[]`://x"_s,
                             u"s|(5)://1.2.3.4"_s,
                             u"socks5://10.0.0.256"_s,  // 10.0.0.25 is found in it
                             u"http://"_s + u"x"_s.repeated(100'000)};
    const QString invalid[] = {u"socks5://proxy.example.com"_s,
                               u"socks5://10.0.1"_s,
                               u"proxy.example.com:8080"_s,
                               u"http:proxy"_s,
                               u"://10.0.0.1"_s,
                               u""_s,
                               {},
                               u"a["_s.repeated(500'000)};
    const std::clock_t start = std::clock();
    for (const QString &url : valid)
        EXPECT_TRUE(validateTheProxy(url, u"abc"_s)) << qPrintable(url.left(40));
    for (const QString &url : invalid)
        EXPECT_FALSE(validateTheProxy(url, u"80"_s)) << qPrintable(url.left(40));
    EXPECT_LT(std::clock() - start, 5 * CLOCKS_PER_SEC);
}

TEST(SettingRulesTest, concurrency)
{
    QList<qint64> values;
    for (const QString &title : concurrencyTitles()) {
        values.append(concurrencyOfTitle(title));
        EXPECT_EQ(concurrencyTitle(values.last()), title);
    }
    EXPECT_EQ(values, (QList<qint64>{1, 2, 3, 5, 10, 0}));
    for (const qint64 stored : std::initializer_list<qint64>{4, -1, INT64_MIN})
        EXPECT_EQ(concurrencyTitle(stored), u"5"_s) << stored;
}

TEST(SettingRulesTest, translated_titles_stand_for_what_is_stored)
{
    tarnwell::Localization german(QStringLiteral(KESTREL_TRANSLATIONS), u"de"_s);
    const tarnwell::Installed<tarnwell::Localization> installed(german);
    QStringList stored;
    for (const QString &title : resolutionTitles()) {
        stored.append(resolutionOfTitle(title));
        EXPECT_EQ(resolutionTitle(stored.last()), title);
    }
    EXPECT_EQ(stored.join(u' '), u"240P 360P 480P 720P 1080P Highest Resolution"_s);
    EXPECT_NE(resolutionTitles().last(), stored.last());
    EXPECT_NE(concurrencyTitle(0), u"Unlimited"_s);
    using tarnwell::operator""_key;
    const tarnwell::Sentence sentence("Unlimited"_key);
    EXPECT_EQ(sentence.english(), u"Unlimited");
    EXPECT_NE(sentence.localized(), sentence.english());
    EXPECT_EQ(concurrencyOfTitle(concurrencyTitle(0)), 0);
}

TEST(SettingRulesTest, languages_are_named_in_the_display_language)
{
    EXPECT_EQ(dvdLanguageTitles(u"de-AT"_s).join(u' '),
              u"Default Englisch Japanisch Deutsch Französisch Spanisch Italienisch Koreanisch "
              "Chinesisch (vereinfacht) Chinesisch (traditionell)"_s);
    EXPECT_EQ(dvdLanguageTitles(u"no language"_s).join(u' '), u"Default en ja de fr es it ko zh-Hans zh-Hant"_s);
    EXPECT_EQ(dvdLanguageIndex(u"zh-Hant"_s), 9);
    EXPECT_EQ(dvdLanguageIndex(u"tlh"_s), 0);
    EXPECT_EQ(dvdLanguageAt(9), u"zh-Hant"_s);
    EXPECT_TRUE(dvdLanguageAt(-1).isNull() && dvdLanguageAt(10).isNull());
}

TEST(SettingRulesTest, scrolling)
{
    EXPECT_EQ(scrollPosition(616, headingMargin, 460), 166);
    EXPECT_EQ(scrollPosition(1003, entryMargin, 460), 563);
    EXPECT_EQ(scrollPosition(332, headingMargin, 460), 0);

    const double middles[] = {1023, 846, 604}, near[] = {1000, 990, 980};
    for (const double top : {1023., 946., 846., 604., 460.})  // strictly below the edge
        EXPECT_EQ(sectionInView(middles, top), std::nullopt) << top;
    EXPECT_EQ(sectionInView(middles, 1023.5), SettingSection::Common);
    EXPECT_EQ(sectionInView(middles, 945.5), SettingSection::Video);
    EXPECT_EQ(sectionInView(middles, 604.5), SettingSection::DVD);
    EXPECT_EQ(sectionInView(near, 1001), SettingSection::Common) << "the first of several";
    EXPECT_FALSE(markMoves(100, 101.9) || markMoves(100, 98.1));
    EXPECT_TRUE(markMoves(100, 102) && markMoves(100, 98));
}

TEST(SettingRulesTest, the_shown_hardware_choice_agrees_with_the_switch)
{
    using enum HardwareChoice;
    const struct {
        HardwareChoice last;
        bool machineCan, isSwitchedOn;
        HardwareChoice shown;
    } rows[] = {{Automatic, true, true, Automatic}, {Automatic, false, false, Automatic},
                {Automatic, true, false, Off},      {Automatic, false, true, Intel},
                {Intel, true, false, Off},          {Off, true, true, Intel}};
    for (const auto &[last, can, isOn, shown] : rows)
        EXPECT_EQ(hardwareChoiceShown(last, can, isOn), shown) << int(last) << can << isOn;
}

}  // namespace kestrel
