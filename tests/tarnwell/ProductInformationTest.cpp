#include "ProductFolder.h"
#include "ProductInformation.h"
#include "SystemInformation.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace kestrel::tarnwell;

namespace {

TEST(ProductInformation, ComesFromTheInstalledBundle)
{
    EXPECT_TRUE(GetApplicationName().isNull());  // the tests are no bundle
    const kestrel::test::ProductFolder product({{u"CFBundleName"_s, u"Merlin"_s},
                                                {u"TWHelpLink"_s, u"http://127.0.0.1:8080/help"_s},
                                                {u"TWBuildDate"_s, 7},
                                                {u"TWBuildChannel"_s, QString(u""_s)}});
    EXPECT_EQ(GetApplicationName(), u"Merlin"_s);
    EXPECT_EQ(AppHelpLink(), u"http://127.0.0.1:8080/help"_s);
    EXPECT_TRUE(GetBuildDate().isNull());  // not a text
    EXPECT_TRUE(PHPRedirectLink().isNull());
}

TEST(SystemInformation, FoldersFollowTheEnvironment)
{
    EXPECT_EQ(GetApplicationSupportDir(), qEnvironmentVariable("XDG_DATA_HOME"));
    const QByteArray before = qgetenv("XDG_STATE_HOME");
    for (const char *ignored : {"", "relative/path"}) {
        qputenv("XDG_STATE_HOME", ignored);
        EXPECT_EQ(stateDirectory(), QDir::homePath() + u"/.local/state"_s) << ignored;
    }
    qputenv("XDG_STATE_HOME", before);

    const QString folder = stateDirectory() + u"/one/two"_s;
    EXPECT_TRUE(CreateDirectory(folder));
    EXPECT_TRUE(CreateDirectory(folder));
    EXPECT_FALSE(CreateDirectory({}));
    EXPECT_FALSE(CreateDirectory(u"/proc/one"_s));
}

}  // namespace
