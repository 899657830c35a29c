#include "JobPage.h"

#include "JobListView.h"
#include "foundation/FileNames.h"
#include "foundation/Queues.h"
#include "jobs/JobList.h"
#include "jobs/JobQueue.h"
#include "jobs/RemainingTime.h"
#include "tarnwell/ui/Images.h"
#include "tarnwell/ui/TextStyles.h"
#include "tarnwell/ui/TranslateControls.h"
#include "ui_JobPage.h"

#include <QClipboard>
#include <QDragEnterEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QPointer>
#include <QShortcut>

#include <utility>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using tarnwell::operator""_key;

constexpr int progressSteps = 1000;
constexpr int longList = 12;  ///< rows from which on a filter helps

QStringList pathsIn(const QMimeData &data)
{
    QStringList paths;
    for (const QUrl &url : data.urls()) {
        if (const QString path = foundation::pathOfUrl(url); !path.isNull())
            paths.append(path);
    }
    return paths;
}

}  // namespace

JobPage::JobPage(JobQueue &queue, JobList &list, const QString &module, const JobPageTexts &texts)
    : m_queue(queue),
      m_model(list),
      m_module(module),
      m_form(std::make_unique<Ui::JobPage>()),
      m_list(new JobListView(queue, list))
{
    m_form->setupUi(this);
    m_form->listLayout->addWidget(m_list);
    m_list->setObjectName(u"jobList"_s);
    m_list->setAccessibleName(texts.title.localized());
    m_list->setDiscardQuestion(texts.discardQuestion, texts.discardButton);
    setUpTexts(texts);
    setUpActions();
    showRows();
    showRun();
}

JobPage::~JobPage() = default;

void JobPage::setUpTexts(const JobPageTexts &texts)
{
    namespace palette = tarnwell::palette;
    tarnwell::TranslateControls(this);
    m_form->titleLabel->setText(texts.title.localized());
    m_form->headlineLabel->setText(texts.emptyHeadline.localized());
    m_form->emptyLabel->setText(texts.emptyText.localized());
    m_form->emptyButton->setText(texts.emptyButton.localized());
    m_form->emptyButton->setVisible(!texts.emptyButton.isEmpty());
    m_form->startButton->setText(texts.start.localized());
    m_form->picture->setImageName(QString::fromLatin1(texts.emptyImage));
    const struct {
        QWidget *label;
        int size;
        QFont::Weight weight;
        QRgb color;
    } styles[] = {{m_form->titleLabel, 18, QFont::Bold, palette::title},
                  {m_form->headlineLabel, 18, QFont::Bold, palette::title},
                  {m_form->emptyLabel, 13, QFont::Normal, palette::quietText},
                  {m_form->statusLabel, 13, QFont::Normal, palette::quietText}};
    for (const auto &[label, size, weight, color] : styles)
        tarnwell::setTextStyle(label, size, weight, color);
    m_form->backButton->setIcon(tarnwell::namedIcon(u"module_back"_s));
    m_form->tipFrame->hide();
    m_form->sidePanel->hide();
}

void JobPage::setUpActions()
{
    connect(m_form->backButton, &QPushButton::clicked, this, &JobPage::backClicked);
    connect(m_form->startButton, &QPushButton::clicked, this, &JobPage::startClicked);
    connect(m_form->emptyButton, &QPushButton::clicked, this, &JobPage::addClicked);
    connect(m_form->closeTipButton, &QPushButton::clicked, m_form->tipFrame, &QWidget::hide);
    connect(m_form->pauseButton, &QPushButton::clicked, this, &JobPage::togglePause);
    connect(m_form->cancelButton, &QPushButton::clicked, this, [this] {
        m_list->cancel(m_queue.idsIn({JobState::Waiting, JobState::Running, JobState::Paused}, m_module));
        emit cancelClicked();
    });
    connect(m_form->filterEdit, &QLineEdit::textChanged, m_list, &JobListView::setFilterText);
    connect(&m_model, &QAbstractItemModel::rowsInserted, this, &JobPage::showRows);
    connect(&m_model, &QAbstractItemModel::rowsRemoved, this, &JobPage::showRows);
    connect(&m_model, &QAbstractItemModel::modelReset, this, &JobPage::showRows);
    connect(&m_queue, &JobQueue::changed, this, &JobPage::showRunLater);
    connect(&m_queue, &JobQueue::idle, this, [this](const QString &module) {
        if (module == m_module)
            showRun();
    });
}

void JobPage::addHeaderControl(QWidget *control)
{
    m_form->headerLayout->addWidget(control);
}

void JobPage::setTopArea(QWidget *area)
{
    m_form->topLayout->addWidget(area);
}

void JobPage::setSidePanel(QWidget *panel)
{
    m_form->sideLayout->addWidget(panel);
}

