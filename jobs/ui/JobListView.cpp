#include "JobListView.h"

#include "JobDetails.h"
#include "JobRowDelegate.h"
#include "foundation/Queues.h"
#include "jobs/JobList.h"
#include "jobs/JobQueue.h"
#include "tarnwell/Alerts.h"
#include "tarnwell/TextKey.h"
#include "tarnwell/WebPages.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMenu>
#include <QMetaMethod>
#include <QMimeData>
#include <QPointer>
#include <QShortcut>
#include <QSortFilterProxyModel>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using tarnwell::operator""_key;

}  // namespace

/// Rows that contain a text in their title or details. What they contain is kept while somebody searches, and made in
/// turns: for ten thousand rows that would be felt at the first key.
class JobListView::Filter : public QSortFilterProxyModel {
public:
    Filter(JobList &list, QObject *parent) : QSortFilterProxyModel(parent), m_list(list)
    {
        // Before the connections of setSourceModel, which ask again.
        connect(&list, &JobList::dataChanged, this, [this](const QModelIndex &from, const QModelIndex &to) {
            for (int row = from.row(); !m_texts.isEmpty() && row <= to.row(); ++row)
                m_texts.remove(m_list.idAt(row));
        });
        setSourceModel(&list);
    }

    void setText(const QString &text)
    {
        m_wanted = text;
        if (text.isEmpty())
            m_texts.clear();
        if (!m_isTurnComing)
            takeTurn(0);
    }

protected:
    bool filterAcceptsRow(int row, const QModelIndex &) const override
    {
        return m_text.isEmpty() || textOf(row).contains(m_text, Qt::CaseInsensitive);
    }

private:
    const QString &textOf(int row) const
    {
        QString &text = m_texts[m_list.idAt(row)];
        if (text.isNull())
            text = m_list.index(row, JobList::TitleColumn).data().toString() + u'\n' +
                   m_list.index(row, JobList::DetailColumn).data().toString();
        return text;
    }

    void takeTurn(int row)
    {
        constexpr qint64 turnMs = 6;
        QElapsedTimer time;
        time.start();
        while (!m_wanted.isEmpty() && row < m_list.rowCount() && !time.hasExpired(turnMs))
            textOf(row++);
        m_isTurnComing = !m_wanted.isEmpty() && row < m_list.rowCount();
        if (m_isTurnComing) {
            foundation::queue::asyncMain([guard = QPointer(this), row] {
                if (guard)
                    guard->takeTurn(row);
            });
        } else if (m_text != m_wanted) {
            m_text = m_wanted;
            invalidateFilter();
        }
    }

    JobList &m_list;
    QString m_text, m_wanted;
    mutable QHash<JobId, QString> m_texts;
    bool m_isTurnComing = false;
};

JobListView::JobListView(JobQueue &queue, JobList &list, QWidget *parent)
    : QListView(parent),
      m_queue(queue),
      m_list(list),
      m_filter(new Filter(list, this))
{
    setModel(m_filter);
    setItemDelegate(new JobRowDelegate(this));
    setSelectionMode(ExtendedSelection);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setMouseTracking(true);
    setTabKeyNavigation(false);
    setDragEnabled(true);
    setDropIndicatorShown(true);
    setDragDropMode(DragDrop);
    setDefaultDropAction(Qt::MoveAction);
    connect(this, &QListView::activated, this, &JobListView::activate);
    setUpKeys();
}

void JobListView::setUpKeys()
{
    const struct {
        QKeySequence keys;
        std::function<void()> action;
    } rows[] = {{QKeySequence::Delete, [this] { removeSelected(); }},
                {Qt::Key_Backspace, [this] { removeSelected(); }},
                {Qt::ALT | Qt::Key_Up, [this] { moveSelected(-1); }},
                {Qt::ALT | Qt::Key_Down, [this] { moveSelected(1); }},
                {Qt::CTRL | Qt::Key_I, [this] { showDetails(currentId()); }}};
    for (const auto &[keys, action] : rows) {
        auto *shortcut = new QShortcut(keys, this);
        shortcut->setContext(Qt::WidgetShortcut);
        connect(shortcut, &QShortcut::activated, this, action);
    }
}

