#pragma once

#include <QAbstractButton>
#include <QKeyEvent>

namespace kestrel::tarnwell {

/// Whether the key is one that presses a button which has the keyboard, in addition to the space bar; the button is
/// pressed then.
inline bool pressOnReturn(QAbstractButton &button, const QKeyEvent &event)
{
    if (event.key() != Qt::Key_Return && event.key() != Qt::Key_Enter)
        return false;
    if (!event.isAutoRepeat())
        button.click();
    return true;
}

}  // namespace kestrel::tarnwell
