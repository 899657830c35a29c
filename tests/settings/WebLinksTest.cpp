#include "settings/JKestrelSetting.h"

#include "foundation/UserDefaults.h"
#include "tests/support/ProductFolder.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrel {

TEST(WebLinksTest, product_and_channel)
{
    const struct {
        QVariantMap product;
        QString tag, suffix, linkStart;
    } rows[] = {{{}, u"help"_s, u"?ttsoft=kt4kmac-6.2.1-help"_s, u"an=ktmac&cvs=6.2.1&pvs=&cb=&ev=&fui=x&lang=en&"_s},
                {{}, {}, u"?ttsoft=kt4kmac-6.2.1"_s, u"an=ktmac&"_s},
                {{}, u""_s, u"?ttsoft=kt4kmac-6.2.1-"_s, u"an=ktmac&"_s},
                {{{u"TWBuildChannel"_s, u"beta"_s}, {u"CFBundleName"_s, u"Kestrel 4K"_s}},
                 u"upui"_s,
                 u"?ttsoft=ktmac-6.2.1-upui-beta"_s,
                 u"an=kt4kmac&cvs=6.2.1&pvs=&cb=beta&"_s}};
    for (const auto &[product, tag, suffix, linkStart] : rows) {
        const test::ProductFolder folder(test::productInformation(product));
        const QTemporaryDir home;
        foundation::UserDefaults defaults(home.filePath(u"defaults.plist"_s));
        const JKestrelSetting setting(defaults);
        EXPECT_EQ(setting.traceFlags2019(tag), suffix);
        EXPECT_TRUE(
            setting.makePHPParams(u"x"_s, {}).startsWith(u"https://www.tarnwell.example/go.php?"_s + linkStart));
    }
}

TEST(WebLinksTest, redirect_link)
{
    const test::ProductFolder folder(test::productInformation());
    const QTemporaryDir home;
    foundation::UserDefaults defaults(home.filePath(u"defaults.plist"_s));
    JKestrelSetting setting(defaults);

    // The digest of this query was computed by md5sum.
    EXPECT_TRUE(setting.makePHPParams(u"ins"_s, u"https://a.example/?q=1"_s)
                    .endsWith(u"jump=https%3A%2F%2Fa.example%2F%3Fq%3D1&h=76568474FEDF14F33E877E383634FB12"_s));

    defaults.setObject(QVariantList{u"zh-Hant"_s, u"en"_s}, u"AppleLanguages"_s);
    setting.setFirstRun(true);
    setting.setPreviousVersion(u"6.1.0"_s);
    EXPECT_TRUE(setting.makePHPParams({}, u"a b\"é[1]~"_s)
                    .contains(u"pvs=6.1.0&cb=&ev=ins&fui=&lang=zh-Hant&jump=a%20b%22%C3%A9%5B1%5D~&h="_s));
    EXPECT_TRUE(setting.makePHPParams({}, QString(QChar(0xD800))).contains(u"&jump=&h="_s));
    for (const QVariant &noLanguages : {QVariant(QVariantList()), QVariant(12)}) {
        defaults.setObject(noLanguages, u"AppleLanguages"_s);
        EXPECT_TRUE(setting.makePHPParams({}, {}).contains(u"&lang=en&jump=&h="_s));
    }
}

}  // namespace kestrel
