#include "OverviewController.h"

#include "OverviewView.h"
#include "modules/ModuleRow.h"

namespace kestrel {

OverviewController::OverviewController(const ModuleOverview &overview, const ModuleConfigure &configure)
    : m_overview(overview),
      m_view(std::make_unique<OverviewView>(overview, configure.value(moduleSettingKey.toString())))
{
    QObject::connect(m_view.get(), &OverviewView::backClicked, m_view.get(), [this] { doBackAction(); });
}

OverviewController::~OverviewController() = default;

void OverviewController::setCompletedHandler(CompletedHandler handler)
{
    m_completedHandler = std::move(handler);
}

QWidget *OverviewController::view()
{
    return m_view.get();
}

QString OverviewController::windowTitle() const
{
    return moduleRows()[m_overview.kind].title.localized();
}

void OverviewController::doBackAction()
{
    if (m_completedHandler)
        m_completedHandler(this);
}

bool OverviewController::shouldTerminate()
{
    return true;
}

}  // namespace kestrel
