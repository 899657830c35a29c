#include "LogWindow.h"

#include "LogView.h"
#include "tarnwell/Localization.h"
#include "tarnwell/ProductInformation.h"
#include "tarnwell/ui/Frames.h"
#include "tarnwell/ui/Images.h"
#include "tarnwell/ui/Palette.h"
#include "tarnwell/ui/TextStyles.h"
#include "tarnwell/ui/TranslateControls.h"
#include "ui_LogWindow.h"

#include <QAccessible>
#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QKeyEvent>
#include <QShortcut>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using kestrel::tarnwell::AppLocalizedString;

namespace kestrel {

namespace {

namespace palette = tarnwell::palette;

constexpr auto typingPause = 200ms;
constexpr int fieldMargins = 80;  ///< with the two icons
constexpr int leastFieldWidth = 180;

QString sizeText(qint64 bytes)
{
    return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
}

QString percentText(const QString &format, int percent)
{
    return format.arg(QLocale().toString(percent));
}

/// Its icon, room for the words that it begins with, and names for what Qt puts into it without one.
void setUpField(QLineEdit &field, const QString &iconName)
{
    for (QAction *clear : field.findChildren<QAction *>())
        clear->setText(AppLocalizedString(u"Clear"_s));
    QAction *icon = field.addAction(tarnwell::namedIcon(iconName), QLineEdit::LeadingPosition);
    icon->setText(field.accessibleName());
    const int words = field.fontMetrics().horizontalAdvance(field.placeholderText());
    field.setMinimumWidth(std::max(leastFieldWidth, words + fieldMargins));
    QObject::connect(icon, &QAction::triggered, &field, [&field] { field.setFocus(); });
}

}  // namespace

LogWindow::LogWindow(const QString &path)
    : m_file(path),
      m_lines(m_file),
      m_filter(m_file),
      m_search(m_file),
      m_form(std::make_unique<Ui::LogWindow>()),
      m_view(new LogView(m_file, m_lines))
{
    m_form->setupUi(this);
    m_form->pages->addWidget(m_view);
    tarnwell::TranslateControls(this);
    setUpLooks();
    setUpToolBar();
    setUpShortcuts();
    connectWork();
    showState();
    tarnwell::leaveRoomForFrame(this);
}

LogWindow::~LogWindow() = default;

void LogWindow::setUpLooks()
{
    setWindowTitle(m_file.path().isEmpty()
                       ? AppLocalizedString(u"Kestrel Log"_s)
                       : AppLocalizedString(u"Kestrel Log — %1"_s).arg(QFileInfo(m_file.path()).fileName()));
    QPalette bars = QWidget::palette();
    bars.setColor(QPalette::Window, QColor(palette::quietSurface));
    for (QWidget *bar : {m_form->toolBar, m_form->statusBar}) {
        bar->setPalette(bars);
        bar->setAutoFillBackground(true);
    }
    tarnwell::setTextStyle(m_form->headlineLabel, 18, QFont::Bold, palette::title);
    tarnwell::setTextStyle(m_form->detailLabel, 13, QFont::Normal, palette::quietText);
    tarnwell::setTextStyle(m_form->sizeLabel, 12, QFont::Normal, palette::quietText);
    setUpField(*m_form->searchField, u"kestrel_set_search"_s);
    setUpField(*m_form->filterField, u"log_filter"_s);
    m_form->previousButton->setIcon(tarnwell::namedIcon(u"search_previous"_s));
    m_form->nextButton->setIcon(tarnwell::namedIcon(u"search_next"_s));
    m_form->copyButton->setIcon(tarnwell::namedIcon(u"log_copy"_s));
    m_form->saveButton->setIcon(tarnwell::namedIcon(u"log_save"_s));
    for (QPushButton *button : m_form->toolBar->findChildren<QPushButton *>()) {
        // The theme's least width would otherwise cut long words.
        button->ensurePolished();
        button->setMinimumWidth(button->sizeHint().width());
    }
    showNote({});
}

void LogWindow::setUpToolBar()
{
    using Direction = LogSearch::Direction;
    connect(m_form->searchField, &QLineEdit::textChanged, this, [this] {
        m_search.stop();
        showNote({});
        markTexts();
    });
    connect(m_form->searchField, &QLineEdit::returnPressed, this, [this] {
        const bool isShift = QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier);
        find(isShift ? Direction::Backward : Direction::Forward);
    });
    connect(m_form->previousButton, &QPushButton::clicked, this, [this] { find(Direction::Backward); });
    connect(m_form->nextButton, &QPushButton::clicked, this, [this] { find(Direction::Forward); });
    m_filterDelay.setSingleShot(true);
    m_filterDelay.setInterval(typingPause);
    connect(&m_filterDelay, &QTimer::timeout, this, &LogWindow::applyFilter);
    connect(m_form->filterField, &QLineEdit::textChanged, &m_filterDelay, qOverload<>(&QTimer::start));
    connect(m_form->filterField, &QLineEdit::returnPressed, this, &LogWindow::applyFilter);
    connect(m_form->followCheckBox, &QCheckBox::toggled, m_view, &LogView::setFollowing);
    connect(m_view, &LogView::followingChanged, m_form->followCheckBox, &QCheckBox::setChecked);
    connect(m_form->copyButton, &QPushButton::clicked, m_view, &LogView::copy);
    connect(m_form->saveButton, &QPushButton::clicked, this, &LogWindow::chooseCopy);
    connect(m_view, &LogView::selectionChanged, this,
            [this] { m_form->copyButton->setEnabled(m_view->hasSelection()); });
}

