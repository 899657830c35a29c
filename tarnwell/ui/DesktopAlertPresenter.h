#pragma once

#include "tarnwell/Alerts.h"

namespace kestrel::tarnwell {

/// Shows alerts as modal panels in the middle of the active window, of the screen where there is none.
class DesktopAlertPresenter : public AlertPresenter {
public:
    AlertAnswer runModal(const Alert &alert) override;
};

}  // namespace kestrel::tarnwell
