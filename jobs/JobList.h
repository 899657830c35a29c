#pragma once

#include "JobRecord.h"

#include <QAbstractTableModel>

#include <functional>

namespace kestrel {

class JobQueue;

/// The jobs of one module as rows for a view: what the queue knows, nothing of its own. Modules that have more to show
/// derive from it and override `data` for columns of theirs.
class JobList : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { TitleColumn, DetailColumn, StateColumn, ColumnCount };
    /// Warning: what will be missing from the result or is, or what is to be known of the run, in a line.
    enum Role { IdRole = Qt::UserRole, StateRole, FractionRole, RecordRole, WarningRole };

    JobList(JobQueue &queue, const QString &module, QObject *parent = nullptr);

    /// Where the small pictures of the rows come from: a pixmap, or nothing while there is none.
    void setPictures(std::function<QVariant(const JobRecord &)> pictures);
    void showPicturesAgain();

    JobId idAt(int row) const;  ///< 0 where there is none
    int rowOf(JobId id) const;  ///< -1 where there is none

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    // Rows are dragged within the list to change their order, and results out of it as files. Always as copies: who
    // takes a result must not take it away.
    Qt::DropActions supportedDropActions() const override;
    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    bool canDropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                         const QModelIndex &parent) const override;
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;

protected:
    virtual QString warningText(const JobRecord &record) const;
    const JobRecord &recordAt(int row) const;
    JobQueue &queue() const { return m_queue; }

private:
    void followChanges();
    void followReordering();
    QByteArray listIdentity() const;
    QString accessibleText(const QModelIndex &index) const;

    JobQueue &m_queue;
    QString m_module;
    std::function<QVariant(const JobRecord &)> m_pictures;
    QList<JobId> m_idsOfIndexes;  ///< of the persistent ones, while rows are reordered
};

}  // namespace kestrel
