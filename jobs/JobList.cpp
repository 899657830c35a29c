#include "JobList.h"

#include "JobQueue.h"
#include "JobText.h"
#include "tarnwell/HoverText.h"

#include <QCoreApplication>
#include <QMimeData>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::operator""_key;

namespace {

constexpr QLatin1StringView jobsMimeType("application/x-kestrel-jobs");

QString cellText(const JobRecord &record, int column)
{
    switch (column) {
        case JobList::TitleColumn:
            return record.title;
        case JobList::DetailColumn:
            return record.source;
        case JobList::StateColumn:
            return jobStateText(record);
        default:
            return {};
    }
}

QString hoverText(const JobRecord &record, int column)
{
    switch (column) {
        case JobList::TitleColumn:  // which stands for the row where a list shows but one column
            return record.source + u'\n' + jobStateHoverText(record);
        case JobList::DetailColumn:
            return record.source;
        case JobList::StateColumn:
            return jobStateHoverText(record);
        default:
            return {};
    }
}

}  // namespace

JobList::JobList(JobQueue &queue, const QString &module, QObject *parent)
    : QAbstractTableModel(parent),
      m_queue(queue),
      m_module(module)
{
    followChanges();
    followReordering();
}

void JobList::followChanges()
{
    connect(&m_queue, &JobQueue::changed, this, [this](JobId id) {
        if (const int row = rowOf(id); row >= 0)
            emit dataChanged(index(row, 0), index(row, columnCount() - 1));
    });
    connect(&m_queue, &JobQueue::aboutToInsert, this, [this](const QString &module, int row, int count) {
        if (module == m_module)
            beginInsertRows({}, row, row + count - 1);
    });
    connect(&m_queue, &JobQueue::inserted, this, [this](const QString &module) {
        if (module == m_module)
            endInsertRows();
    });
    connect(&m_queue, &JobQueue::aboutToRemove, this, [this](const QString &module, int row, int count) {
        if (module == m_module)
            beginRemoveRows({}, row, row + count - 1);
    });
    connect(&m_queue, &JobQueue::removed, this, [this](const QString &module) {
        if (module == m_module)
            endRemoveRows();
    });
}

void JobList::followReordering()
{
    connect(&m_queue, &JobQueue::aboutToMove, this, [this](const QString &module, int row, int count, int to) {
        if (module == m_module)
            beginMoveRows({}, row, row + count - 1, {}, to);
    });
    connect(&m_queue, &JobQueue::moved, this, [this](const QString &module) {
        if (module == m_module)
            endMoveRows();
    });
    connect(&m_queue, &JobQueue::aboutToReorder, this, [this](const QString &module) {
        if (module != m_module)
            return;
        emit layoutAboutToBeChanged({}, VerticalSortHint);
        m_idsOfIndexes.clear();
        for (const QModelIndex &persistent : persistentIndexList())
            m_idsOfIndexes.append(idAt(persistent.row()));
    });
    connect(&m_queue, &JobQueue::reordered, this, [this](const QString &module) {
        if (module != m_module)
            return;
        const QModelIndexList former = persistentIndexList();
        QModelIndexList present;
        for (qsizetype i = 0; i < former.size(); ++i)
            present.append(index(rowOf(m_idsOfIndexes.at(i)), former.at(i).column()));
        changePersistentIndexList(former, present);
        emit layoutChanged({}, VerticalSortHint);
    });
}

JobId JobList::idAt(int row) const
{
    return m_queue.order(m_module).value(row, 0);
}

int JobList::rowOf(JobId id) const
{
    const JobRecord *record = m_queue.record(id);
    return record && record->module == m_module ? m_queue.rowOf(id) : -1;
}

const JobRecord &JobList::recordAt(int row) const
{
    return *m_queue.record(m_queue.order(m_module).at(row));
}

int JobList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_queue.order(m_module).size());
}

int JobList::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

void JobList::setPictures(std::function<QVariant(const JobRecord &)> pictures)
{
    m_pictures = std::move(pictures);
}

void JobList::showPicturesAgain()
{
    if (rowCount() > 0)
        emit dataChanged(index(0, TitleColumn), index(rowCount() - 1, TitleColumn), {Qt::DecorationRole});
}

