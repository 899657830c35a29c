#pragma once

#include "jobs/JobRecord.h"

#include <QListView>

class QMenu;

namespace kestrel {

class JobDetails;
class JobList;
class JobQueue;

/// The rows of a `JobList` with what every module does with them, by mouse and by keys: dragging to another place
/// (Alt+Up, Alt+Down), retrying, removing (Del), details, and of results playing (Return), showing in their folder,
/// copying (Ctrl+C), dragging out. Modules add their own entries to its menu.
class JobListView : public QListView {
    Q_OBJECT
public:
    JobListView(JobQueue &queue, JobList &list, QWidget *parent = nullptr);

    QList<JobId> selectedIds() const;
    JobId currentId() const;  ///< 0 where there is none
    void select(JobId id);
    /// Only rows whose title or details contain the text are shown; all for an empty one.
    void setFilterText(const QString &text);

    /// For jobs whose work cannot be had again: what is asked before one that runs is cancelled or removed, and the
    /// button that does it.
    void setDiscardQuestion(tarnwell::TextKey question, tarnwell::TextKey button);
    /// For jobs that are begun by their module alone, and whose work cannot be done again: no "Start" and no "Retry".
    void setStartOffered(bool isOffered) { m_isStartOffered = isOffered; }
    void cancel(const QList<JobId> &ids);
    void removeSelected();
    void removeEnded();
    void showDetails(JobId id);

public slots:
    void copy();  ///< what "Copy" of the window's menu calls

signals:
    /// Return or a double click on a row without a result.
    void editRequested(kestrel::JobId id);
    /// The same on one with a result, which should be played.
    void playRequested(const QString &path);
    void selectedChanged();
    /// "Retry" for what could not be used, and "Cancel" for what is being looked at; offered where this is connected.
    void lookAgainRequested(const QList<kestrel::JobId> &ids);
    void stopLookingRequested(const QList<kestrel::JobId> &ids);
    /// The context menu is about to be shown for these; add to it.
    void menuRequested(QMenu *menu, const QList<kestrel::JobId> &ids);
    /// The details of this one are about to be shown; offer what helps.
    void detailsOpened(kestrel::JobDetails *details, kestrel::JobId id);

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;

private:
    class Filter;

    void setUpKeys();
    void activate(const QModelIndex &index);
    bool mayDiscard(const QList<JobId> &ids) const;
    void moveSelected(int rows);
    void showInFolder(JobId id);
    void copyResults(const QList<JobId> &ids);
    QStringList outputsOf(const QList<JobId> &ids) const;

    JobQueue &m_queue;
    JobList &m_list;
    Filter *m_filter;
    tarnwell::TextKey m_discardQuestion, m_discardButton;
    bool m_isStartOffered = true;
};

}  // namespace kestrel
