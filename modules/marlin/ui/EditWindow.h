#pragma once

#include "TrialRun.h"

#include "media/KeyPictures.h"
#include "media/TranscodeJob.h"

#include <QDialog>

#include <memory>

class QDoubleSpinBox;

namespace Ui {
class EditWindow;
}

namespace kestrel {

class FrameMaker;
class JKestrelSettingDispatcher;
class MediaPlayer;
class OptionControls;
class PictureView;
class PieceList;
class Thumbnails;
class TimeLine;
class ToolPath;
class ToolProcess;
class WatermarkControls;

/// Cuts and edits one film: the picture of the result stands beside the source's. Deletes itself when it is closed.
class EditWindow : public QDialog {
    Q_OBJECT
public:
    struct Subject {
        TranscodePlan plan;  ///< of one source
        MediaInformation source;
        TranscodeTools tools;
    };

    /// The others outlive the window.
    EditWindow(Subject subject, const JKestrelSettingDispatcher &settings, Thumbnails &thumbnails, MediaPlayer &player,
               QWidget *parent);
    ~EditWindow() override;

signals:
    void edited(const kestrel::TranscodePlan &plan);

private:
    void makeViews(Thumbnails &thumbnails);
    void makeForms();
    void makeCropBoxes();
    void connectButtons();
    void change(const std::function<void(TranscodePlan &)> &change);
    void setCrop(const QRectF &crop);
    void takeCropBoxes();
    void showPlan();
    void showFrames(bool sourceToo);
    void findKeyPictures();
    void showKeyPictures();
    void findBars();
    void takeBars(const class PictureScan &scan);
    void toggleTrial();
    void showTrial(const QString &path, const QString &sentence);
    void takeSnapshot();
    void saveSnapshot(const QImage &image);
    void showMessage(const QString &text);
    double duration() const { return m_subject.source.duration.value_or(0); }

    Subject m_subject;
    const JKestrelSettingDispatcher &m_settings;
    MediaPlayer &m_player;
    std::unique_ptr<Ui::EditWindow> m_form;
    FrameMaker *m_sourceFrames, *m_resultFrames, *m_snapshots;
    OptionControls *m_controls;
    WatermarkControls *m_watermark = nullptr;
    PictureView *m_sourceView = nullptr, *m_resultView = nullptr;
    TimeLine *m_timeLine = nullptr;
    PieceList *m_pieces = nullptr;
    QDoubleSpinBox *m_cropBoxes[4] = {};  ///< left, top, right, bottom; percent that are cut off
    TrialRun m_trial;
    std::unique_ptr<ToolPath> m_scanPath, m_keyPath;
    std::unique_ptr<ToolProcess> m_scan, m_keyScan;
    KeyPictures m_keys;
    QString m_cutText;  ///< where a cut without encoding really begins, as the message shows it
};

}  // namespace kestrel
