#include "FilmListDialog.h"

#include "SitePictures.h"

#include "jobs/RemainingTime.h"
#include "tarnwell/ui/TextStyles.h"
#include "tarnwell/ui/TranslateControls.h"
#include "ui_FilmListDialog.h"

#include <QHeaderView>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

constexpr int itemRole = Qt::UserRole;
constexpr int pictureRole = Qt::UserRole + 1;

}  // namespace

FilmListDialog::FilmListDialog(const EngineAnswer &answer, SitePictures *pictures, QWidget *parent)
    : QDialog(parent),
      m_form(std::make_unique<Ui::FilmListDialog>()),
      m_pictures(pictures)
{
    m_form->setupUi(this);
    tarnwell::TranslateControls(this);
    tarnwell::setTextStyle(m_form->titleLabel, 15, QFont::Bold, tarnwell::palette::title);
    m_form->titleLabel->setText(answer.title);
    const bool hasPictures =
        m_pictures && std::ranges::any_of(answer.entries, [](const auto &entry) { return !entry.picture.isEmpty(); });
    QPixmap place(m_form->filmTree->iconSize());
    place.fill(tarnwell::palette::accentTint);
    const QIcon noPicture(place);  // keeps the texts where they are
    QList<QTreeWidgetItem *> rows;
    for (const EngineAnswer::Entry &entry : answer.entries) {
        auto *row = new QTreeWidgetItem({entry.title, entry.seconds > 0 ? durationText(entry.seconds) : QString()});
        row->setCheckState(0, Qt::Checked);
        row->setData(0, itemRole, entry.item);
        row->setData(0, pictureRole, entry.picture);
        if (hasPictures) {
            row->setIcon(0, noPicture);
            row->setSizeHint(0, {0, m_form->filmTree->iconSize().height() + 8});
        }
        row->setTextAlignment(1, Qt::AlignTrailing | Qt::AlignVCenter);
        rows.append(row);
    }
    m_form->filmTree->addTopLevelItems(rows);
    m_form->filmTree->header()->setStretchLastSection(false);
    m_form->filmTree->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_form->filmTree->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    connect(m_form->filmTree, &QTreeWidget::itemChanged, this, &FilmListDialog::showCount);
    connect(m_form->allButton, &QPushButton::clicked, this, [this] { checkAll(Qt::Checked); });
    connect(m_form->noneButton, &QPushButton::clicked, this, [this] { checkAll(Qt::Unchecked); });
    connect(m_form->cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_form->addButton, &QPushButton::clicked, this, &QDialog::accept);
    if (hasPictures) {
        connect(m_pictures, &SitePictures::made, this, &FilmListDialog::showPictures);
        connect(m_form->filmTree->verticalScrollBar(), &QScrollBar::valueChanged, this, &FilmListDialog::showPictures);
    }
    showCount();
}

FilmListDialog::~FilmListDialog() = default;

QList<int> FilmListDialog::chosenItems() const
{
    QList<int> items;
    for (int row = 0; row < m_form->filmTree->topLevelItemCount(); ++row) {
        const QTreeWidgetItem *item = m_form->filmTree->topLevelItem(row);
        if (item->checkState(0) == Qt::Checked)
            items.append(item->data(0, itemRole).toInt());
    }
    return items;
}

void FilmListDialog::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    showPictures();
}

/// Of the films in view: a list may have thousands.
void FilmListDialog::showPictures()
{
    if (!m_pictures)
        return;
    const QSignalBlocker notCounted(m_form->filmTree);
    const int bottom = m_form->filmTree->viewport()->height();
    for (QTreeWidgetItem *row = m_form->filmTree->itemAt(0, 0);
         row && m_form->filmTree->visualItemRect(row).top() < bottom; row = m_form->filmTree->itemBelow(row)) {
        m_pictures->setScale(devicePixelRatioF());
        if (const QPixmap picture = m_pictures->picture(row->data(0, pictureRole).toString()); !picture.isNull())
            row->setIcon(0, picture);
    }
    m_form->filmTree->viewport()->update();
}

void FilmListDialog::checkAll(Qt::CheckState state)
{
    const QSignalBlocker once(m_form->filmTree);
    for (int row = 0; row < m_form->filmTree->topLevelItemCount(); ++row)
        m_form->filmTree->topLevelItem(row)->setCheckState(0, state);
    showCount();
}

void FilmListDialog::showCount()
{
    const qsizetype count = chosenItems().size();
    m_form->addButton->setText(count == 0 ? "Add"_key.localized()
                                          : Sentence("Add %1"_key, {QString::number(count)}).localized());
    m_form->addButton->setEnabled(count > 0);
}

}  // namespace kestrel
