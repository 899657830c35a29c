#pragma once

#include "RecordCommand.h"
#include "UnfinishedRecording.h"

#include "jobs/DiskSpace.h"
#include "jobs/ToolJob.h"
#include "jobs/WorkFolder.h"
#include "media/ToolMessages.h"

#include <QPointer>
#include <QTimer>

#include <atomic>

namespace kestrel {

class OutputFile;
class Placing;
class ScreenCastPortal;

struct RecordTools {
    QString transcoder;                                        ///< absolute path of ffmpeg
    QString prober;                                            ///< of ffprobe
    QString frames = {};                                       ///< of screenFrames
    QString restoreToken = {};                                 ///< of what the portal let be recorded last
    std::function<void(const QString &token)> keepToken = {};  ///< takes the one for next time
    /// The device that encodes pictures of this size in hardware; empty where there is none, or it is not to be used.
    std::function<QString(QSize pictures)> hardwareDevice = {};
    DiskSpaceFunction diskSpace = diskSpaceOf;
    qint64 reservedBytes = 200'000'000;  ///< that are left free on the disk
};

/// A recording: stretches of Matroska that grow beside the result, and what joins them without encoding when it ends,
/// which is its success. A pause ends a stretch. A source that goes away ends one as well, and so does a change
/// of its size: it is gone on with, without the sound where that is gone, or, where the pictures are gone, ended with
/// what there is. Ends by itself when the disk is nearly full.
///
/// The stretches stay where the job's object goes while it runs: `UnfinishedRecording::findAll` finds them, and a job
/// with such a one finishes it.
class RecordJob : public ToolJob {
    Q_OBJECT
public:
    RecordJob(RecordPlan plan, const QString &folder, RecordTools tools, QObject *parent = nullptr);
    RecordJob(UnfinishedRecording recording, RecordTools tools, QObject *parent = nullptr);
    ~RecordJob() override;

    void start() override;
    void stop() override;
    void setPaused(bool paused) override;

    /// What is to be seen now, of a screen that the desktop shares: `snapshotTaken` follows. False for any other, whose
    /// picture anybody can have, and while there is none.
    bool takeSnapshot();
    /// Pictures so far that did not come in time.
    qint64 missedPictures() const { return m_recorded.missed + m_stretch.missed; }

signals:
    /// The file is a PPM, to be read at once.
    void snapshotTaken(const QString &path);

protected:
    void discard() override;

private:
    /// What a stretch came to, as ffmpeg told it.
    struct Tally {
        qint64 pictures = 0;
        qint64 bytes = 0;
        qint64 missed = 0;  ///< pictures of which there was none in time
        void readLine(const QByteArray &line);
    };

    void openScreen();
    void screenClosed();
    void releaseScreen();
    void beginStretch();
    void runStretch(std::shared_ptr<const ToolCommand> feeder);
    void readScreen(const QByteArray &line);
    void readProgress(const QByteArray &line);
    void stretchEnded(const ToolEnding &ending);
    void setTarget(const CaptureTarget &target);
    void loseInset();
    void goOnAfterFailure(const ToolEnding &ending);
    void endRecording();
    bool loseMicrophone(const ToolEnding &ending);
    void noteSoundEnd(const QByteArray &line);
    void lookForSound();
    void followUsualDevice(const QString &device);
    bool hasStopped();
    bool followTarget();
    void watch();
    void measure();
    void join();
    void check(const ToolEnding &ending);
    QJsonObject facts() const;
    void place(JobOutcome outcome);
    void placeAsItIs(const tarnwell::Sentence &problem, tarnwell::TextKey problemOfSeveral = {});
    void fail(const tarnwell::Sentence &sentence, const QString &details = {});
    void removeStretches();
    double secondsCut() const;
    double recordedSeconds() const { return double(m_recorded.pictures + m_stretch.pictures) / m_recording.plan.rate; }

    UnfinishedRecording m_recording;
    RecordTools m_tools;
    QString m_hardwareDevice;  ///< of all stretches, which are encoded alike; empty for software
    QSize m_size;              ///< of the pictures of all stretches; empty until it is known
    CaptureTarget m_target;
    bool m_isRecovery = false;
    bool m_isSilent = false;                    ///< for want of the sound server
    bool m_hasSoundEnded = false;               ///< of the stretch of the moment: its pictures go on alone
    bool m_isServerThere = false;               ///< it is back, and nothing was recorded since
    std::unique_ptr<ToolProcess> m_soundProbe;  ///< while it is asked
    QString m_usualDevice;                      ///< of the stretch's sound, when it was asked last
    int m_looksForSound = 0;
    bool m_isHolding = false;  ///< paused: a stretch has ended or is about to
    bool m_isFinishing = false;
    qint64 m_picturesAtLook = 0;
    int m_looksInVain = 0;
    bool m_isToEnd = false;                      ///< with the stretch of the moment
    int m_failures = 0;                          ///< one after another, without a picture between them
    std::unique_ptr<ScreenCastPortal> m_screen;  ///< from the question to the desktop on
    quint32 m_node = 0;                          ///< of what is shared; 0 as long as the user thinks
    bool m_isScreenMissing = false;              ///< it is shared, but no pictures come
    QPointer<ToolProcess> m_recorder;
    Tally m_recorded;            ///< of the stretches that have ended
    Tally m_stretch;             ///< of the one that is recorded
    QList<StretchSpan> m_spans;  ///< of all, once they are to be joined
    ToolMessages m_messages;
    QList<tarnwell::Sentence> m_problems;
    QTimer m_watch;  ///< over disk and sources
    std::shared_ptr<std::atomic_bool> m_isSyncing = std::make_shared<std::atomic_bool>(false);
    std::unique_ptr<WorkFolder> m_workFolder;
    std::unique_ptr<WorkFolder> m_snapshots;  ///< where the display is shared
    std::shared_ptr<OutputFile> m_output;
    std::shared_ptr<Placing> m_placing;
};

}  // namespace kestrel
