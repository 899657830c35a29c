#pragma once

#include "jobs/AfterRun.h"
#include "modules/Module.h"

#include <QObject>

#include <functional>
#include <memory>

namespace kestrel {

class JKestrelSetting;
class JobStore;

/// What the settings say at this moment.
AfterRun::Wishes wishesOf(const JKestrelSetting &setting);

/// The jobs of the program: their store, the queue, and what happens after its runs. All of it is made when a module
/// asks for the queue first. Main thread only.
class ProgramJobs final : public QObject, public ModuleServices {
    Q_OBJECT
public:
    /// `openStore` may answer null: nothing is kept then.
    ProgramJobs(std::function<std::unique_ptr<JobStore>()> openStore,
                std::function<AfterRun::Wishes(const QString &module)> wishes);
    ~ProgramJobs() override;

    JobQueue &queue() override;
    void openInConverter(const QStringList &paths) override { emit conversionRequested(paths); }
    bool hasWork() const;
    /// Ends what runs at once, to be offered again by the next run of the program; all is on the disk when this
    /// returns.
    void interrupt();
    void stopShutdown();

signals:
    void shutdownIn(int seconds);
    void showRequested(const QString &module);
    void conversionRequested(const QStringList &paths);

private:
    struct Parts;

    std::function<std::unique_ptr<JobStore>()> m_openStore;
    std::function<AfterRun::Wishes(const QString &module)> m_wishes;
    std::unique_ptr<Parts> m_parts;
};

}  // namespace kestrel
