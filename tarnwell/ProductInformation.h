#pragma once

#include <QString>

namespace kestrel::foundation {
class Bundle;
}

/// What the product is called and where it lives on the web: entries of the bundle's Info.plist. A missing entry is a
/// null string.
namespace kestrel::tarnwell {

/// The bundle that the functions below read: the running program's own unless another is installed
/// (`Installed<const foundation::Bundle>`).
const foundation::Bundle &productBundle();

QString GetApplicationName();         ///< "Kestrel Converter 4K"
QString GetAppCurrentVersion();       ///< "1.0.0"
QString GetBuildDate();               ///< "2026-11-21"
QString applicationNameAndVersion();  ///< "Kestrel Converter 4K (1.0.0)", the subject of messages to the support
QString AppGroupName();
QString AppHelpLink();
QString AppLaunchLink();        ///< the install-tracking page
QString AppReadableHomeLink();  ///< the home page as shown, without a scheme
QString AppAboutHomeLink();
QString AppSupportEmail();
QString AppUpdateXMLLink();
QString PHPRedirectLink();        ///< the redirect endpoint, without a query
QString SpecialMakeIdentifier();  ///< the build channel; null in ordinary builds

}  // namespace kestrel::tarnwell
