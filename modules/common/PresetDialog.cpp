#include "PresetDialog.h"

#include "media/Encoders.h"
#include "media/OwnPresets.h"
#include "tarnwell/ui/TextStyles.h"
#include "tarnwell/ui/TranslateControls.h"
#include "ui_PresetDialog.h"

#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QSaveFile>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using tarnwell::operator""_key;

const QString presetFilePattern = u"*.kestrel-preset"_s;

QString fileFilter()
{
    return "Presets"_key.localized() + u" ("_s + presetFilePattern + u')';
}

}  // namespace

QString presetLine(const Preset &preset)
{
    QStringList facts{preset.extension.toUpper()};
    for (const QString &codec : {preset.videoCodec, preset.audioCodec}) {
        if (!codec.isEmpty())
            facts.append(codec == "copy"_L1 ? "kept as it is"_key.localized() : codecLabel(codec));
    }
    facts.removeDuplicates();
    return preset.name + u"   "_s + facts.join(u" · "_s);
}

PresetDialog::PresetDialog(OwnPresets &ownPresets, TranscodePlan plan, QWidget *parent)
    : QDialog(parent),
      m_ownPresets(ownPresets),
      m_plan(std::move(plan)),
      m_form(std::make_unique<Ui::PresetDialog>())
{
    setAttribute(Qt::WA_DeleteOnClose);
    m_form->setupUi(this);
    tarnwell::TranslateControls(this);
    tarnwell::setTextStyle(m_form->messageLabel, 12, QFont::Normal, tarnwell::palette::quietText);
    setUpActions();
    fill(m_plan.preset.id);
}

PresetDialog::~PresetDialog() = default;

void PresetDialog::setUpActions()
{
    const struct {
        QPushButton *button;
        void (PresetDialog::*action)();
        QKeySequence keys;
    } rows[] = {{m_form->saveButton, &PresetDialog::save, QKeySequence::Save},
                {m_form->renameButton, &PresetDialog::rename, Qt::Key_F2},
                {m_form->deleteButton, &PresetDialog::remove, {}},
                {m_form->exportButton, &PresetDialog::exportPreset, {}},
                {m_form->importButton, &PresetDialog::importPreset, {}},
                {m_form->chooseButton, &PresetDialog::choose, {}}};
    for (const auto &[button, action, keys] : rows) {
        button->setAccessibleName(button->text());
        button->setAutoDefault(button == m_form->chooseButton);
        connect(button, &QPushButton::clicked, this, action);
        if (!keys.isEmpty())
            connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    }
    auto *deletion = new QShortcut(QKeySequence::Delete, m_form->presetList, nullptr, nullptr, Qt::WidgetShortcut);
    connect(deletion, &QShortcut::activated, this, &PresetDialog::remove);
    // From the search straight into the list.
    connect(new QShortcut(Qt::Key_Down, m_form->searchEdit, nullptr, nullptr, Qt::WidgetShortcut),
            &QShortcut::activated, m_form->presetList, [this] { m_form->presetList->setFocus(); });
    connect(m_form->cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_form->searchEdit, &QLineEdit::textChanged, this, [this] { fill(currentId()); });
    connect(m_form->presetList, &QListWidget::currentRowChanged, this, &PresetDialog::showButtons);
    connect(m_form->presetList, &QListWidget::itemActivated, this, &PresetDialog::choose);
    connect(&m_ownPresets, &OwnPresets::changed, this, [this] { fill(currentId()); });
}

