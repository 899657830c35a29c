#pragma once

#include "tarnwell/WebPages.h"

namespace kestrel::tarnwell {

/// Hands addresses to the desktop's own choice of program, without waiting for it.
class DesktopWebOpener : public WebOpener {
public:
    bool openUrl(const QUrl &url) override;
};

}  // namespace kestrel::tarnwell
