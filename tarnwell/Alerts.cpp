#include "Alerts.h"

#include "Installed.h"

namespace kestrel::tarnwell {

AlertAnswer runAlert(const Alert &alert)
{
    AlertPresenter *presenter = Installed<AlertPresenter>::current();
    return presenter ? presenter->runModal(alert) : alert.answerToEscape;
}

}  // namespace kestrel::tarnwell
