#include "OptionsPanel.h"

#include "OptionControls.h"
#include "TrackOptions.h"
#include "foundation/Queues.h"
#include "jobs/JobQueue.h"
#include "jobs/RemainingTime.h"
#include "media/OutputName.h"
#include "modules/marlin/Conversions.h"
#include "settings/JKestrelSettingDispatcher.h"
#include "tarnwell/Folders.h"
#include "tarnwell/ui/TextStyles.h"
#include "tarnwell/ui/TranslateControls.h"
#include "ui_OptionsPanel.h"

#include <QCheckBox>
#include <QDate>
#include <QFormLayout>
#include <QLineEdit>
#include <QLocale>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using tarnwell::operator""_key;

enum FolderChoice { SettingsFolder, BesideSource, OtherFolder, OwnFolder };

void makeQuiet(QLabel *label)
{
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    tarnwell::setTextStyle(label, 12, QFont::Normal, tarnwell::palette::quietText);
}

}  // namespace

OptionsPanel::OptionsPanel(Conversions &conversions, QWidget *parent)
    : QWidget(parent),
      m_conversions(conversions),
      m_form(std::make_unique<Ui::OptionsPanel>()),
      m_controls(new OptionControls(this))
{
    m_form->setupUi(this);
    tarnwell::TranslateControls(this);
    tarnwell::setTextStyle(m_form->subjectLabel, 13, QFont::Bold, tarnwell::palette::title);
    makeQuiet(m_form->estimateLabel);
    QVBoxLayout *belowCut = nullptr, *sounds = nullptr, *subtitles = nullptr, *belowOutput = nullptr;
    addPage(OptionPage::Video);
    addPage(OptionPage::Picture);
    addPage(OptionPage::Cut, &belowCut);
    addPage(OptionPage::Sound, &sounds);
    addPage(OptionPage::Subtitles, &subtitles);
    QFormLayout *output = addPage(OptionPage::Output, &belowOutput);
    addCutPage(belowCut);
    addOutputPage(output, belowOutput);
    m_tracks = new TrackOptions(sounds, subtitles, this);
    connect(m_form->pageBox, &QComboBox::currentIndexChanged, m_form->pages, &QStackedWidget::setCurrentIndex);
    connect(m_controls, &OptionControls::changed, this, &OptionsPanel::edit);
    connect(m_tracks, &TrackOptions::changed, this, &OptionsPanel::edit);
    connect(&conversions, &Conversions::draftChanged, this, &OptionsPanel::showLater);
    connect(&conversions, &Conversions::informed, this, &OptionsPanel::showLater);
    connect(&conversions.queue(), &JobQueue::changed, this, [this](JobId id) {
        if (m_ids.contains(id))
            showLater();
    });
    show();
}

OptionsPanel::~OptionsPanel() = default;

/// A form that scrolls, with a place below it.
QFormLayout *OptionsPanel::addPage(OptionPage page, QVBoxLayout **below)
{
    auto *area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    auto *contents = new QWidget;
    auto *column = new QVBoxLayout(contents);
    column->setContentsMargins(0, 0, 12, 0);
    column->setSpacing(8);
    auto *form = new QFormLayout;
    form->setRowWrapPolicy(QFormLayout::WrapAllRows);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setSpacing(8);
    column->addLayout(form);
    m_controls->addPage(page, form);
    auto *lower = new QVBoxLayout;
    lower->setSpacing(8);
    column->addLayout(lower);
    column->addStretch(1);
    area->setWidget(contents);
    m_form->pages->addWidget(area);
    if (below)
        *below = lower;
    return form;
}

void OptionsPanel::addCutPage(QVBoxLayout *below)
{
    m_cutLabel = new QLabel;
    makeQuiet(m_cutLabel);
    auto *button = new QPushButton("Cut and Edit…"_key.localized());
    button->setObjectName(u"cutButton"_s);
    connect(button, &QPushButton::clicked, this, &OptionsPanel::editWanted);
    below->addWidget(m_cutLabel);
    below->addWidget(button);
}

void OptionsPanel::addOutputPage(QFormLayout *form, QVBoxLayout *below)
{
    m_folderBox = new QComboBox;
    m_folderBox->setObjectName(u"folderBox"_s);
    m_folderBox->setAccessibleName("Folder"_key.localized());
    m_folderBox->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_folderBox->addItems({"The settings' folder"_key.localized(), "Beside the source"_key.localized(),
                           "Another folder…"_key.localized()});
    connect(m_folderBox, &QComboBox::activated, this, &OptionsPanel::takeFolder);
    m_nameEdit = new QLineEdit;
    m_nameEdit->setObjectName(u"namePattern"_s);
    m_nameEdit->setAccessibleName("Name"_key.localized());
    m_nameEdit->setPlaceholderText(u"{name}"_s);
    m_nameEdit->setToolTip("{name}, {preset}, {folder} and {date} are filled in."_key.localized());
    connect(m_nameEdit, &QLineEdit::textEdited, this,
            [this](const QString &text) { edit([text](TranscodePlan &plan) { plan.namePattern = text; }); });
    m_exampleLabel = new QLabel;
    makeQuiet(m_exampleLabel);
    form->insertRow(0, "Folder"_key.localized(), m_folderBox);
    form->insertRow(1, "Name"_key.localized(), m_nameEdit);
    form->insertRow(2, m_exampleLabel);
    m_mergeBox = new QCheckBox("Join all files into one"_key.localized());
    m_mergeBox->setObjectName(u"mergeMedia"_s);
    connect(m_mergeBox, &QCheckBox::toggled, this, [this](bool isOn) { m_conversions.settings().setMergeMedia(isOn); });
    below->addWidget(m_mergeBox);
}

