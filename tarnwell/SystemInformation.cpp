#include "SystemInformation.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace kestrel::tarnwell {

bool CreateDirectory(const QString &path)
{
    return !path.isEmpty() && QDir().mkpath(path);
}

}  // namespace kestrel::tarnwell