void JobPage::setSidePanelVisible(bool visible)
{
    m_form->sidePanel->setVisible(visible);
}

bool JobPage::isSidePanelVisible() const
{
    return m_form->sidePanel->isVisibleTo(this);
}

void JobPage::addChoice(QWidget *control, int stretch)
{
    m_form->choiceLayout->addWidget(control, stretch);
}

void JobPage::setListVisible(bool visible)
{
    m_form->pages->setVisible(visible);
}

void JobPage::setStartEnabled(bool enabled)
{
    m_form->startButton->setEnabled(enabled);
}

QAbstractButton *JobPage::startButton() const
{
    return m_form->startButton;
}

void JobPage::setTipVisible(const QString &tip, bool visible)
{
    m_form->tipLabel->setText(tip);
    m_form->tipFrame->setStyleSheet(
        u"#tipFrame { background: %1; border-radius: 6px }"_s.arg(QColor(tarnwell::palette::accentTint).name()));
    m_form->tipFrame->setVisible(visible);
}

void JobPage::showMessage(const QString &text)
{
    m_form->statusLabel->setText(text);
}

void JobPage::showRows()
{
    m_form->pages->setCurrentWidget(m_model.rowCount() > 0 ? m_form->listPage : m_form->emptyPage);
    m_form->filterEdit->setVisible(m_model.rowCount() >= longList || !m_form->filterEdit->text().isEmpty());
}

void JobPage::showRun()
{
    const bool isBusy = m_queue.hasWork(m_module);
    const bool hadFocus = m_form->pauseButton->hasFocus() || m_form->cancelButton->hasFocus();
    for (QWidget *control : {static_cast<QWidget *>(m_form->progressBar), static_cast<QWidget *>(m_form->pauseButton),
                             static_cast<QWidget *>(m_form->cancelButton)})
        control->setVisible(isBusy);
    if (hadFocus && !isBusy)
        m_list->setFocus();
    if (std::exchange(m_showsRun, isBusy) && !isBusy)
        m_form->statusLabel->clear();  // the list says what came out
    if (!isBusy)
        return;
    const JobProgress progress = m_queue.overallProgress(m_module);
    m_form->progressBar->setRange(0, progress.fraction ? progressSteps : 0);
    m_form->progressBar->setValue(int(progress.fraction.value_or(0) * progressSteps));
    const bool isRunning = !m_queue.idsIn({JobState::Running, JobState::Stopping}, m_module).isEmpty();
    const bool isHeld = !isRunning && !m_queue.idsIn({JobState::Paused}, m_module).isEmpty();
    m_form->pauseButton->setText((isHeld ? "Go On"_key : "Pause"_key).localized());
    m_form->pauseButton->setAccessibleName(m_form->pauseButton->text());
    const qsizetype open = m_queue.idsIn({JobState::Waiting, JobState::Running, JobState::Paused}, m_module).size();
    QStringList parts{isHeld ? "Paused"_key.localized()
                             : tarnwell::Sentence("%1 to go"_key, {QString::number(open)}).localized()};
    if (progress.remainingSeconds && !isHeld)
        parts.append(remainingTimeText(*progress.remainingSeconds));
    m_form->statusLabel->setText(parts.join(u" · "_s));
}

/// Thousands may change in one go.
void JobPage::showRunLater()
{
    if (std::exchange(m_isToShowRun, true))
        return;
    foundation::queue::asyncMain([guard = QPointer(this)] {
        if (guard) {
            guard->m_isToShowRun = false;
            guard->showRun();
        }
    });
}

void JobPage::togglePause()
{
    const QList<JobId> running = m_queue.idsIn({JobState::Running}, m_module);
    if (running.isEmpty())
        m_queue.setPaused(m_queue.idsIn({JobState::Paused}, m_module), false);
    else
        m_queue.setPaused(running, true);
}

void JobPage::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->source() == m_list)
        return;
    if (!pathsIn(*event->mimeData()).isEmpty() || event->mimeData()->hasText())
        event->acceptProposedAction();
}

void JobPage::dropEvent(QDropEvent *event)
{
    take(*event->mimeData());
    event->acceptProposedAction();
}

/// The menu's "Paste" would take the key for itself; fields that it is meant for have been asked before.
bool JobPage::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent *>(event)->matches(QKeySequence::Paste)) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::WindowActivate || event->type() == QEvent::Show)
        m_queue.lookForOutputs();
    return QWidget::event(event);
}

void JobPage::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Paste))
        take(*QGuiApplication::clipboard()->mimeData());
    else
        QWidget::keyPressEvent(event);
}

void JobPage::take(const QMimeData &dropped)
{
    if (const QStringList paths = pathsIn(dropped); !paths.isEmpty())
        emit pathsDropped(paths);
    else if (dropped.hasText())
        emit textDropped(dropped.text());
}

}  // namespace kestrel
