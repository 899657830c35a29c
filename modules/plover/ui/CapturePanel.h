#pragma once

#include "modules/plover/CaptureTarget.h"
#include "modules/plover/LevelMeter.h"

#include <QTimer>
#include <QWidget>

class QComboBox;
class QLabel;
class QProgressBar;

namespace kestrel {

class ScreenCastPortal;

/// What is to be recorded: screens, windows, an area, a camera; the sound; and how it looks and sounds at the moment.
/// Opens nothing before `open` and lets everything go with `release`.
class CapturePanel : public QWidget {
    Q_OBJECT
public:
    CapturePanel();
    ~CapturePanel() override;

    void open(const QString &transcoderPath);
    void release();
    bool isOpen() const { return m_preview.isActive(); }

    /// Puts the choices into the plan.
    void choose(RecordPlan &plan) const;
    bool wantsCountdown() const;
    /// Why nothing can be recorded; none where it can.
    tarnwell::Sentence obstacle() const { return m_obstacle; }

signals:
    void changed();

private:
    void fillSources();
    void addPortal();
    void sourceChosen();
    void soundChosen();
    void chooseArea();
    void showPreview();

    QComboBox *m_sources;
    QComboBox *m_sounds;
    QComboBox *m_countdown;
    QComboBox *m_limits;
    QLabel *m_picture;
    QProgressBar *m_level;
    QString m_transcoderPath;
    QRect m_area;
    LevelMeter m_meter;
    std::unique_ptr<ScreenCastPortal> m_portal;  ///< while it is looked for one
    QTimer m_preview;
    tarnwell::Sentence m_obstacle;
};

}  // namespace kestrel
