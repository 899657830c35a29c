#pragma once

#include "modules/Module.h"

namespace kestrel {

class LateView;

/// The texts and the picture of a module that is still to come: English keys, a null line is left out.
struct ModuleOverview {
    ModuleSettingKind kind;
    const char *image;
    const char *headline;
    const char *plans[3];
};

/// A module without an engine: it says what it will do and where its output will go, and leads back.
class OverviewController : public ModuleController {
public:
    OverviewController(const ModuleOverview &overview, const ModuleConfigure &configure);
    ~OverviewController() override;

    void setCompletedHandler(CompletedHandler handler) override;
    QWidget *view() override;
    QString windowTitle() const override;
    void doBackAction() override;
    bool shouldTerminate() override;

private:
    std::unique_ptr<QWidget> makeContents();

    const ModuleOverview &m_overview;
    CompletedHandler m_completedHandler;
    std::shared_ptr<JKestrelSettingDispatcher> m_settings;
    std::unique_ptr<LateView> m_view;
};

}  // namespace kestrel