void OptionsPanel::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    showLater();
}

void OptionsPanel::setSelection(const QList<JobId> &ids)
{
    m_ids = ids;
    showLater();
}

void OptionsPanel::edit(const std::function<void(TranscodePlan &)> &change)
{
    m_conversions.edit(m_ids, change);
    showLater();
}

void OptionsPanel::takeFolder(int choice)
{
    if (choice == OtherFolder) {
        const QString folder = tarnwell::chooseFolder(this, m_conversions.settings().getVideoDir());
        if (!folder.isEmpty()) {
            edit([](TranscodePlan &plan) { plan.besideSource = false; });
            m_conversions.chooseFolder(m_ids, folder);
        }
    } else if (choice != OwnFolder) {
        m_conversions.chooseFolder(m_ids, {});
        edit([choice](TranscodePlan &plan) { plan.besideSource = choice == BesideSource; });
    }
    showLater();
}

/// Thousands may change in one go.
void OptionsPanel::showLater()
{
    if (std::exchange(m_isToShow, true))
        return;
    foundation::queue::asyncMain([guard = QPointer(this)] {
        if (guard)
            guard->show();
    });
}

void OptionsPanel::show()
{
    m_isToShow = false;
    m_ids.removeIf([this](JobId id) { return !m_conversions.queue().record(id); });
    const JobId first = m_ids.value(0);
    const TranscodePlan plan = first > 0 ? m_conversions.plan(first).value_or(TranscodePlan()) : m_conversions.draft();
    m_form->subjectLabel->setText(
        m_ids.isEmpty()     ? "For all files"_key.localized()
        : m_ids.size() == 1 ? m_conversions.queue().record(first)->title
                            : tarnwell::Sentence("%1 files selected"_key, {QString::number(m_ids.size())}).localized());
    m_controls->show(plan);
    constexpr qsizetype lookedAt = 50;
    const QList<JobId> startable = m_ids.isEmpty() ? m_conversions.startable() : QList<JobId>();
    QList<MediaInformation> sources;
    for (const JobId id : (m_ids.isEmpty() ? startable : m_ids).mid(0, lookedAt))
        sources += m_conversions.information(id).mid(0, 1);
    TranscodePlan subject = plan;
    if (m_ids.size() != 1)
        subject.sources.clear();
    m_tracks->show(subject, sources, m_conversions.tools().machine.language);
    if (!m_nameEdit->hasFocus())
        m_nameEdit->setText(plan.namePattern);
    const QSignalBlocker blocker(m_mergeBox);
    m_mergeBox->setChecked(m_conversions.settings().mergeMedia());
    showFolder();
    showEstimate(plan);
}

void OptionsPanel::showFolder()
{
    const JobId first = m_ids.value(0);
    const QString own = m_conversions.folderOf(first);
    const TranscodePlan plan = first > 0 ? m_conversions.plan(first).value_or(TranscodePlan()) : m_conversions.draft();
    while (m_folderBox->count() > OwnFolder)
        m_folderBox->removeItem(OwnFolder);
    if (!own.isEmpty())
        m_folderBox->addItem(own);
    m_folderBox->setCurrentIndex(plan.besideSource ? BesideSource : own.isEmpty() ? SettingsFolder : OwnFolder);
    TranscodePlan example = plan;
    if (const JobRecord *row = m_conversions.queue().record(m_conversions.startable().value(0));
        row && example.sources.isEmpty())
        example.sources = {row->source};
    if (example.sources.isEmpty())
        example.sources = {u"/Videos/Holiday.mov"_s};
    m_exampleLabel->setText(tarnwell::Sentence("For example: %1"_key, {outputBaseName(example, QDate::currentDate()) +
                                                                       u'.' + plan.preset.extension})
                                .localized());
}

void OptionsPanel::showEstimate(const TranscodePlan &plan)
{
    QString pieces = "The whole film is kept."_key.localized();
    if (!plan.pieces.isEmpty()) {
        QStringList parts;
        for (const TranscodePlan::Piece &piece : plan.pieces)
            parts.append(durationText(piece.start) + u"–"_s + durationText(piece.end));
        pieces = tarnwell::Sentence("Kept: %1"_key, {parts.join(u", "_s)}).localized();
    }
    m_cutLabel->setText(pieces);
    // Of all or of none: part of a sum would be read as the whole.
    constexpr qsizetype mostCounted = 20;
    const QList<JobId> ids = m_ids.isEmpty() ? m_conversions.startable() : m_ids;
    qint64 bytes = 0;
    bool isWhole = ids.size() <= mostCounted && isVisible();
    for (qsizetype i = 0; isWhole && i < ids.size(); ++i) {
        const qint64 each = m_conversions.expectedBytes(ids[i]);
        isWhole = each > 0;
        bytes += each;
    }
    m_form->estimateLabel->setVisible(isWhole && bytes > 0);
    m_form->estimateLabel->setText(
        tarnwell::Sentence("Size: about %1"_key, {QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat)})
            .localized());
}

}  // namespace kestrel
