#include "ProductInformation.h"

#include "Installed.h"
#include "foundation/Bundle.h"

using namespace Qt::StringLiterals;

namespace kestrel::tarnwell {

const foundation::Bundle &productBundle()
{
    const auto *installed = Installed<const foundation::Bundle>::current();
    return installed ? *installed : foundation::Bundle::main();
}

QString GetApplicationName()
{
    return productBundle().infoString(u"CFBundleName"_s);
}

QString GetAppCurrentVersion()
{
    return productBundle().infoString(u"CFBundleShortVersionString"_s);
}

QString GetBuildDate()
{
    return productBundle().infoString(u"TWBuildDate"_s);
}

QString applicationNameAndVersion()
{
    return u"%1 (%2)"_s.arg(GetApplicationName(), GetAppCurrentVersion());
}

QString AppGroupName()
{
    return productBundle().infoString(u"TWGroupName"_s);
}

QString AppHelpLink()
{
    return productBundle().infoString(u"TWHelpLink"_s);
}

QString AppLaunchLink()
{
    return productBundle().infoString(u"TWLaunchLink"_s);
}

QString AppReadableHomeLink()
{
    return productBundle().infoString(u"TWReadableHomeLink"_s);
}

QString AppAboutHomeLink()
{
    return productBundle().infoString(u"TWAboutHomeLink"_s);
}

QString AppSupportEmail()
{
    return productBundle().infoString(u"TWSupportEmail"_s);
}

QString AppUpdateXMLLink()
{
    return productBundle().infoString(u"TWUpdateXMLLink"_s);
}

QString PHPRedirectLink()
{
    return productBundle().infoString(u"TWRedirectLink"_s);
}

QString SpecialMakeIdentifier()
{
    return productBundle().infoString(u"TWBuildChannel"_s);
}

}  // namespace kestrel::tarnwell
