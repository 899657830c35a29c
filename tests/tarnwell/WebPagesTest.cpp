#include "tarnwell/Installed.h"
#include "tarnwell/WebPages.h"

#include <QMap>

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
    QString traceSuffix(const QString &tag) const override { return u"?from="_s + tag; }
    QString phpRedirectLink(const QString &fui, const QString &jump) const override
    {
        return u"https://go.example/?fui=%1&jump="_s.arg(fui) + QString::fromLatin1(QUrl::toPercentEncoding(jump));
    }
};

TEST(WebPages, JoinOrRefuseLinks)
{
    RecordingOpener opener;
    EXPECT_FALSE(PHPOpenWebsite(u"https://a.example"_s, u"f"_s));
    const Installed<WebOpener> installedOpener(opener);
    Delegate delegate;
    const Installed<WebLinkDelegate> installedDelegate(delegate);
    const QMap<QString, QString> rows = {{u"https://a.example/x"_s, u"https://a.example/x?from=menu"_s},
                                         {u"http://a.example/x?a=1"_s, u"http://a.example/x?a=1&from=menu"_s},
                                         {u"http://a.example/?a=?&b"_s, u"http://a.example/?a=?&b&from=menu"_s},
                                         {u"http://a.example/x#a?b"_s, u"http://a.example/x?from=menu#a?b"_s},
                                         {u"file:///etc/passwd"_s, {}},
                                         {u"javascript:alert(1)"_s, {}},
                                         {u"http:///x"_s, {}},
                                         {u"a.example"_s, {}},
                                         {u"http://a.example:port/"_s, {}}};
    for (auto row = rows.begin(); row != rows.end(); ++row) {
        opener.opened.clear();
        EXPECT_EQ(OpenWebsitePath(row.key(), u"menu"_s), !row.value().isEmpty()) << qPrintable(row.key());
        EXPECT_EQ(opener.opened, row.value());
    }
    for (const QString &link : {u"https://a.example/x?a=%20"_s, u"mailto:a@b.example"_s}) {
        EXPECT_TRUE(OpenLink(QUrl(link)));
        EXPECT_EQ(opener.opened, link) << "as it stands";
    }
    for (const QString &link : {u"file:///etc/passwd"_s, u"mailto:"_s, u"x"_s})
        EXPECT_FALSE(OpenLink(QUrl(link))) << qPrintable(link);
    EXPECT_TRUE(PHPOpenWebsite(u"https://a.example/?b"_s, u"f"_s));
    EXPECT_EQ(opener.opened, u"https://go.example/?fui=f&jump=https%3A%2F%2Fa.example%2F%3Fb"_s);
    EXPECT_TRUE(OpenDirectory(u"/proc"_s));
    EXPECT_EQ(opener.opened, u"file:///proc"_s);
    EXPECT_FALSE(OpenDirectory(u"/proc/missing"_s));
}

}  // namespace