/// Every word of the search is somewhere in the line.
void PresetDialog::fill(const QString &selectedId)
{
    const QStringList words = m_form->searchEdit->text().split(u' ', Qt::SkipEmptyParts);
    m_form->presetList->clear();
    QString group;
    for (const QList<Preset> &presets : {m_ownPresets.presets(), allPresets()}) {
        for (const Preset &preset : presets) {
            const QString line = presetLine(preset);  // what is searched is what is shown
            const auto isIn = [&](const QString &word) { return line.contains(word, Qt::CaseInsensitive); };
            if (!std::all_of(words.begin(), words.end(), isIn))
                continue;
            if (preset.group != group) {
                auto *heading = new QListWidgetItem(presetGroupName(preset.group), m_form->presetList);
                heading->setFlags(Qt::NoItemFlags);
                heading->setForeground(QColor(tarnwell::palette::quietText));
            }
            group = preset.group;
            auto *item = new QListWidgetItem(u"   "_s + line, m_form->presetList);
            item->setData(Qt::UserRole, preset.id);
            if (preset.id == selectedId)
                m_form->presetList->setCurrentItem(item);
        }
    }
    if (!m_form->presetList->currentItem() && m_form->presetList->count() > 1)
        m_form->presetList->setCurrentRow(1);  // below its heading
    m_form->messageLabel->setText(m_form->presetList->count() > 0 ? QString()
                                                                  : "No format matches the search."_key.localized());
    showButtons();
}

QString PresetDialog::currentId() const
{
    const QListWidgetItem *item = m_form->presetList->currentItem();
    return item ? item->data(Qt::UserRole).toString() : QString();
}

void PresetDialog::showButtons()
{
    const QString id = currentId();
    const bool isOwn = m_ownPresets.presetOfId(id);
    for (QPushButton *button : {m_form->renameButton, m_form->deleteButton, m_form->exportButton})
        button->setEnabled(isOwn);
    m_form->chooseButton->setEnabled(!id.isEmpty());
}

void PresetDialog::choose()
{
    if (const QString id = currentId(); !id.isEmpty()) {
        emit chosen(id);
        accept();
    }
}

/// Of the plan with its options, not of the row: what is in use is what is worth keeping.
void PresetDialog::save()
{
    const QString name = QInputDialog::getText(this, "Save as Preset"_key.localized(),
                                               "Format and options in use are kept under this name:"_key.localized(),
                                               QLineEdit::Normal, m_plan.preset.name);
    if (name.isNull())
        return;
    const auto id = m_ownPresets.save(name, m_plan);
    m_form->searchEdit->clear();
    fill(id ? *id : QString());
    if (!id)
        m_form->messageLabel->setText(id.reason().localized());
}

void PresetDialog::rename()
{
    const Preset *preset = m_ownPresets.presetOfId(currentId());
    if (!preset)
        return;
    const QString id = preset->id;
    const QString name = QInputDialog::getText(this, "Rename"_key.localized(), "Name of the preset:"_key.localized(),
                                               QLineEdit::Normal, preset->name);
    if (!name.isNull() && !m_ownPresets.rename(id, name))
        m_form->messageLabel->setText("A preset needs a name."_key.localized());
}

void PresetDialog::remove()
{
    if (m_ownPresets.presetOfId(currentId()))
        m_ownPresets.remove(currentId());
}

void PresetDialog::exportPreset()
{
    const Preset *preset = m_ownPresets.presetOfId(currentId());
    if (!preset)
        return;
    const QByteArray content = m_ownPresets.exported(preset->id);
    const QString name = QString(preset->name).replace(u'/', u'-') + presetFilePattern.mid(1);
    const QString path = QFileDialog::getSaveFileName(this, "Export"_key.localized(), name, fileFilter());
    if (path.isEmpty())
        return;
    QSaveFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit();
    m_form->messageLabel->setText(isWritten ? QString() : "The file could not be written."_key.localized());
}

void PresetDialog::importPreset()
{
    const QString path = QFileDialog::getOpenFileName(this, "Import"_key.localized(), QString(), fileFilter());
    if (path.isEmpty())
        return;
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        m_form->messageLabel->setText("The file could not be read."_key.localized());
        return;
    }
    const auto id = m_ownPresets.import(file.read(maximumPresetFileBytes + 1));
    m_form->searchEdit->clear();
    fill(id ? *id : currentId());
    if (!id)
        m_form->messageLabel->setText(id.reason().localized());
}

}  // namespace kestrel