QVariant JobList::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const JobRecord &record = recordAt(index.row());
    switch (role) {
        case Qt::DisplayRole:
            return cellText(record, index.column());
        case Qt::ToolTipRole:
            return tarnwell::hoverTextShowing(hoverText(record, index.column()));
        case Qt::DecorationRole:
            return index.column() == TitleColumn && m_pictures ? m_pictures(record) : QVariant();
        case Qt::AccessibleTextRole:
            return accessibleText(index);
        case WarningRole:
            return warningText(record);
        case IdRole:
            return record.id;
        case StateRole:
            return int(record.state);
        case FractionRole:
            return record.progress.fraction ? QVariant(*record.progress.fraction) : QVariant();
        case RecordRole:
            return QVariant::fromValue(record);
        default:
            return {};
    }
}

QString JobList::warningText(const JobRecord &record) const
{
    if (isActive(record.state))
        return record.note.localized();
    const bool isMade = record.state == JobState::Done || record.state == JobState::DoneWithProblems;
    if (!isMade || record.outcome.leftOut.isEmpty())
        return {};
    QStringList leftOut;
    for (const tarnwell::Sentence &sentence : record.outcome.leftOut)
        leftOut.append(sentence.localized());
    return tarnwell::Sentence("Left out: %1"_key, {leftOut.join(u' ')}).localized();
}

/// A row is heard as a whole: lists of one column show but the title.
QString JobList::accessibleText(const QModelIndex &index) const
{
    if (index.column() != TitleColumn)
        return data(index, Qt::DisplayRole).toString();
    QStringList parts;
    for (int column = 0; column < ColumnCount; ++column)
        parts.append(data(index.siblingAtColumn(column), Qt::DisplayRole).toString());
    parts.append(data(index, WarningRole).toString());
    parts.removeAll(QString());
    return parts.join(u", "_s);
}

QVariant JobList::headerData(int section, Qt::Orientation orientation, int role) const
{
    static constexpr tarnwell::TextKey titles[] = {"Name"_key, "Source"_key, "Status"_key};
    static_assert(std::size(titles) == ColumnCount);
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= ColumnCount)
        return {};
    return titles[section].localized();
}

Qt::ItemFlags JobList::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    // Between the rows, not onto them.
    return index.isValid() ? (flags | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren) : Qt::ItemIsDropEnabled;
}

Qt::DropActions JobList::supportedDropActions() const
{
    return Qt::CopyAction;
}

QStringList JobList::mimeTypes() const
{
    return {jobsMimeType, u"text/uri-list"_s};
}

/// Rows of another list, or of another Kestrel's, cannot be put into this one.
QByteArray JobList::listIdentity() const
{
    return QByteArray::number(QCoreApplication::applicationPid()) + '/' + m_module.toUtf8() + '/';
}

QMimeData *JobList::mimeData(const QModelIndexList &indexes) const
{
    QList<int> rows;
    for (const QModelIndex &index : indexes)
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    QByteArrayList ids;
    QList<QUrl> urls;
    for (const int row : std::as_const(rows)) {
        const JobRecord &record = recordAt(row);
        ids.append(QByteArray::number(record.id));
        if (record.state != JobState::Done && record.state != JobState::DoneWithProblems)
            continue;
        for (const QString &output : record.outcome.outputs)
            urls.append(QUrl::fromLocalFile(output));
    }
    if (ids.isEmpty())
        return nullptr;
    auto data = std::make_unique<QMimeData>();
    data->setData(jobsMimeType, listIdentity() + ids.join(','));
    if (!urls.isEmpty())
        data->setUrls(urls);
    return data.release();
}

bool JobList::canDropMimeData(const QMimeData *data, Qt::DropAction, int, int, const QModelIndex &) const
{
    return data->data(jobsMimeType).startsWith(listIdentity());
}

bool JobList::dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column, const QModelIndex &parent)
{
    if (action == Qt::IgnoreAction || !canDropMimeData(data, action, row, column, parent))
        return false;
    QList<JobId> ids;
    for (const QByteArray &id : data->data(jobsMimeType).mid(listIdentity().size()).split(','))
        ids.append(id.toLongLong());
    m_queue.move(ids, idAt(parent.isValid() ? parent.row() : row));
    return true;
}

}  // namespace kestrel
