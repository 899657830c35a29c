#pragma once

#include "tarnwell/SystemInformation.h"
#include "tarnwell/ui/TitledWindow.h"

#include <optional>

namespace kestrel {

/// Continues the home screen's background picture into the title bar: draws the top strip of "kestrel_bg" over its
/// whole area.
class _JKestrelTitleView : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *event) override;
};

/// The home window: its title bar carries the background picture and never a title; it moves by dragging it anywhere.
class _JKestrelWindow : public tarnwell::TitledWindow {
    Q_OBJECT
public:
    using TitledWindow::TitledWindow;

    /// In points: 30 from system version 10.16 on, else 22, also where the version is not known.
    static double titleBarHeightFor(const std::optional<tarnwell::SystemVersion> &version);

    void makeInit();
    /// The home window has no title text: the argument is not shown.
    void setTitle(const QString &title);
};

}  // namespace kestrel
