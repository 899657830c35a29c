#pragma once

#include "tarnwell/Alerts.h"

#include <QDialog>

#include <memory>

namespace Ui {
class AlertPanel;
}

namespace kestrel::tarnwell {

/// One alert as a panel: icon, message, informative text, the default button at the right and the alternate one beside
/// it. As wide as its texts ask for within limits, and never narrower than its buttons.
class AlertPanel : public QDialog {
    Q_OBJECT
public:
    explicit AlertPanel(const Alert &alert);
    ~AlertPanel() override;

    AlertAnswer runModal();
    /// Shows it without holding up the other windows; any answer closes it.
    void showBeside();
    void setMessage(const QString &message);

protected:
    void closeEvent(QCloseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void setTexts(const Alert &alert);
    void fitWidth();
    void placeOver(QWidget *window);

    std::unique_ptr<Ui::AlertPanel> m_ui;
    AlertAnswer m_answerToEscape;
};

}  // namespace kestrel::tarnwell
