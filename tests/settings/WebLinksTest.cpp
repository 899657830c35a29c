#include "JKestrelSetting.h"

#include "ProductFolder.h"
#include "UserDefaults.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace kestrel {

TEST(WebLinksTest, trace_suffix)
{
    const struct {
        const char *name;
        QVariantMap product;
        QString tag;
        QString expected;
    } rows[] = {
        {"tag", {}, u"help"_s, u"?ttsoft=kt4kmac-6.2.1-help"_s},
        {"no tag", {}, QString(), u"?ttsoft=kt4kmac-6.2.1"_s},
        {"empty tag", {}, u""_s, u"?ttsoft=kt4kmac-6.2.1-"_s},
        {"channel", {{u"TWBuildChannel"_s, u"beta"_s}}, u"upui"_s, u"?ttsoft=kt4kmac-6.2.1-upui-beta"_s},
        {"other product", {{u"CFBundleName"_s, u"Kestrel 4K"_s}}, u"help"_s, u"?ttsoft=ktmac-6.2.1-help"_s},
    };
    for (const auto &[name, product, tag, expected] : rows) {
        SCOPED_TRACE(name);
        const test::ProductFolder folder(test::productInformation(product));
        const QTemporaryDir home;
        foundation::UserDefaults defaults(home.filePath(u"defaults.plist"_s));
        EXPECT_EQ(JKestrelSetting(defaults).traceFlags2019(tag), expected);
    }
}

TEST(WebLinksTest, redirect_link)
{
    const test::ProductFolder folder(test::productInformation());
    const QTemporaryDir home;
    foundation::UserDefaults defaults(home.filePath(u"defaults.plist"_s));
    JKestrelSetting setting(defaults);

    // The digest of this query was computed by md5sum.
    EXPECT_EQ(setting.makePHPParams(u"ins"_s, u"https://a.example/?q=1"_s),
              u"https://www.tarnwell.example/go.php?an=ktmac&cvs=6.2.1&pvs=&cb=&ev=&fui=ins&lang=en&"
              "jump=https%3A%2F%2Fa.example%2F%3Fq%3D1&h=76568474FEDF14F33E877E383634FB12"_s);

    defaults.setObject(QVariantList{u"zh-Hant"_s, u"en"_s}, u"AppleLanguages"_s);
    setting.setFirstRun(true);
    setting.setPreviousVersion(u"6.1.0"_s);
    EXPECT_TRUE(setting.makePHPParams(QString(), u"a b\"é[1]~"_s)
                    .contains(u"pvs=6.1.0&cb=&ev=ins&fui=&lang=zh-Hant&jump=a%20b%22%C3%A9%5B1%5D~&h="_s));
    EXPECT_TRUE(setting.makePHPParams(QString(), QString(QChar(0xD800))).contains(u"&jump=&h="_s));
    for (const QVariant &noLanguages : {QVariant(QVariantList()), QVariant(12)}) {
        defaults.setObject(noLanguages, u"AppleLanguages"_s);
        EXPECT_TRUE(setting.makePHPParams(QString(), QString()).contains(u"&lang=en&jump=&h="_s));
    }
}

TEST(WebLinksTest, redirect_link_names_the_other_product)
{
    const test::ProductFolder folder(test::productInformation(
        {{u"CFBundleName"_s, u"Kestrel 4K"_s}, {u"TWBuildChannel"_s, u"partner"_s}, {u"CFBundleShortVersionString"_s, {}}}));
    const QTemporaryDir home;
    foundation::UserDefaults defaults(home.filePath(u"defaults.plist"_s));
    EXPECT_TRUE(JKestrelSetting(defaults)
                    .makePHPParams(u"x"_s, QString())
                    .startsWith(u"https://www.tarnwell.example/go.php?an=kt4kmac&cvs=&pvs=&cb=partner&ev=&fui=x&"_s));
}

}  // namespace kestrel
