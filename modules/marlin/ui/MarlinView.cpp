#include "MarlinView.h"

#include "ConversionDelegate.h"
#include "FailureDetails.h"
#include "modules/marlin/ConversionQueue.h"
#include "modules/marlin/MediaFiles.h"
#include "tarnwell/Localization.h"
#include "tarnwell/ui/Images.h"
#include "tarnwell/ui/TextStyles.h"
#include "tarnwell/ui/TranslateControls.h"
#include "ui_MarlinView.h"

#include <QDragEnterEvent>
#include <QFileDialog>
#include <QMimeData>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

QStringList localPaths(const QMimeData &data)
{
    QStringList paths;
    for (const QUrl &url : data.urls()) {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    return paths;
}

}  // namespace

MarlinView::MarlinView(ConversionList &list) : m_list(list), m_form(std::make_unique<Ui::MarlinView>())
{
    m_form->setupUi(this);
    setUpTexts();
    setUpList();
    setUpActions();
    m_form->tipFrame->hide();
    setRunning(false);
}

MarlinView::~MarlinView() = default;

OutputFolderLine *MarlinView::outputFolder() const
{
    return m_form->outputFolder;
}

const ConversionTarget &MarlinView::target() const
{
    return conversionTargets()[size_t(m_form->targetComboBox->currentIndex())];
}

void MarlinView::setUpTexts()
{
    namespace palette = tarnwell::palette;
    tarnwell::TranslateControls(this);
    for (const ConversionTarget &row : conversionTargets())
        m_form->targetComboBox->addItem(tarnwell::AppLocalizedString(row.name));

    const struct {
        QWidget *label;
        int size;
        QFont::Weight weight;
        QRgb color;
    } styles[] = {{m_form->titleLabel, 18, QFont::Bold, palette::title},
                  {m_form->hintLabel, 18, QFont::Bold, palette::title},
                  {m_form->formatsLabel, 13, QFont::Normal, palette::quietText},
                  {m_form->targetLabel, 13, QFont::Normal, palette::quietText},
                  {m_form->statusLabel, 13, QFont::Normal, palette::quietText}};
    for (const auto &[label, size, weight, color] : styles)
        tarnwell::setTextStyle(label, size, weight, color);

    const struct {
        QAbstractButton *button;
        QString image;
    } icons[] = {{m_form->backButton, u"module_back"_s},
                 {m_form->addButton, u"marlin_add"_s},
                 {m_form->removeButton, u"marlin_remove"_s},
                 {m_form->cancelButton, u"marlin_stop"_s}};
    for (const auto &[button, image] : icons)
        button->setIcon(tarnwell::namedIcon(image));
    m_form->picture->setImageName(u"marlin_drop"_s);
}

void MarlinView::setUpList()
{
    QTreeView *view = m_form->fileList;
    view->setModel(&m_list);
    view->setItemDelegate(new ConversionDelegate(view));
    QHeaderView *header = view->header();
    header->setSectionsMovable(false);
    header->setStyleSheet(u"QHeaderView::section { padding: 0 8px }"_s);  // in line with the delegate's cells
    header->setStretchLastSection(false);
    header->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    header->setSectionResizeMode(ConversionList::NameColumn, QHeaderView::Stretch);
    header->resizeSection(ConversionList::DurationColumn, 80);
    header->resizeSection(ConversionList::FormatColumn, 208);
    header->resizeSection(ConversionList::StateColumn, 304);

    connect(&m_list, &QAbstractItemModel::rowsInserted, this, &MarlinView::updateControls);
    connect(&m_list, &QAbstractItemModel::rowsRemoved, this, &MarlinView::updateControls);
    connect(&m_list, &QAbstractItemModel::dataChanged, this, &MarlinView::updateControls);
    connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this, &MarlinView::updateControls);
    connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this, &MarlinView::updateControls);
    connect(view, &QTreeView::activated, this, &MarlinView::showDetails);
}

void MarlinView::setUpActions()
{
    const struct {
        QPushButton *button;
        void (MarlinView::*action)();
    } rows[] = {
        {m_form->addButton, &MarlinView::chooseFiles},        {m_form->emptyAddButton, &MarlinView::chooseFiles},
        {m_form->removeButton, &MarlinView::removeSelected},  {m_form->clearButton, &MarlinView::clear},
        {m_form->convertButton, &MarlinView::convertClicked}, {m_form->cancelButton, &MarlinView::cancelClicked},
        {m_form->backButton, &MarlinView::backClicked}};
    for (const auto &[button, action] : rows)
        connect(button, &QPushButton::clicked, this, action);
    connect(m_form->detailsButton, &QPushButton::clicked, this,
            [this] { showDetails(m_form->fileList->currentIndex()); });
    connect(m_form->closeTipButton, &QPushButton::clicked, m_form->tipFrame, &QWidget::hide);
    connect(m_form->targetComboBox, &QComboBox::currentIndexChanged, this, &MarlinView::targetChanged);

    const struct {
        QKeySequence keys;
        QWidget *context;
        QPushButton *button;
    } shortcuts[] = {{QKeySequence::Delete, m_form->fileList, m_form->removeButton},
                     {Qt::Key_Backspace, m_form->fileList, m_form->removeButton},
                     {QKeySequence::Open, this, m_form->addButton},
                     {Qt::CTRL | Qt::Key_Return, this, m_form->convertButton}};
    for (const auto &[keys, context, button] : shortcuts) {
        auto *shortcut = new QShortcut(keys, context);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
    }
}

