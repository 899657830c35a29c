#include "DesktopAlertPresenter.h"

#include "AlertPanel.h"

namespace kestrel::tarnwell {

AlertAnswer DesktopAlertPresenter::runModal(const Alert &alert)
{
    AlertPanel panel(alert);
    return panel.runModal();
}

}  // namespace kestrel::tarnwell
