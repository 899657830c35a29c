#include "ProxyRule.h"
#include "SettingLists.h"
#include "SettingPage.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

namespace kestrel {

TEST(SettingRulesTest, proxy_addresses)
{
    const struct {
        const char *name;
        QString url, port;
        bool isValid;
    } rows[] = {
        {"plain", u"http://proxy.example.com"_s, u"8080"_s, true},
        {"digit before the colon, dotted address, bad port", u"socks5://10.0.0.1"_s, u"abc"_s, true},
        {"digit before the colon, name", u"socks5://proxy.example.com"_s, u"1080"_s, false},
        {"no port", u"ftp://x"_s, {}, true},
        {"scheme alone", u"http://"_s, u"1"_s, true},
        {"inside a text", u"use http://proxy today"_s, u"1"_s, true},
        {"characters between Z and a", u"a_^[]`://x"_s, u"1"_s, true},
        {"bar and parentheses", u"s|(5)://1.2.3.4"_s, u"1"_s, true},
        {"number above 255", u"socks5://10.0.0.256"_s, u"1"_s, true},  // 10.0.0.25 is found in it
        {"three numbers", u"socks5://10.0.1"_s, u"1"_s, false},
        {"no scheme", u"proxy.example.com:8080"_s, u"8080"_s, false},
        {"colon without slashes", u"http:proxy"_s, u"8080"_s, false},
        {"no letters", u"://10.0.0.1"_s, u"8080"_s, false},
        {"empty", u""_s, u"8080"_s, false},
        {"null", {}, {}, false},
    };
    for (const auto &[name, url, port, isValid] : rows)
        EXPECT_EQ(validateTheProxy(url, port), isValid) << name;
}

TEST(SettingRulesTest, a_hostile_proxy_address_is_refused_in_time)
{
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(validateTheProxy(u"a["_s.repeated(500'000), u"1"_s));
    EXPECT_LT(timer.elapsed(), 5000);
    EXPECT_TRUE(validateTheProxy(u"http://"_s + u"x"_s.repeated(100'000), u"1"_s));
}

TEST(SettingRulesTest, concurrency)
{
    const struct {
        qint64 stored;
        QString title;
    } shown[] = {{0, u"Unlimited"_s}, {1, u"1"_s},  {3, u"3"_s}, {10, u"10"_s},
                 {4, u"5"_s},         {-1, u"5"_s}, {INT64_MIN, u"5"_s}};
    for (const auto &[stored, title] : shown)
        EXPECT_EQ(concurrencyTitle(stored), title) << stored;
    QList<qint64> values;
    for (const QString &title : concurrencyTitles())
        values.append(concurrencyOfTitle(title));
    EXPECT_EQ(values, (QList<qint64>{1, 2, 3, 5, 10, 0}));
}

TEST(SettingRulesTest, languages_are_named_in_the_display_language)
{
    const struct {
        const char *displayLanguage;
        QStringList titles;
    } rows[] = {
        {"en", {u"Default"_s, u"English"_s, u"Japanese"_s, u"German"_s, u"French"_s, u"Spanish"_s, u"Italian"_s, u"Korean"_s,
                u"Simplified Chinese"_s, u"Traditional Chinese"_s}},
        {"de-AT", {u"Default"_s, u"Englisch"_s, u"Japanisch"_s, u"Deutsch"_s, u"Französisch"_s, u"Spanisch"_s, u"Italienisch"_s,
                   u"Koreanisch"_s, u"Chinesisch (vereinfacht)"_s, u"Chinesisch (traditionell)"_s}},
        {"no language", {u"Default"_s, u"en"_s, u"ja"_s, u"de"_s, u"fr"_s, u"es"_s, u"it"_s, u"ko"_s, u"zh-Hans"_s, u"zh-Hant"_s}},
    };
    for (const auto &[displayLanguage, titles] : rows)
        EXPECT_EQ(dvdLanguageTitles(QString::fromLatin1(displayLanguage)), titles) << displayLanguage;
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

    using Section = std::optional<SettingSection>;
    const double middles[] = {1023, 846, 604};
    const struct {
        double top;
        Section section;
    } rows[] = {{1045, SettingSection::Common}, {1023, {}},  // strictly below the edge
                {1023.5, SettingSection::Common}, {946, {}}, {945.5, SettingSection::Video},
                {846, {}},  {604.5, SettingSection::DVD}, {604, {}}, {460, {}}};
    for (const auto &[top, section] : rows)
        EXPECT_EQ(sectionInView(middles, top), section) << top;
    const double near[] = {1000, 990, 980};
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
    } rows[] = {{Automatic, true, true, Automatic}, {Automatic, false, false, Automatic}, {Automatic, true, false, Off},
                {Automatic, false, true, Intel},    {Intel, true, true, Intel},           {Intel, true, false, Off},
                {Off, true, true, Intel},           {Off, false, false, Off}};
    for (const auto &[last, machineCan, isSwitchedOn, shown] : rows)
        EXPECT_EQ(hardwareChoiceShown(last, machineCan, isSwitchedOn), shown) << int(last) << machineCan << isSwitchedOn;
}

}  // namespace kestrel
