#include "ConversionList.h"

#include "jobs/RemainingTime.h"
#include "tarnwell/HoverText.h"
#include "tarnwell/Localization.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

QString stateText(const ConversionItem &item)
{
    switch (item.state) {
        case ConversionState::Probing:
            return tarnwell::AppLocalizedString(u"Reading…"_s);
        case ConversionState::Ready:
            return tarnwell::AppLocalizedString(u"Ready"_s);
        case ConversionState::Waiting:
            return tarnwell::AppLocalizedString(u"Waiting"_s);
        case ConversionState::Converting:
            if (!item.fraction)
                return tarnwell::AppLocalizedString(u"%1 converted"_s).arg(durationText(item.processed));
            return u"%1 %"_s.arg(std::floor(*item.fraction * 100));
        case ConversionState::Done:
            return tarnwell::AppLocalizedString(u"Done"_s);
        case ConversionState::Stopped:
            return tarnwell::AppLocalizedString(u"Stopped"_s);
        case ConversionState::Unusable:
        case ConversionState::Failed:
            return tarnwell::AppLocalizedString(item.reason);
    }
    return {};
}

QString cellText(const ConversionItem &item, int column)
{
    switch (column) {
        case ConversionList::NameColumn:
            return QFileInfo(item.path).fileName();
        case ConversionList::DurationColumn:
            return item.information.duration ? durationText(*item.information.duration) : u"–"_s;
        case ConversionList::FormatColumn:
            return item.information.format.isNull() ? u"–"_s : item.information.summary();
        case ConversionList::StateColumn:
            return stateText(item);
    }
    return {};
}

QString hoverText(const ConversionItem &item, int column)
{
    if (column == ConversionList::NameColumn)
        return item.path;
    return column == ConversionList::StateColumn && item.state == ConversionState::Done ? item.outputPath
                                                                                        : cellText(item, column);
}

}  // namespace

bool ConversionItem::isIn(std::initializer_list<ConversionState> states) const
{
    return std::find(states.begin(), states.end(), state) != states.end();
}

std::optional<qint64> ConversionList::add(const QString &path)
{
    const QString canonicalPath = QFileInfo(path).canonicalFilePath();
    const QString identity = canonicalPath.isEmpty() ? path : canonicalPath;
    if (m_identities.contains(identity))
        return std::nullopt;
    beginInsertRows({}, rowCount(), rowCount());
    m_identities.insert(identity);
    Row &row = m_items.emplace_back();
    row.item.id = ++m_lastId;
    row.item.path = path;
    row.identity = identity;
    endInsertRows();
    return m_lastId;
}

void ConversionList::removeIds(const QList<qint64> &ids)
{
    QList<int> rows;
    for (const qint64 id : ids) {
        if (const int row = rowOf(id); row >= 0)
            rows.append(row);
    }
    std::sort(rows.begin(), rows.end());
    // From the back and in one go what stands together: the rows in front stay where they are.
    for (auto end = rows.cend(); end != rows.cbegin();) {
        auto begin = std::prev(end);
        while (begin != rows.cbegin() && *std::prev(begin) >= *begin - 1)
            --begin;
        removeRange(*begin, *std::prev(end));
        end = begin;
    }
    emit itemsRemoved(ids);
}

void ConversionList::removeRange(int first, int last)
{
    beginRemoveRows({}, first, last);
    const auto begin = m_items.begin() + first, end = m_items.begin() + last + 1;
    std::for_each(begin, end, [this](const Row &row) { m_identities.remove(row.identity); });
    m_items.erase(begin, end);
    endRemoveRows();
}

const ConversionItem *ConversionList::item(qint64 id) const
{
    const int row = rowOf(id);
    return row < 0 ? nullptr : &at(row);
}

void ConversionList::change(qint64 id, const std::function<void(ConversionItem &)> &edit)
{
    const int row = rowOf(id);
    if (row < 0)
        return;
    edit(m_items[size_t(row)].item);
    emit dataChanged(index(row, 0), index(row, ColumnCount - 1));
}

QList<qint64> ConversionList::idsIn(std::initializer_list<ConversionState> states) const
{
    QList<qint64> ids;
    for (const Row &row : m_items) {
        if (row.item.isIn(states))
            ids.append(row.item.id);
    }
    return ids;
}

/// Ids grow from row to row.
int ConversionList::rowOf(qint64 id) const
{
    const auto found = std::lower_bound(m_items.begin(), m_items.end(), id,
                                        [](const Row &row, qint64 key) { return row.item.id < key; });
    return found != m_items.end() && found->item.id == id ? int(found - m_items.begin()) : -1;
}

int ConversionList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_items.size());
}

int ConversionList::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ConversionList::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const ConversionItem &item = at(index.row());
    switch (role) {
        case Qt::DisplayRole:
            return cellText(item, index.column());
        case Qt::ToolTipRole:
            return tarnwell::hoverTextShowing(hoverText(item, index.column()));
        case StateRole:
            return int(item.state);
        case FractionRole:
            return item.fraction ? QVariant(*item.fraction) : QVariant();
        case ProcessedRole:
            return item.processed;
        default:
            return {};
    }
}

QVariant ConversionList::headerData(int section, Qt::Orientation orientation, int role) const
{
    static constexpr const char *titles[] = {
        QT_TRANSLATE_NOOP("TarnwellPublic", "Name"), QT_TRANSLATE_NOOP("TarnwellPublic", "Duration"),
        QT_TRANSLATE_NOOP("TarnwellPublic", "Format"), QT_TRANSLATE_NOOP("TarnwellPublic", "Status")};
    static_assert(std::size(titles) == ColumnCount);
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 || section >= ColumnCount)
        return {};
    return tarnwell::AppLocalizedString(titles[section]);
}

}  // namespace kestrel
