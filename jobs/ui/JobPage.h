#pragma once

#include "tarnwell/TextKey.h"

#include <QWidget>

#include <memory>

class QAbstractButton;
class QMimeData;

namespace Ui {
class JobPage;
}

namespace kestrel {

class JobList;
class JobListView;
class JobQueue;

/// What a module's page is called and says while it is empty.
struct JobPageTexts {
    tarnwell::TextKey title;
    tarnwell::TextKey emptyHeadline;
    tarnwell::TextKey emptyText;
    tarnwell::TextKey emptyButton;  ///< adds something; none for no such button
    tarnwell::TextKey start;        ///< "Convert"
    const char *emptyImage = nullptr;
    tarnwell::TextKey discardQuestion = {};  ///< asked before a job is cancelled; none for no question
    tarnwell::TextKey discardButton = {};
};

/// The page that every module stands in: Back and title, the module's own controls above, beside and below the list of
/// its jobs, progress of everything with pause and cancel, and the button that starts. What is the same for every job
/// (progress, pausing, cancelling, removing, the filter of a long list) is done here; the module connects the rest.
class JobPage : public QWidget {
    Q_OBJECT
public:
    /// `queue` and `list` outlive the page.
    JobPage(JobQueue &queue, JobList &list, const QString &module, const JobPageTexts &texts);
    ~JobPage() override;

    JobListView *list() const { return m_list; }
    /// Places for the module's own controls; they become children of the page.
    void addHeaderControl(QWidget *control);  ///< right of the title
    void setTopArea(QWidget *area);           ///< between header and list
    void setSidePanel(QWidget *panel);        ///< right of the list; hidden until it is asked for
    void setSidePanelVisible(bool visible);
    bool isSidePanelVisible() const;
    void addChoice(QWidget *control, int stretch = 0);  ///< in the line below the list, left to right

    /// Where the top area has something to show, an empty list need not take its place.
    void setListVisible(bool visible);
    void setStartEnabled(bool enabled);
    QAbstractButton *startButton() const;
    void setTipVisible(const QString &tip, bool visible);  ///< a line with "Got It" on top
    void showMessage(const QString &text);                 ///< where the progress of runs stands, until the next run

signals:
    void backClicked();
    void startClicked();
    void cancelClicked();  ///< what waits and runs is cancelled already
    void addClicked();     ///< the button of the empty page
    void pathsDropped(const QStringList &paths);
    void textDropped(const QString &text);  ///< or pasted: addresses

protected:
    bool event(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void setUpTexts(const JobPageTexts &texts);
    void setUpActions();
    void take(const QMimeData &dropped);
    void showRun();
    void showRunLater();
    void showRows();
    void togglePause();

    JobQueue &m_queue;
    JobList &m_model;
    QString m_module;
    std::unique_ptr<Ui::JobPage> m_form;
    JobListView *m_list;
    bool m_isToShowRun = false;
    bool m_showsRun = false;
};

}  // namespace kestrel
