#pragma once

#include "DownloadPlan.h"
#include "EngineAnswer.h"

#include "jobs/JobList.h"

namespace kestrel {

/// What a row knows of its film beside the plan, kept with the job.
struct FilmFacts {
    QList<std::pair<int, qint64>> resolutions;  ///< lines and bytes, 0 where that is not told; highest first
    QStringList subtitles;                      ///< languages
};
FilmFacts filmFacts(const JobRecord &record);
/// Puts what was found into a job that is not active: its title, its size in the form that is wanted, its choices.
void setFilm(JobRecord &record, const EngineAnswer &answer);
/// Puts another plan into it and leaves what is known of the film.
void setDownloadPlan(JobRecord &record, const DownloadPlan &plan);

/// Downloads as rows: under the name stand server, length, form and size; while one runs, its speed and what is left.
class DownloadList : public JobList {
    Q_OBJECT
public:
    explicit DownloadList(JobQueue &queue, QObject *parent = nullptr);

    QVariant data(const QModelIndex &index, int role) const override;
};

}  // namespace kestrel