void LogWindow::setUpShortcuts()
{
    const auto focusOn = [](QLineEdit *field) {
        field->setFocus(Qt::ShortcutFocusReason);
        field->selectAll();
    };
    const struct {
        QKeySequence keys;
        std::function<void()> action;
    } shortcuts[] = {
        {QKeySequence::Find, [this, focusOn] { focusOn(m_form->searchField); }},
        {QKeySequence(u"Ctrl+Shift+F"_s), [this, focusOn] { focusOn(m_form->filterField); }},
        {QKeySequence(Qt::Key_F3), [this] { find(LogSearch::Direction::Forward); }},
        {QKeySequence(Qt::SHIFT | Qt::Key_F3), [this] { find(LogSearch::Direction::Backward); }},
        {QKeySequence::Save, [this] { m_form->saveButton->click(); }},
        {QKeySequence(Qt::CTRL | Qt::Key_W), [this] { close(); }},
        {QKeySequence(Qt::CTRL | Qt::Key_Q), [this] { close(); }},
    };
    for (const auto &[keys, action] : shortcuts)
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
}

void LogWindow::connectWork()
{
    connect(&m_file, &LogFile::grown, this, &LogWindow::fileGrown);
    connect(&m_file, &LogFile::replaced, this, &LogWindow::fileReplaced);
    connect(&m_file, &LogFile::stateChanged, this, &LogWindow::showState);
    connect(&m_search, &LogSearch::found, this, &LogWindow::showFound);
    connect(&m_search, &LogSearch::notFound, this, [this] { showNote(AppLocalizedString(u"Nothing found."_s)); });
    connect(&m_search, &LogSearch::progressed, this, [this](int percent) {
        showNote(percentText(AppLocalizedString(u"Searching… %1 % (Esc stops)"_s), percent));
    });
    connect(&m_filter, &LogFilter::changed, this, [this] {
        m_view->refresh();
        showFilterNote();
    });
    connect(m_view, &LogView::copied, this, [this](bool isCut) {
        showNote(isCut ? AppLocalizedString(u"The first %1 were copied. Save a copy to have all of it."_s)
                             .arg(sizeText(LogView::maximumCopyLength))
                       : AppLocalizedString(u"Copied."_s));
    });
    connect(&m_copy, &LogCopy::progressed, this,
            [this](int percent) { showNote(percentText(AppLocalizedString(u"Saving… %1 % (Esc stops)"_s), percent)); });
    connect(&m_copy, &LogCopy::finished, this, [this](const QString &error) {
        if (error.isEmpty())
            showNote(AppLocalizedString(u"The copy was saved."_s));
        else
            showNote(AppLocalizedString(u"The copy could not be saved: %1"_s).arg(error), palette::error);
    });
}

void LogWindow::fileGrown()
{
    m_filter.fileGrown();
    m_view->refresh();
    showSize();
}

void LogWindow::fileReplaced()
{
    m_search.stop();
    m_filter.fileReplaced();
    m_view->refresh();
    showSize();
}

void LogWindow::showState()
{
    const bool isShown = m_file.state() == LogFile::State::Readable;
    const QString path = QDir::toNativeSeparators(m_file.path());
    QString headline = AppLocalizedString(u"There is no log yet"_s);
    QString detail = AppLocalizedString(u"It is shown here as soon as it is written: %1"_s).arg(path);
    if (path.isEmpty()) {
        headline = AppLocalizedString(u"No log was named"_s);
        detail = AppLocalizedString(u"Open the log with “App Log” in the Help menu of %1."_s)
                     .arg(tarnwell::GetApplicationName());
    } else if (m_file.state() == LogFile::State::Unreadable) {
        headline = AppLocalizedString(u"The log cannot be read"_s);
        detail = u"%1\n%2"_s.arg(m_file.error(), path);
    }
    m_form->headlineLabel->setText(headline);
    m_form->detailLabel->setText(detail);
    m_form->pages->setCurrentWidget(isShown ? static_cast<QWidget *>(m_view) : m_form->messagePage);
    m_form->toolBar->setEnabled(isShown);
    m_form->copyButton->setEnabled(m_view->hasSelection());
    if (isShown && !focusWidget())
        m_view->setFocus();
    if (m_file.isGone())
        showNote(AppLocalizedString(u"The file was deleted. What it held is still shown."_s), palette::warning);
    else
        showNote({});
    showSize();
}

