#include "DesktopWebOpener.h"

#include <QDesktopServices>

namespace kestrel::tarnwell {

bool DesktopWebOpener::openUrl(const QUrl &url)
{
    return QDesktopServices::openUrl(url);
}

}  // namespace kestrel::tarnwell
