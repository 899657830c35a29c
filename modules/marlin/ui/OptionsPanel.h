#pragma once

#include "jobs/JobRecord.h"
#include "modules/marlin/PlanOptions.h"

#include <QWidget>

#include <memory>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QVBoxLayout;

namespace Ui {
class OptionsPanel;
}

namespace kestrel {

class Conversions;
class OptionControls;
class TrackOptions;

/// The options of the selected conversions, or without a selection of all that are still to be converted or added. A
/// change is made in all of them at once; what is shown is the first one's.
class OptionsPanel : public QWidget {
    Q_OBJECT
public:
    /// `conversions` outlives it.
    explicit OptionsPanel(Conversions &conversions, QWidget *parent = nullptr);
    ~OptionsPanel() override;

    void setSelection(const QList<JobId> &ids);

signals:
    void editWanted();  ///< the button of the cuts

protected:
    void showEvent(QShowEvent *event) override;

private:
    QFormLayout *addPage(OptionPage page, QVBoxLayout **below = nullptr);
    void addCutPage(QVBoxLayout *below);
    void addOutputPage(QFormLayout *form, QVBoxLayout *below);
    void edit(const std::function<void(TranscodePlan &)> &change);
    void takeFolder(int choice);
    void showLater();
    void show();
    void showFolder();
    void showEstimate(const TranscodePlan &plan);

    Conversions &m_conversions;
    QList<JobId> m_ids;
    std::unique_ptr<Ui::OptionsPanel> m_form;
    OptionControls *m_controls;
    TrackOptions *m_tracks;
    QLabel *m_cutLabel = nullptr;
    QComboBox *m_folderBox = nullptr;
    QLineEdit *m_nameEdit = nullptr;
    QLabel *m_exampleLabel = nullptr;
    QCheckBox *m_mergeBox = nullptr;
    bool m_isToShow = false;
};

}  // namespace kestrel
