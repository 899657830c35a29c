#include "DiscView.h"

#include "jobs/RemainingTime.h"
#include "tarnwell/ui/Images.h"
#include "tarnwell/ui/TextStyles.h"
#include "tarnwell/ui/TranslateControls.h"
#include "ui_DiscView.h"

#include <QAction>
#include <QHeaderView>
#include <QImageReader>
#include <QSignalBlocker>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

constexpr QSize coverSize{180, 120}, titlePictureSize{64, 40};

}  // namespace

QPixmap discPicture(const QString &path, QSize size, qreal scale)
{
    constexpr int mostPixels = 4096;
    QImageReader reader(path);
    const QSize whole = reader.size();
    if (!whole.isValid() || whole.width() > mostPixels || whole.height() > mostPixels)
        return {};
    reader.setScaledSize(whole.scaled(size * scale, Qt::KeepAspectRatio));
    QPixmap pixmap = QPixmap::fromImage(reader.read());
    pixmap.setDevicePixelRatio(scale);
    return pixmap;
}

DiscView::DiscView(const QString &language, QWidget *parent)
    : QWidget(parent),
      m_language(language),
      m_form(std::make_unique<Ui::DiscView>()),
      m_options(new TitlePanel(language))
{
    namespace palette = tarnwell::palette;
    m_form->setupUi(this);
    tarnwell::TranslateControls(this);
    tarnwell::setTextStyle(m_form->nameLabel, 15, QFont::Bold, palette::title);
    tarnwell::setTextStyle(m_form->factsLabel, 13, QFont::Normal, palette::quietText);
    tarnwell::setTextStyle(m_form->choiceLabel, 13, QFont::Normal, palette::quietText);
    tarnwell::setTextStyle(m_form->messageLabel, 13, QFont::Normal, palette::text);
    m_form->coverLabel->setFixedSize(coverSize);
    m_form->titles->setIconSize(titlePictureSize);
    m_form->titles->setHeaderLabels({"Title"_key.localized(), "Length"_key.localized(), "Details"_key.localized()});
    // What is long gives way: the details have it as a tooltip too.
    m_form->titles->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    m_form->titles->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    m_form->titles->header()->setSectionResizeMode(2, QHeaderView::Stretch);
    m_form->titles->setAccessibleName("Titles of the disc"_key.localized());
    m_form->layout->addWidget(m_options);
    m_options->hide();
    connect(m_form->titles, &QTreeWidget::itemChanged, this, &DiscView::choiceChanged);
    connect(m_form->titles, &QTreeWidget::currentItemChanged, this, &DiscView::showOptions);
    connect(m_options, &TitlePanel::changed, this, &DiscView::takeOptions);
    connect(m_options, &TitlePanel::playClicked, this, &DiscView::play);
    addActions();
}

