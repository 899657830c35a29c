#include "Installed.h"
#include "WebPages.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace kestrel::tarnwell;

namespace {

class RecordingOpener : public WebOpener {
public:
    bool openUrl(const QUrl &url) override
    {
        opened = url.toString(QUrl::FullyEncoded);
        return true;
    }
    QString opened;
};

class Delegate : public WebLinkDelegate {
public:
    QString traceSuffix(const QString &tag) const override { return tag.isNull() ? QString() : u"?from="_s + tag; }
    QString phpRedirectLink(const QString &fui, const QString &jump) const override
    {
        return u"https://go.example/?fui="_s + fui + u"&jump="_s + QString::fromLatin1(QUrl::toPercentEncoding(jump));
    }
};

struct LinkCase {
    const char *name;
    const char *link;
    const char *opened;  ///< empty where it is refused
};

void PrintTo(const LinkCase &row, std::ostream *out)
{
    *out << row.name;
}

class WebsitePath : public testing::TestWithParam<LinkCase> {};

TEST_P(WebsitePath, OpensOrRefuses)
{
    RecordingOpener opener;
    const Installed<WebOpener> installedOpener(opener);
    Delegate delegate;
    const Installed<WebLinkDelegate> installedDelegate(delegate);
    EXPECT_EQ(OpenWebsitePath(QString::fromUtf8(GetParam().link), u"menu"_s), *GetParam().opened != '\0');
    EXPECT_EQ(opener.opened, QString::fromUtf8(GetParam().opened));
}

INSTANTIATE_TEST_SUITE_P(
    WebPages, WebsitePath,
    testing::Values(LinkCase{"plain", "https://a.example/x", "https://a.example/x?from=menu"},
                    LinkCase{"query", "http://a.example/x?a=1", "http://a.example/x?a=1&from=menu"},
                    LinkCase{"fragment", "http://a.example/x#top", "http://a.example/x?from=menu#top"},
                    LinkCase{"query_in_fragment", "http://a.example/x#a?b", "http://a.example/x?from=menu#a?b"},
                    LinkCase{"capitals", "HTTPS://a.example", "https://a.example?from=menu"},
                    LinkCase{"file", "file:///etc/passwd", ""}, LinkCase{"script", "javascript:alert(1)", ""},
                    LinkCase{"no_host", "http:///x", ""}, LinkCase{"no_scheme", "a.example", ""},
                    LinkCase{"broken", "http://a.example:port/", ""}, LinkCase{"empty", "", ""}),
    [](const auto &row) { return row.param.name; });

TEST(WebPages, RedirectAndFolders)
{
    RecordingOpener opener;
    EXPECT_FALSE(PHPOpenWebsite(u"https://a.example"_s, u"f"_s));
    const Installed<WebOpener> installedOpener(opener);
    EXPECT_TRUE(OpenWebsitePath(u"https://a.example"_s, u"menu"_s));
    EXPECT_EQ(opener.opened, u"https://a.example"_s);
    Delegate delegate;
    const Installed<WebLinkDelegate> installedDelegate(delegate);
    EXPECT_TRUE(PHPOpenWebsite(u"https://a.example/?b"_s, u"f"_s));
    EXPECT_EQ(opener.opened, u"https://go.example/?fui=f&jump=https%3A%2F%2Fa.example%2F%3Fb"_s);

    const QTemporaryDir folder;
    EXPECT_TRUE(OpenDirectory(folder.path()));
    EXPECT_EQ(opener.opened, QUrl::fromLocalFile(folder.path()).toString());
    EXPECT_FALSE(OpenDirectory(folder.filePath(u"missing"_s)));
    EXPECT_FALSE(OpenDirectory({}));
}

}  // namespace
