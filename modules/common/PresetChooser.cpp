#include "PresetChooser.h"

#include "PresetDialog.h"
#include "media/OwnPresets.h"
#include "tarnwell/TextKey.h"

#include <QStandardItemModel>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using tarnwell::operator""_key;

const QString allFormatsId = u"*"_s;

}  // namespace

PresetChooser::PresetChooser(OwnPresets &ownPresets, QWidget *parent) : QComboBox(parent), m_ownPresets(ownPresets)
{
    setAccessibleName("Output format"_key.localized());
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(24);
    setMaxVisibleItems(20);
    fill();
    connect(&ownPresets, &OwnPresets::changed, this, &PresetChooser::fill);
    connect(this, &QComboBox::activated, this, &PresetChooser::take);
}

void PresetChooser::addHeading(const QString &text)
{
    addItem(text);
    auto *items = static_cast<QStandardItemModel *>(model());
    items->item(count() - 1)->setEnabled(false);
}

void PresetChooser::fill()
{
    clear();
    QString group;
    for (const QList<Preset> &presets : {m_ownPresets.presets(), builtInPresets()}) {
        for (const Preset &preset : presets) {
            if (preset.group != group)
                addHeading(presetGroupName(preset.group));
            group = preset.group;
            addItem(u"  "_s + preset.name, preset.id);
            setItemData(count() - 1, presetLine(preset), Qt::ToolTipRole);
        }
    }
    insertSeparator(count());
    addItem("All Formats…"_key.localized(), allFormatsId);
    setPlaceholderText("Several formats"_key.localized());
    if (Preset preset; !m_shown.isNull()) {
        preset.id = m_shown;
        preset.name = m_shownName;
        showPreset(&preset);
    }
}

void PresetChooser::showPreset(const Preset *preset)
{
    m_shown = preset ? preset->id : QString();
    m_shownName = preset ? preset->name : QString();
    int index = preset ? findData(m_shown) : -1;
    if (preset && index < 0) {
        // One of all formats, or an own one that was deleted since: before the last entry, until another takes over.
        index = count() - 2;
        insertItem(index, u"  "_s + m_shownName, m_shown);
    }
    setCurrentIndex(index);
}

void PresetChooser::take(int index)
{
    const QString id = itemData(index).toString();
    if (id == allFormatsId) {
        setCurrentIndex(findData(m_shown));
        emit allFormatsWanted();
    } else if (!id.isEmpty()) {
        emit chosen(id);
    }
}

}  // namespace kestrel
