#include "SystemInformation.h"

#include "Installed.h"
#include "foundation/StandardFolders.h"

#include <QDir>

namespace kestrel::tarnwell {

std::optional<SystemVersion> GetSystemVersion2()
{
    const auto *reported = Installed<const ReportedSystemVersion>::current();
    return reported ? reported->version : platformSystemVersion();
}

QString GetApplicationSupportDir()
{
    return foundation::dataDirectory();
}

bool CreateDirectory(const QString &path)
{
    return !path.isEmpty() && QDir().mkpath(path);
}

}  // namespace kestrel::tarnwell
