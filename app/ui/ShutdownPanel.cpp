#include "ShutdownPanel.h"

#include "app/ProgramJobs.h"
#include "tarnwell/Localization.h"
#include "tarnwell/ui/AlertPanel.h"

using namespace Qt::StringLiterals;
using kestrel::tarnwell::AppLocalizedString;

namespace kestrel {

ShutdownPanel::ShutdownPanel(ProgramJobs &jobs) : m_jobs(jobs)
{
    connect(&jobs, &ProgramJobs::shutdownIn, this, &ShutdownPanel::show);
}

ShutdownPanel::~ShutdownPanel() = default;

void ShutdownPanel::show(int seconds)
{
    if (seconds < 0) {
        // It may be the panel's own button that stopped it.
        if (m_panel)
            m_panel.release()->deleteLater();
        return;
    }
    const QString message = AppLocalizedString(u"The computer will shut down in %1 seconds."_s).arg(seconds);
    if (m_panel) {
        m_panel->setMessage(message);
        return;
    }
    m_panel = std::make_unique<tarnwell::AlertPanel>(
        tarnwell::Alert{.message = message,
                        .defaultButton = AppLocalizedString(u"Don't Shut Down"_s),
                        .alternateButton = {},
                        .informativeText = AppLocalizedString(u"All jobs are done."_s),
                        .style = tarnwell::AlertStyle::Warning});
    connect(m_panel.get(), &QDialog::finished, &m_jobs, &ProgramJobs::stopShutdown);
    m_panel->showBeside();
}

}  // namespace kestrel
