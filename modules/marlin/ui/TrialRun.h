#pragma once

#include "media/TranscodeJob.h"

#include <QObject>

namespace kestrel {

/// Ten seconds of the real encode, into a folder that goes with the object.
class TrialRun : public QObject {
    Q_OBJECT
public:
    explicit TrialRun(QObject *parent = nullptr);
    ~TrialRun() override;

    /// Ends one that runs.
    void start(const TranscodePlan &plan, const MediaInformation &source, const TranscodeTools &tools, double seconds);
    void cancel();
    bool isRunning() const { return m_job != nullptr; }

signals:
    void progressed(double fraction);
    /// A null path where it failed; the sentence says why then.
    void ended(const QString &path, const QString &sentence);

private:
    WorkFolder m_folder;
    std::unique_ptr<TranscodeJob> m_job;
};

}  // namespace kestrel
