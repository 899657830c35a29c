#pragma once

#include "AnswerStore.h"
#include "Attempts.h"
#include "DownloadPlan.h"
#include "EngineCommand.h"
#include "EngineFailure.h"

#include <QHash>
#include <QObject>

#include <functional>
#include <memory>
#include <vector>

namespace kestrel {

/// Looks at addresses in the background, a few at a time; what was found freshly is not asked for again, and failures
/// that pass by themselves are waited out. Main thread.
class Analysis : public QObject {
    Q_OBJECT
public:
    struct Refusal {
        tarnwell::Sentence sentence;
        QString details;
        EngineFailure::Kind kind = EngineFailure::Kind::Unknown;
    };
    using Answer = foundation::Result<EngineAnswer, Refusal>;

    static constexpr int maximumAtOnce = 2;

    /// Whether failures that pass by themselves are waited out, or told at once.
    enum class Patience { WaitsOut, Tells };

    Analysis(std::function<EngineTools()> tools, const QString &answers, Patience patience = Patience::WaitsOut,
             QObject *parent = nullptr);
    ~Analysis() override;

    /// `id` is the caller's name for it. `answered` comes once, later than this returns, unless it is stopped.
    void ask(qint64 id, const DownloadPlan &plan);
    void stop(qint64 id);

signals:
    void answered(qint64 id, const kestrel::Analysis::Answer &answer);
    /// It is asked again in so many seconds; told now and then while they pass, and at 0.
    void waits(qint64 id, kestrel::EngineFailure::Kind kind, int seconds);

private:
    struct Request {
        qint64 id;
        DownloadPlan plan;
        EngineTools tools = {};
        Attempts attempts = {};
        EngineFailure::Kind failure = EngineFailure::Kind::Unknown;  ///< that is waited out
        int seconds = 0;                                             ///< still to wait
    };
    struct Run {
        Request request;
        std::unique_ptr<ToolProcess> process;
    };

    void startPending();
    void ended(qint64 id, const ToolEnding &ending);
    void tell(const Request &request, const foundation::Result<EngineAnswer, tarnwell::Sentence> &answer,
              const QString &words);
    void failed(Request request, const ToolEnding &ending);
    void waitOn();
    void secondPassed();
    /// Hands to `taker` what `reader` brings from the background, unless `id` was stopped meanwhile: some answers are
    /// megabytes.
    template <typename Reader, typename Taker>
    void read(qint64 id, Reader reader, Taker taker);

    std::function<EngineTools()> m_tools;
    AnswerStore m_answers;
    Patience m_patience;
    QList<Request> m_pending;
    QList<Request> m_waiting;
    QHash<qint64, quint64> m_readings;  ///< the number of each's reading under way
    quint64 m_lastReading = 0;
    bool m_isWaiting = false;
    std::vector<Run> m_running;
};

}  // namespace kestrel
