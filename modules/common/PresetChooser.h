#pragma once

#include <QComboBox>

namespace kestrel {

class OwnPresets;
struct Preset;

/// The list of presets, in groups; own ones first, and "All Formats…" last.
class PresetChooser : public QComboBox {
    Q_OBJECT
public:
    explicit PresetChooser(OwnPresets &ownPresets, QWidget *parent = nullptr);

    /// Shows the preset, also one that is not among them; null for several different ones. Emits nothing.
    void showPreset(const Preset *preset);

signals:
    void chosen(const QString &id);
    void allFormatsWanted();

private:
    void fill();
    void addHeading(const QString &text);
    void take(int index);

    OwnPresets &m_ownPresets;
    QString m_shown, m_shownName;
};

}  // namespace kestrel
