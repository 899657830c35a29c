#pragma once

#include "EngineAnswer.h"

#include <chrono>
#include <optional>

namespace kestrel {

struct DownloadPlan;

/// What was found at addresses, on disk as long as it is fresh, so that what was looked at is not asked for again.
class AnswerStore {
public:
    explicit AnswerStore(const QString &folder) : m_folder(folder) {}

    /// Sites hand out addresses that expire: half an hour is what they leave at the least.
    static constexpr std::chrono::minutes freshness{30};

    /// Path of the film's description for the engine; null where there is none, or it is too old.
    QString fresh(const DownloadPlan &plan) const;
    enum class Age { Fresh, Any };
    std::optional<EngineAnswer> answer(const DownloadPlan &plan, Age age = Age::Fresh) const;
    /// Of a list what it tells of the films of its page, each for a plan of its own.
    void keep(const DownloadPlan &plan, const EngineAnswer &answer) const;
    void forget(const DownloadPlan &plan) const;
    /// Removes what nobody can use any more; for the start of a program.
    void sweep() const;

private:
    QString pathOf(const DownloadPlan &plan) const;
    void keepFilm(const DownloadPlan &plan, QJsonObject film) const;

    QString m_folder;
};

}  // namespace kestrel
