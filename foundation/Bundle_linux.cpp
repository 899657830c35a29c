#include "Bundle.h"

#include <QFile>

namespace kestrel::foundation {

QString executablePath()
{
    return QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
}

}  // namespace kestrel::foundation
