#pragma once

#include <QString>
#include <QUrl>

namespace kestrel::tarnwell {

/// Shows a page in the user's browser.
class WebOpener {
public:
    virtual ~WebOpener() = default;
    virtual bool openUrl(const QUrl &url) = 0;
};

/// Supplies the parts of links that the application knows and this framework does not.
class WebLinkDelegate {
public:
    virtual ~WebLinkDelegate() = default;
    /// What tells the web site where a visitor comes from: a query that begins with "?".
    virtual QString traceSuffix(const QString &tag) const = 0;
    /// The whole signed address that redirects to `jump`.
    virtual QString phpRedirectLink(const QString &fui, const QString &jump) const = 0;
};

/// Opens `link` with the delegate's trace suffix for `tag` (joined with "&" where the link has a query already). Only
/// http and https addresses are opened; anything else is refused and logged. Needs `Installed<WebOpener>`.
bool OpenWebsitePath(const QString &link, const QString &tag);

/// Opens the delegate's redirect link to `link`, under the same rule.
bool PHPOpenWebsite(const QString &link, const QString &fui);

/// Opens a link out of a text as it stands: http, https or mailto; anything else is refused and logged.
bool OpenLink(const QUrl &link);

/// Shows a folder in the user's file manager. False where there is no such folder.
bool OpenDirectory(const QString &path);

}  // namespace kestrel::tarnwell
