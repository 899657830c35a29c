#pragma once

#include "tarnwell/ui/JPresentWindowController.h"

#include <QDate>

#include <functional>

namespace Ui {
class JKestrelAboutController;
}

namespace kestrel {

/// The about window: what the product is called, its version, build date and copyright year, and the ways to the
/// support and to the home page. Its texts are those of the moment at which it is first shown. Main thread only.
class JKestrelAboutController final : public tarnwell::JPresentWindowController {
    Q_OBJECT
public:
    static JKestrelAboutController &loadDefaultWindowController();
    /// `today` is asked for the year of the copyright line.
    explicit JKestrelAboutController(std::function<QDate()> today = QDate::currentDate);
    ~JKestrelAboutController() override;

    void onLinkButtonAction();
    void onSendFeedbackAction();

protected:
    void windowDidLoad(QDialog *window) override;

private:
    void setup();
    void setUpTextStyles();

    std::function<QDate()> m_today;
    std::unique_ptr<Ui::JKestrelAboutController> m_form;
};

}  // namespace kestrel
