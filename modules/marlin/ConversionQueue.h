#pragma once

#include "ConversionJob.h"
#include "ConversionList.h"
#include "jobs/RemainingTime.h"

#include <QElapsedTimer>

namespace kestrel {

/// What holds for every file of a run, taken from the settings when it begins.
struct ConversionPlan {
    QString transcoderPath;
    const ConversionTarget *target = nullptr;
    TranscodeOptions options;
    QString folder;
};

struct ConversionProgress {
    /// Of the whole run, 0 to 1; it only grows. Nothing where no file tells its duration.
    std::optional<double> fraction;
    int position = 0;  ///< of the file under way, from 1
    int count = 0;
    std::optional<double> remainingSeconds;
};

/// Converts files of the list one after another and keeps their rows up to date. Files that come while it runs wait for
/// the next run.
class ConversionQueue : public QObject {
    Q_OBJECT
public:
    explicit ConversionQueue(ConversionList &list, QObject *parent = nullptr);
    ~ConversionQueue() override;

    /// The files that a run would convert now.
    QList<qint64> convertibleIds() const;
    bool isRunning() const { return m_isRunning; }
    /// Of the latest run.
    const ConversionPlan &plan() const { return m_plan; }
    /// Nothing happens while it runs, or where there is nothing to convert.
    void start(const ConversionPlan &plan);
    void cancel();

signals:
    void started();
    void progressed(const ConversionProgress &progress);
    /// The run has ended, with `succeeded` files converted.
    void finished(int succeeded, bool isCancelled);

private:
    void startNext();
    void startJob(const ConversionItem &item);
    void jobProgressed(std::optional<double> fraction, double processed);
    void jobFinished(const ConversionResult &result);
    void finish();
    void report();
    double weightOf(qint64 id) const;

    ConversionList &m_list;
    ConversionPlan m_plan;
    QList<qint64> m_ids;     ///< of the run
    qsizetype m_index = -1;  ///< of the file under way
    double m_totalWeight = 0;
    double m_doneWeight = 0;
    double m_unknownWeight = 1;
    double m_currentFraction = 0;
    bool m_isMeasurable = false;
    int m_succeeded = 0;
    bool m_isRunning = false;
    bool m_isCancelled = false;
    std::unique_ptr<ConversionJob> m_job;
    RemainingTime m_remaining;
    QElapsedTimer m_elapsed;
};

}  // namespace kestrel