/// On a title: a menu, and Return.
void DiscView::addActions()
{
    auto *action = new QAction("Play"_key.localized(), m_form->titles);
    action->setShortcuts({Qt::Key_Return, Qt::Key_Enter});
    action->setShortcutContext(Qt::WidgetShortcut);
    connect(action, &QAction::triggered, this, &DiscView::play);
    m_form->titles->addAction(action);
    m_form->titles->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void DiscView::play()
{
    if (const int title = currentTitle(); title > 0)
        emit playRequested(title);
}

DiscView::~DiscView() = default;

void DiscView::showHead(const QString &name, const QString &facts)
{
    m_form->nameLabel->setText(name);
    m_form->factsLabel->setText(facts);
    m_form->coverLabel->setPixmap(tarnwell::namedImage(u"heron_disc"_s, devicePixelRatioF()));
    const QSignalBlocker blocker(m_form->titles);
    m_form->titles->clear();
    m_titles.clear();
    m_choices.clear();
    showOptions();
}

void DiscView::clear()
{
    showHead({}, {});
}

void DiscView::showReading(const QString &name)
{
    showHead(name, {});
    m_form->messageLabel->setText("Reading the disc… A drive may take half a minute for it."_key.localized());
    m_form->pages->setCurrentWidget(m_form->messagePage);
    m_form->choiceLabel->clear();
}

void DiscView::showFailure(const QString &name, const QString &sentence)
{
    showHead(name, {});
    m_form->messageLabel->setText(sentence);
    m_form->pages->setCurrentWidget(m_form->messagePage);
    m_form->choiceLabel->clear();
}

void DiscView::showDisc(const disc::DiscContents &contents, const DiscPlan &plan)
{
    const disc::DiscTitle *main = contents.mainTitle();
    QStringList facts;
    if (main)
        facts.append(durationText(main->seconds));
    facts.append(Sentence("%1 titles"_key, {QString::number(contents.titles.size())}).localized());
    facts.append(locale().formattedDataSize(contents.bytes, 1, QLocale::DataSizeSIFormat));
    if (contents.isTruncated)
        facts.append("The disc image ends before its film does."_key.localized());
    showHead(contents.volume.isEmpty() ? u"DVD"_s : contents.volume, facts.join(u" · "_s));
    const QSignalBlocker blocker(m_form->titles);
    m_titles = contents.titles;
    for (const disc::DiscTitle &title : contents.titles)
        addTitle(title, plan);
    if (main)
        m_form->titles->setCurrentItem(itemOf(main->number));
    showOptions();
    m_form->pages->setCurrentWidget(m_form->titlesPage);
}

void DiscView::addTitle(const disc::DiscTitle &title, const DiscPlan &plan)
{
    auto *item = new QTreeWidgetItem(m_form->titles);
    const Sentence name("Title %1"_key, {QString::number(title.number)});
    item->setText(0, title.isMain ? Sentence("Title %1, the main film"_key, {QString::number(title.number)}).localized()
                                  : name.localized());
    item->setText(1, durationText(title.seconds));
    QStringList facts{titleFactsText(title)};
    if (title.duplicateOf > 0)
        facts.append(Sentence("same as title %1"_key, {QString::number(title.duplicateOf)}).localized());
    item->setText(2, facts.join(u", "_s));
    item->setToolTip(2, item->text(2));
    item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    item->setSizeHint(2, QSize(0, titlePictureSize.height() + 6));
    QPixmap place(titlePictureSize);
    place.fill(Qt::transparent);
    item->setIcon(0, QIcon(place));
    item->setData(0, NumberRole, title.number);
    item->setData(0, KindRole, TitleItem);
    item->setCheckState(0, title.isMain ? Qt::Checked : Qt::Unchecked);
    for (const int index : chosenSound(plan, title))
        addTrack(*item, SoundItem, index + 1, soundText(title.audio[index], m_language));
    for (int index = 0; index < title.subtitles.size(); ++index)
        addTrack(*item, SubtitleItem, index + 1, subtitleText(title.subtitles[index], m_language));
    item->setExpanded(title.isMain);
    if (title.isMain)
        m_form->titles->scrollToItem(item, QAbstractItemView::PositionAtTop);
}

void DiscView::addTrack(QTreeWidgetItem &title, ItemKind kind, int number, const QString &text)
{
    auto *item = new QTreeWidgetItem(&title);
    const auto pattern = kind == SoundItem ? "Sound: %1"_key : "Subtitles: %1"_key;
    item->setText(0, Sentence(pattern, {text}).localized());
    item->setData(0, NumberRole, number);
    item->setData(0, KindRole, kind);
    item->setCheckState(0, Qt::Checked);
    item->setFirstColumnSpanned(true);
}

QTreeWidgetItem *DiscView::itemOf(int title) const
{
    for (int row = 0; row < m_form->titles->topLevelItemCount(); ++row) {
        QTreeWidgetItem *item = m_form->titles->topLevelItem(row);
        if (item->data(0, NumberRole).toInt() == title)
            return item;
    }
    return nullptr;
}

void DiscView::setPicture(int title, const QString &path)
{
    if (title == 0) {
        const QPixmap cover = discPicture(path, coverSize, devicePixelRatioF());
        if (!cover.isNull())
            m_form->coverLabel->setPixmap(cover);
        return;
    }
    const QSignalBlocker blocker(m_form->titles);
    if (QTreeWidgetItem *item = itemOf(title))
        item->setIcon(0, QIcon(discPicture(path, titlePictureSize, devicePixelRatioF())));
    m_form->titles->viewport()->update();
}

int DiscView::currentTitle() const
{
    const QTreeWidgetItem *item = m_form->titles->currentItem();
    if (item && item->parent())
        item = item->parent();
    return item ? item->data(0, NumberRole).toInt() : 0;
}

void DiscView::setChoosing(bool takesTitles, bool canBurn)
{
    m_canBurn = canBurn;
    m_form->titles->setEnabled(takesTitles);
    m_options->setUses(takesTitles, canBurn);
}

void DiscView::setOptionsVisible(bool visible)
{
    m_showsOptions = visible;
    showOptions();
}

void DiscView::showOptions()
{
    const int number = currentTitle();
    const auto title = std::find_if(m_titles.begin(), m_titles.end(),
                                    [&](const disc::DiscTitle &each) { return each.number == number; });
    if (title != m_titles.end())
        m_options->showTitle(*title, m_choices.value(number));
    m_options->setVisible(m_showsOptions && title != m_titles.end());
}

void DiscView::takeOptions(const TitleChoice &choice)
{
    m_choices[currentTitle()] = choice;
    emit choiceChanged();
}

void DiscView::setChoiceText(const QString &text)
{
    m_form->choiceLabel->setText(text);
}

QList<int> DiscView::chosenTitles() const
{
    QList<int> titles;
    for (int row = 0; row < m_form->titles->topLevelItemCount(); ++row) {
        const QTreeWidgetItem *item = m_form->titles->topLevelItem(row);
        if (item->checkState(0) == Qt::Checked)
            titles.append(item->data(0, NumberRole).toInt());
    }
    return titles;
}

std::optional<QList<int>> DiscView::chosenTracks(int title, ItemKind kind) const
{
    const QTreeWidgetItem *item = itemOf(title);
    QList<int> tracks;
    bool isAll = true;
    for (int row = 0; item && row < item->childCount(); ++row) {
        const QTreeWidgetItem *track = item->child(row);
        if (track->data(0, KindRole).toInt() != kind)
            continue;
        if (track->checkState(0) == Qt::Checked)
            tracks.append(track->data(0, NumberRole).toInt());
        else
            isAll = false;
    }
    return isAll ? std::nullopt : std::optional(tracks);
}

void DiscView::fillIn(int title, DiscPlan &plan) const
{
    const TitleChoice choice = m_choices.value(title);
    plan.title = title;
    plan.soundTracks = chosenTracks(title, SoundItem);
    plan.subtitleTracks = chosenTracks(title, SubtitleItem);
    plan.firstChapter = choice.firstChapter;
    plan.lastChapter = choice.lastChapter;
    plan.angle = choice.angle;
    plan.burnedSubtitle = m_canBurn ? choice.burnedSubtitle : 0;
}

}  // namespace kestrel
