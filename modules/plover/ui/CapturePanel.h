#pragma once

#include "CameraPicture.h"

#include "modules/plover/LevelMeter.h"

#include <QTimer>
#include <QWidget>

#include <optional>

class QCheckBox;
class QComboBox;
class QProgressBar;
class QTimeEdit;

namespace kestrel {

class PreviewPicture;
class ScreenCastPortal;
class ToolProcess;

/// What is to be recorded: screens, windows, an area, a camera; the sound; how it begins and ends; and how it looks and
/// sounds at the moment. Opens nothing before `open` and lets everything go with `release`.
class CapturePanel : public QWidget {
    Q_OBJECT
public:
    enum class Begin { AtOnce, AfterCountdown, AtTime };

    CapturePanel();
    ~CapturePanel() override;

    /// `usual`: what the settings say; `last`: the `choices` of last time, if any.
    void open(const QString &transcoderPath, const RecordPlan &usual, const QJsonObject &last);
    void release();
    bool isOpen() const { return m_preview.isActive(); }

    /// Puts the choices into the plan.
    void choose(RecordPlan &plan) const;
    /// What `open` takes next time, with what of them is in the plan.
    QJsonObject choices(const RecordPlan &plan) const;
    void setShowsClicks(bool shows);
    bool wantsClicks() const;
    bool showsClicks() const;  ///< it is wanted, and would be in the picture
    Begin begin() const;
    QDateTime beginTime() const;  ///< of AtTime: the next time that the clock shows it
    /// Why nothing can be recorded; none where it can.
    tarnwell::Sentence obstacle() const;

signals:
    void beginChosen();
    void noted(const kestrel::tarnwell::Sentence &note);  ///< something else than last time was chosen

private:
    static QString rateText(double rate);
    static bool canShowClicks(const RecordPlan &plan);
    void makeChoices();
    void arrange();
    void fillSources();
    void fillCameras();
    void fillMicrophones();
    void addPortal();
    void restore(const RecordPlan &usual, const QJsonObject &choices);
    void sourceChosen();
    void soundChosen();
    void insetChosen();
    void chooseArea();
    void chooseWindow();
    void showPreview();
    void followCamera(const RecordPlan &plan);

    QComboBox *m_sources;
    QComboBox *m_insets;
    QComboBox *m_sounds;
    QComboBox *m_microphones;
    QComboBox *m_formats;
    QComboBox *m_qualities;
    QComboBox *m_rates;
    QComboBox *m_begins;
    QComboBox *m_limits;
    QTimeEdit *m_time;
    QCheckBox *m_pointer;
    QCheckBox *m_clicks;
    PreviewPicture *m_picture;
    QProgressBar *m_level;
    QString m_transcoderPath;
    QRect m_area;
    bool m_isRestored = false;
    CameraPicture m_camera;
    LevelMeter m_meter;
    std::unique_ptr<ToolProcess> m_microphoneList;
    std::unique_ptr<ScreenCastPortal> m_portal;  ///< while it is looked for one
    QTimer m_preview;
    tarnwell::Sentence m_obstacle;
};

}  // namespace kestrel
