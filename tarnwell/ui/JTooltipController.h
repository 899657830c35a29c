#pragma once

#include <QObject>

class QWidget;

namespace kestrel::tarnwell {

/// Keeps the tooltips of the windows that it is handed to the time in which their window has the keyboard: they go when
/// it loses it, and none opens until it has it again.
class JTooltipController : public QObject {
    Q_OBJECT
public:
    static JTooltipController &Instance();

    /// The window stays with its owner, and may go at any time.
    void addWindow(QWidget *window);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QList<QWidget *> m_windows;
};

}  // namespace kestrel::tarnwell
