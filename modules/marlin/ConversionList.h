#pragma once

#include "jobs/JobList.h"

#include <functional>

namespace kestrel {

class Conversions;

/// Conversions as rows: under the name stand duration and format of the source and what it becomes, and before the
/// start what will be missing from it.
class ConversionList : public JobList {
    Q_OBJECT
public:
    explicit ConversionList(Conversions &conversions, QObject *parent = nullptr);

    /// Where the small pictures of sources come from.
    void setPictures(std::function<QVariant(const JobRecord &)> pictures);
    void showPictureAgain(const QString &source);

    QVariant data(const QModelIndex &index, int role) const override;

private:
    QString warningText(const JobRecord &record) const;

    Conversions &m_conversions;
    std::function<QVariant(const JobRecord &)> m_pictures;
};

}  // namespace kestrel