void MarlinView::setFirstUseTipVisible(bool visible)
{
    m_form->tipFrame->setStyleSheet(
        u"#tipFrame { background: %1; border-radius: 6px }"_s.arg(QColor(tarnwell::palette::accentTint).name()));
    m_form->tipFrame->setVisible(visible);
}

void MarlinView::setRunning(bool running)
{
    // From a button that goes to the one in its place; from the end of a run to the list, since Convert may be
    // disabled.
    const bool hadFocus = m_form->convertButton->hasFocus() || m_form->cancelButton->hasFocus();
    m_isRunning = running;
    m_form->convertButton->setVisible(!running);
    m_form->cancelButton->setVisible(running);
    m_form->cancelButton->setEnabled(running);
    m_form->progressBar->setVisible(running);
    m_form->targetComboBox->setEnabled(!running);
    if (hadFocus)
        (running ? static_cast<QWidget *>(m_form->cancelButton) : m_form->fileList)->setFocus();
    updateControls();
}

void MarlinView::setConvertible(bool convertible)
{
    m_form->convertButton->setEnabled(convertible);
}

void MarlinView::showProgress(const ConversionProgress &progress)
{
    constexpr int steps = 1000;
    m_form->progressBar->setRange(0, progress.fraction ? steps : 0);
    m_form->progressBar->setValue(int(progress.fraction.value_or(0) * steps));
    QString text = tarnwell::AppLocalizedString(u"%1 of %2"_s).arg(progress.position).arg(progress.count);
    if (progress.fraction && progress.remainingSeconds)
        text += u" · "_s + remainingTimeText(*progress.remainingSeconds);
    setStatus(text);
}

void MarlinView::setStatus(const QString &text)
{
    m_form->statusLabel->setText(text);
}

void MarlinView::updateControls()
{
    const bool hasFiles = m_list.rowCount() > 0;
    const QModelIndex current = m_form->fileList->currentIndex();
    m_form->pages->setCurrentWidget(hasFiles ? m_form->listPage : m_form->emptyPage);
    m_form->addButton->setVisible(hasFiles);
    m_form->removeButton->setVisible(hasFiles);
    m_form->clearButton->setVisible(hasFiles);
    m_form->removeButton->setEnabled(!m_isRunning && m_form->fileList->selectionModel()->hasSelection());
    m_form->clearButton->setEnabled(!m_isRunning && hasFiles);
    m_form->detailsButton->setVisible(current.isValid() && !m_list.at(current.row()).reason.isNull() &&
                                      !m_list.at(current.row()).details.isEmpty());
}

void MarlinView::chooseFiles()
{
    auto *dialog = new QFileDialog(this, tarnwell::AppLocalizedString(u"Add Files"_s));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setNameFilters(
        {tarnwell::AppLocalizedString(u"Media files"_s) + " ("_L1 + mediaNameFilters().join(u' ') + u')',
         tarnwell::AppLocalizedString(u"All files"_s) + " (*)"_L1});
    connect(dialog, &QFileDialog::filesSelected, this, &MarlinView::pathsChosen);
    dialog->open();
}

void MarlinView::removeSelected()
{
    QList<qint64> ids;
    for (const QModelIndex &index : m_form->fileList->selectionModel()->selectedRows())
        ids.append(m_list.at(index.row()).id);
    m_list.removeIds(ids);
}

void MarlinView::clear()
{
    QList<qint64> ids;
    for (int row = 0; row < m_list.rowCount(); ++row)
        ids.append(m_list.at(row).id);
    m_list.removeIds(ids);
}

void MarlinView::showDetails(const QModelIndex &index)
{
    if (!index.isValid() || m_list.at(index.row()).details.isEmpty() || m_list.at(index.row()).reason.isNull())
        return;
    auto *dialog = new FailureDetails(m_list.at(index.row()), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}

void MarlinView::dragEnterEvent(QDragEnterEvent *event)
{
    if (!localPaths(*event->mimeData()).isEmpty()) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
    }
}

void MarlinView::dropEvent(QDropEvent *event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
    emit pathsChosen(localPaths(*event->mimeData()));
}

}  // namespace kestrel