QList<JobId> JobListView::selectedIds() const
{
    // Not selectedRows(): in a list only the title's column is selected, which makes no row.
    QList<int> rows;
    for (const QItemSelectionRange &range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.append(row);
    }
    std::sort(rows.begin(), rows.end());
    QList<JobId> ids;
    for (const int row : rows)
        ids.append(m_filter->index(row, 0).data(JobList::IdRole).toLongLong());
    return ids;
}

JobId JobListView::currentId() const
{
    return currentIndex().data(JobList::IdRole).toLongLong();
}

void JobListView::select(JobId id)
{
    const QModelIndex index = m_filter->mapFromSource(m_list.index(m_list.rowOf(id), 0));
    if (!index.isValid())
        return;
    setCurrentIndex(index);
    scrollTo(index);
}

void JobListView::setFilterText(const QString &text)
{
    m_filter->setText(text);
    // Rows between hidden ones have no place to be dragged to.
    setDragDropMode(text.isEmpty() ? DragDrop : DragOnly);
}

void JobListView::setDiscardQuestion(tarnwell::TextKey question, tarnwell::TextKey button)
{
    m_discardQuestion = question;
    m_discardButton = button;
}

bool JobListView::mayDiscard(const QList<JobId> &ids) const
{
    const bool isAsked = !m_discardQuestion.isEmpty() && std::any_of(ids.begin(), ids.end(), [this](JobId id) {
        const JobRecord *record = m_queue.record(id);
        return record && isActive(record->state);
    });
    return !isAsked || tarnwell::runAlert({.message = m_discardQuestion.localized(),
                                           .defaultButton = m_discardButton.localized(),
                                           .alternateButton = "Go On"_key.localized(),
                                           .informativeText = {},
                                           .style = tarnwell::AlertStyle::Warning}) == tarnwell::AlertAnswer::Default;
}

void JobListView::cancel(const QList<JobId> &ids)
{
    if (mayDiscard(ids))
        m_queue.cancel(ids);
}

void JobListView::removeSelected()
{
    const QList<JobId> ids = selectedIds();
    if (!mayDiscard(ids))
        return;
    const int row = ids.isEmpty() ? -1 : m_filter->mapFromSource(m_list.index(m_list.rowOf(ids.first()), 0)).row();
    m_queue.remove(ids);
    if (const QModelIndex next = m_filter->index(std::min(row, m_filter->rowCount() - 1), 0); next.isValid())
        setCurrentIndex(next);
}

void JobListView::removeEnded()
{
    QList<JobId> ids;
    for (int row = 0; row < m_list.rowCount(); ++row) {
        const JobRecord *record = m_queue.record(m_list.idAt(row));
        if (record && (record->state == JobState::Done || record->state == JobState::DoneWithProblems ||
                       record->state == JobState::Cancelled || record->state == JobState::Unusable))
            ids.append(record->id);
    }
    m_queue.remove(ids);
}

void JobListView::showDetails(JobId id)
{
    const JobRecord *record = m_queue.record(id);
    if (!record)
        return;
    auto *details = new JobDetails(*record, window());
    emit detailsOpened(details, id);
    details->open();
}

void JobListView::activate(const QModelIndex &index)
{
    const JobId id = index.data(JobList::IdRole).toLongLong();
    const JobRecord *record = m_queue.record(id);
    if (!record)
        return;
    if (!record->outcome.outputs.isEmpty())
        emit playRequested(record->outcome.outputs.first());
    else if (record->state == JobState::Failed || record->state == JobState::Unusable)
        showDetails(id);
    else
        emit editRequested(id);
}

/// Up or down by one, together.
void JobListView::moveSelected(int rows)
{
    const QList<JobId> ids = selectedIds();
    if (ids.isEmpty() || m_filter->rowCount() != m_list.rowCount())
        return;
    if (rows < 0) {
        if (const int first = m_list.rowOf(ids.first()); first > 0)
            m_queue.move(ids, m_list.idAt(first - 1));
    } else if (const int last = m_list.rowOf(ids.last()); last + 1 < m_list.rowCount()) {
        m_queue.move(ids, m_list.idAt(last + 2));
    }
}

