#pragma once

#include "jobs/JobList.h"

namespace kestrel {

/// The jobs of discs as rows; their details tell how each is kept.
class DiscList final : public JobList {
    Q_OBJECT
public:
    explicit DiscList(JobQueue &queue, QObject *parent = nullptr);

    QVariant data(const QModelIndex &index, int role) const override;
};

}  // namespace kestrel