void LogWindow::showSize()
{
    const bool isShown = m_file.state() == LogFile::State::Readable;
    m_form->sizeLabel->setText(isShown ? sizeText(m_file.size()) : QString());
}

/// Nothing to say: the file that is shown. What is said is read out as well, except for progress.
void LogWindow::showNote(const QString &note, QRgb color)
{
    const bool isShown = m_file.state() == LogFile::State::Readable;
    tarnwell::setTextStyle(m_form->noteLabel, 12, QFont::Normal, color);
    m_form->noteLabel->setText(note.isEmpty() && isShown ? QDir::toNativeSeparators(m_file.path()) : note);
    if (note.isEmpty() || isWorking())
        return;
    QAccessibleEvent event(m_form->noteLabel, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void LogWindow::find(LogSearch::Direction direction)
{
    const QString text = m_form->searchField->text();
    if (text.isEmpty()) {
        m_form->searchField->setFocus(Qt::ShortcutFocusReason);
        return;
    }
    const bool isForward = direction == LogSearch::Direction::Forward;
    const qint64 from = m_view->hasSelection() ? (isForward ? m_view->selectionEnd() : m_view->selectionBegin())
                                               : (isForward ? m_view->pageBegin() : m_view->pageEnd());
    const LogRows &rows = m_filter.text().isEmpty() ? static_cast<const LogRows &>(m_lines) : m_filter;
    m_search.start(text, from, direction, rows);
}

void LogWindow::showFound(qint64 begin, qint64 length, bool hasWrapped)
{
    m_view->reveal(begin);
    m_view->select(begin, begin + length);
    if (!hasWrapped)
        showNote({});
    else
        showNote(AppLocalizedString(u"Found after going around the end of the log."_s));
}

void LogWindow::markTexts()
{
    const QString text = m_form->searchField->text();
    m_view->setMarkedText(text.isEmpty() ? m_filter.text() : text);
}

void LogWindow::applyFilter()
{
    m_filterDelay.stop();
    const QString text = m_form->filterField->text();
    if (text == m_filter.text())
        return;
    m_search.stop();
    m_filter.setText(text);
    m_view->setRows(text.isEmpty() ? static_cast<const LogRows &>(m_lines) : m_filter);
    markTexts();
}

void LogWindow::showFilterNote()
{
    if (m_search.isRunning() || m_copy.isRunning())
        return;
    const QString count = QLocale().toString(m_filter.extent());
    if (m_filter.text().isEmpty())
        showNote({});
    else if (m_filter.isCapped())
        showNote(AppLocalizedString(u"Too many lines have this text: the newest %1 are shown."_s).arg(count));
    else if (m_filter.isLookingBack())
        showNote(AppLocalizedString(u"Lines with this text: %1, looking for more… %2 % (Esc stops)"_s)
                     .arg(count, QLocale().toString(m_filter.percent())));
    else
        showNote(AppLocalizedString(u"Lines with this text: %1"_s).arg(count));
}

void LogWindow::chooseCopy()
{
    QFileDialog *dialog = new QFileDialog(this, AppLocalizedString(u"Save a Copy"_s), QDir::homePath());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->selectFile(QFileInfo(m_file.path()).fileName());
    connect(dialog, &QFileDialog::fileSelected, this, &LogWindow::startCopy);
    dialog->open();
}

void LogWindow::startCopy(const QString &destination)
{
    if (m_file.bytes())
        m_copy.start(m_file.bytes(), m_file.size(), destination);
}

bool LogWindow::isWorking() const
{
    return m_search.isRunning() || m_copy.isRunning() || m_filter.isLookingBack();
}

void LogWindow::stopWork()
{
    m_search.stop();
    m_copy.giveUp();
    if (m_filter.isLookingBack())
        m_filter.stop();
    showNote(AppLocalizedString(u"Stopped."_s));
}

/// Escape goes back by one step: from work under way, from a field to the log, from the filter to all lines.
void LogWindow::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape)
        QMainWindow::keyPressEvent(event);
    else if (isWorking())
        stopWork();
    else if (!m_view->hasFocus())
        m_view->setFocus();
    else
        m_form->filterField->clear();
}

}  // namespace kestrel
