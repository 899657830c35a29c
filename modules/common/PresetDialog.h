#pragma once

#include "media/TranscodePlan.h"

#include <QDialog>

#include <memory>

namespace Ui {
class PresetDialog;
}

namespace kestrel {

class OwnPresets;

/// "MKV with H.265   MKV · H.265 · AAC"
QString presetLine(const Preset &preset);

/// Every format that can be made, with a search, and the keeping of own presets. Deletes itself when it is closed.
class PresetDialog : public QDialog {
    Q_OBJECT
public:
    /// `plan` is what "Save as Preset" saves; its preset is the one that is shown first.
    PresetDialog(OwnPresets &ownPresets, TranscodePlan plan, QWidget *parent);
    ~PresetDialog() override;

signals:
    void chosen(const QString &id);

private:
    void setUpActions();
    void fill(const QString &selectedId);
    void showButtons();
    QString currentId() const;
    void choose();
    void save();
    void rename();
    void remove();
    void exportPreset();
    void importPreset();

    OwnPresets &m_ownPresets;
    TranscodePlan m_plan;
    std::unique_ptr<Ui::PresetDialog> m_form;
};

}  // namespace kestrel
