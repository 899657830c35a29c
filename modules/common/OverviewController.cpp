#include "OverviewController.h"

#include "LateView.h"
#include "OverviewView.h"
#include "modules/ModuleRow.h"

namespace kestrel {

OverviewController::OverviewController(const ModuleOverview &overview, const ModuleConfigure &configure)
    : m_overview(overview),
      m_settings(configure.value(moduleSettingKey.toString())),
      m_view(std::make_unique<LateView>([this] { return makeContents(); }))
{
}

OverviewController::~OverviewController() = default;

std::unique_ptr<QWidget> OverviewController::makeContents()
{
    auto contents = std::make_unique<OverviewView>(m_overview, m_settings);
    QObject::connect(contents.get(), &OverviewView::backClicked, contents.get(), [this] { doBackAction(); });
    return contents;
}

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
