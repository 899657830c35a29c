#pragma once

#include "jobs/JobRecord.h"

#include <QDeadlineTimer>
#include <QFrame>

class QLabel;
class QProgressBar;
class QPushButton;

namespace kestrel {

/// The small bar that stands beside what is recorded: time, size, level, and what can be done with the recording.
class ControlBar : public QFrame {
    Q_OBJECT
public:
    ControlBar();

    /// Puts it beside the area, in pixels of the desktop, or into a corner of a screen. False, and it stays hidden,
    /// where there is no room that is not in the picture.
    bool showBeside(const QRect &area);
    /// Where nothing of a screen is recorded: at the lower edge of the first.
    void showAtEdge();
    /// The keys that do what the buttons do, as the user knows them: of stop, pause, snapshot. Empty where there is
    /// none.
    void setKeys(const QStringList &keys);
    void setSnapshotOffered(bool isOffered);
    /// Time, size, and `missed`: pictures that did not come in time.
    static QString textOf(const JobRecord &record, qint64 missed);
    void showRecord(const JobRecord &record, qint64 missed);
    void setLevel(double level);
    void showNote(const QString &note);  ///< for some seconds, in the place of time and size

signals:
    void pauseClicked();
    void stopClicked();
    void snapshotClicked();

private:
    void showProgress();

    QLabel *m_text;
    QString m_progress;  ///< time and size, as last told
    QDeadlineTimer m_noteEnd;
    QProgressBar *m_level;
    QPushButton *m_stop;
    QPushButton *m_pause;
    QPushButton *m_snapshot;
};

}  // namespace kestrel