QStringList JobListView::outputsOf(const QList<JobId> &ids) const
{
    QStringList outputs;
    for (const JobId id : ids) {
        if (const JobRecord *record = m_queue.record(id))
            outputs += record->outcome.outputs;
    }
    return outputs;
}

void JobListView::showInFolder(JobId id)
{
    const QStringList outputs = outputsOf({id});
    if (!outputs.isEmpty())
        tarnwell::OpenDirectory(QFileInfo(outputs.first()).absolutePath());
}

void JobListView::copyResults(const QList<JobId> &ids)
{
    QList<QUrl> urls;
    for (const QString &path : outputsOf(ids))
        urls.append(QUrl::fromLocalFile(path));
    if (urls.isEmpty())
        return;
    auto *files = new QMimeData;
    files->setUrls(urls);
    files->setText(outputsOf(ids).join(u'\n'));
    QGuiApplication::clipboard()->setMimeData(files);
}

void JobListView::copy()
{
    copyResults(selectedIds());
}

void JobListView::contextMenuEvent(QContextMenuEvent *event)
{
    const QList<JobId> ids = selectedIds();
    if (ids.isEmpty())
        return;
    const JobId current = currentId() > 0 ? currentId() : ids.first();
    const JobRecord *record = m_queue.record(current);
    const bool hasResult = !outputsOf({current}).isEmpty();
    const bool canLook = isSignalConnected(QMetaMethod::fromSignal(&JobListView::lookAgainRequested));
    QList<JobId> active, paused, again, unusable, checking;
    bool isNew = false;
    for (const JobId id : ids) {
        const JobState state = m_queue.record(id)->state;
        if (state == JobState::Running || state == JobState::Waiting)
            active.append(id);
        if (state == JobState::Paused)
            paused.append(id);
        if (state == JobState::Ready || isEnded(state))
            again.append(id);
        if (canLook && state == JobState::Unusable)
            unusable.append(id);
        if (canLook && state == JobState::Checking)
            checking.append(id);
        isNew |= state == JobState::Ready;
    }
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const struct {
        tarnwell::TextKey text;
        bool isEnabled;
        std::function<void()> action;
        bool isOffered = true;
    } rows[] = {
        {"Play"_key, hasResult, [this, current] { emit playRequested(outputsOf({current}).first()); }},
        {"Show in Folder"_key, hasResult, [this, current] { showInFolder(current); }},
        {"Copy"_key, hasResult, [this, ids] { copyResults(ids); }},
        {},
        {isNew || (again + unusable).isEmpty() ? "Start"_key : "Retry"_key, !(again + unusable).isEmpty(),
         [this, again, unusable] {
             m_queue.start(again);
             emit lookAgainRequested(unusable);
         },
         m_isStartOffered},
        {"Pause"_key, !active.isEmpty(), [this, active] { m_queue.setPaused(active, true); }},
        {"Go On"_key, !paused.isEmpty(), [this, paused] { m_queue.setPaused(paused, false); }},
        {"Cancel"_key, !(active + paused + checking).isEmpty(),
         [this, active, paused, checking] {
             cancel(active + paused);
             emit stopLookingRequested(checking);
         }},
        {},
        {"Details…"_key, record != nullptr, [this, current] { showDetails(current); }},
        {"Remove"_key, true, [this] { removeSelected(); }},
    };
    for (const auto &[text, isEnabled, action, isOffered] : rows) {
        if (text.isEmpty())
            menu->addSeparator();
        else if (isOffered)
            menu->addAction(text.localized(), this, action)->setEnabled(isEnabled);
    }
    emit menuRequested(menu, ids);
    menu->popup(event->reason() == QContextMenuEvent::Keyboard
                    ? viewport()->mapToGlobal(visualRect(currentIndex()).center())
                    : event->globalPos());
}

/// Rows of its own alone: files from elsewhere are for the page, wherever they are dropped.
void JobListView::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->source() == this)
        QListView::dragEnterEvent(event);
    else
        event->ignore();
}

void JobListView::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QListView::selectionChanged(selected, deselected);
    emit selectedChanged();
}

}  // namespace kestrel
