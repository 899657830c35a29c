#include "WebPages.h"

#include "Installed.h"
#include "Log.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kestrel::tarnwell {

namespace {

bool openPage(const QString &address)
{
    const QUrl url(address, QUrl::StrictMode);
    const bool isWebPage = (url.scheme() == "http"_L1 || url.scheme() == "https"_L1) && !url.host().isEmpty();
    if (!url.isValid() || !isWebPage) {
        DNFootLog(u"Refused to open \"%1\": not an http or https address"_s, address);
        return false;
    }
    WebOpener *opener = Installed<WebOpener>::current();
    return opener && opener->openUrl(url);
}

/// `suffix` is a query that begins with "?".
QString withSuffix(const QString &link, const QString &suffix)
{
    const qsizetype fragmentStart = link.indexOf(u'#');
    const QString page = link.left(fragmentStart);
    const QString fragment = fragmentStart < 0 ? QString() : link.mid(fragmentStart);
    const bool hasQuery = page.contains(u'?');
    return page + (hasQuery && suffix.startsWith(u'?') ? u'&' + suffix.mid(1) : suffix) + fragment;
}

}  // namespace

bool OpenWebsitePath(const QString &link, const QString &tag)
{
    const WebLinkDelegate *delegate = Installed<WebLinkDelegate>::current();
    return openPage(delegate ? withSuffix(link, delegate->traceSuffix(tag)) : link);
}

bool PHPOpenWebsite(const QString &link, const QString &fui)
{
    const WebLinkDelegate *delegate = Installed<WebLinkDelegate>::current();
    return openPage(delegate ? delegate->phpRedirectLink(fui, link) : link);
}

bool OpenLink(const QUrl &link)
{
    if (link.scheme() != "mailto"_L1)
        return openPage(link.toString(QUrl::FullyEncoded));
    WebOpener *opener = Installed<WebOpener>::current();
    return opener && link.isValid() && !link.path().isEmpty() && opener->openUrl(link);
}

bool OpenDirectory(const QString &path)
{
    WebOpener *opener = Installed<WebOpener>::current();
    return opener && QFileInfo(path).isDir() && opener->openUrl(QUrl::fromLocalFile(path));
}

}  // namespace kestrel::tarnwell
