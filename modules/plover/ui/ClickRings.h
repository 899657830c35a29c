#pragma once

#include "modules/plover/X11Keys.h"

#include <QTimer>
#include <QWidget>

namespace kestrel {

/// A ring around the pointer while a button is held, and a moment longer: a window of its own that no click meets,
/// which recordings see. Clicks shorter than a fiftieth of a second may be missed. Shows nothing until it is started.
class ClickRings : public QWidget {
    Q_OBJECT
public:
    explicit ClickRings(const X11Keys &keys);

    void setActive(bool active);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void look();

    const X11Keys &m_keys;
    QTimer m_timer;
    int m_remaining = 0;  ///< looks until it goes
};

}  // namespace kestrel
