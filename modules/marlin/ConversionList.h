#pragma once

#include "jobs/JobList.h"

namespace kestrel {

class Conversions;

/// Conversions as rows: under the name stand duration and format of the source and what it becomes, and before the
/// start what will be missing from it.
class ConversionList : public JobList {
    Q_OBJECT
public:
    explicit ConversionList(Conversions &conversions, QObject *parent = nullptr);

    QVariant data(const QModelIndex &index, int role) const override;

private:
    QString warningText(const JobRecord &record) const override;

    Conversions &m_conversions;
};

}  // namespace kestrel
