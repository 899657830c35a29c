#pragma once

#include "jobs/JobList.h"

namespace kestrel {

/// Conversions as rows: under the name stand duration and format of the source and what it becomes.
class ConversionList : public JobList {
    Q_OBJECT
public:
    explicit ConversionList(JobQueue &queue, QObject *parent = nullptr);

    QVariant data(const QModelIndex &index, int role) const override;
};

}  // namespace kestrel
