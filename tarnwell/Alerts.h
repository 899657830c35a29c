#pragma once

#include <QString>

namespace kestrel::tarnwell {

enum class AlertStyle { Informational, Warning, Critical };
/// `None` where the application's end or the desktop takes the alert away: the user has not answered.
enum class AlertAnswer { Default, Alternate, None };

/// A question or a message over all windows. The texts are shown as they are: plain, already localised. A null
/// `alternateButton` leaves that button out. Escape answers as `answerToEscape` says, or as the only button.
struct Alert {
    QString message;
    QString defaultButton;
    QString alternateButton;
    QString informativeText;
    AlertStyle style = AlertStyle::Informational;
    AlertAnswer answerToEscape = AlertAnswer::Alternate;  ///< the one that does no harm
    bool operator==(const Alert &) const = default;
};

class AlertPresenter {
public:
    virtual ~AlertPresenter() = default;
    /// Runs modally until the user has answered.
    virtual AlertAnswer runModal(const Alert &alert) = 0;
};

/// Asks through the installed presenter (`Installed<AlertPresenter>`); without one the answer is that of Escape.
AlertAnswer runAlert(const Alert &alert);

}  // namespace kestrel::tarnwell
