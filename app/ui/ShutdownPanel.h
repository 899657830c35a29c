#pragma once

#include <QObject>

#include <memory>

namespace kestrel::tarnwell {
class AlertPanel;
}

namespace kestrel {

class ProgramJobs;

/// Counts down, over all windows and without holding any of them, to the machine's being shut down after the jobs. Its
/// one button stops that, and so does closing it.
class ShutdownPanel : public QObject {
    Q_OBJECT
public:
    /// `jobs` outlives it.
    explicit ShutdownPanel(ProgramJobs &jobs);
    ~ShutdownPanel() override;

    tarnwell::AlertPanel *panel() const { return m_panel.get(); }  ///< null while nothing is counted

private:
    void show(int seconds);

    ProgramJobs &m_jobs;
    std::unique_ptr<tarnwell::AlertPanel> m_panel;
};

}  // namespace kestrel
