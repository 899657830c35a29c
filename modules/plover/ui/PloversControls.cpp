#include "PloversController.h"

#include "CapturePanel.h"
#include "ClickRings.h"
#include "ControlBar.h"
#include "ScreenOverlay.h"
#include "foundation/Queues.h"
#include "jobs/JobQueue.h"
#include "jobs/ui/JobPage.h"
#include "modules/common/LateView.h"
#include "modules/common/Snapshot.h"
#include "modules/plover/X11Display.h"
#include "settings/JKestrelSettingDispatcher.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QMenu>
#include <QShortcut>
#include <QSystemTrayIcon>

// What a recording is ended and held with while it runs.

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

/// What can be done from anywhere, with Ctrl and Alt.
constexpr struct {
    X11Keys::Key key;
    Qt::Key letter;
    tarnwell::TextKey text;
} remoteActions[] = {{X11Keys::Key::Stop, Qt::Key_S, "Stop"_key},
                     {X11Keys::Key::Pause, Qt::Key_P, "Pause"_key},
                     {X11Keys::Key::Snapshot, Qt::Key_N, "Snapshot"_key}};

QKeySequence keysFor(Qt::Key letter)
{
    return QKeySequence(Qt::CTRL | Qt::ALT | letter);
}

}  // namespace

void PloversController::openControls()
{
    takeKeys();
    if (m_keys && m_panel->showsClicks()) {
        m_rings = std::make_unique<ClickRings>(*m_keys);
        m_rings->setActive(true);
    }
    openTray();
    m_bar = std::make_unique<ControlBar>();
    connect(m_bar.get(), &ControlBar::pauseClicked, this, &PloversController::togglePause);
    connect(m_bar.get(), &ControlBar::stopClicked, this, &PloversController::stopRecording);
    connect(m_bar.get(), &ControlBar::snapshotClicked, this, &PloversController::takeSnapshot);
    m_bar->setKeys(keyTexts());
    m_bar->setSnapshotOffered(offers(X11Keys::Key::Snapshot));
    if (m_target.isShared)  // nobody knows where that is: this window stays
        return;
    if (m_target.display.isEmpty())
        return m_bar->showAtEdge();
    QRect area = m_target.area;
    if (m_target.window != 0) {
        const auto display = X11Display::open();
        if (const auto window = display ? (*display)->window(m_target.window) : std::nullopt)
            area = window->area;
    }
    // Without room beside the picture, this window steps out of it where tray or keys remain.
    const bool isInReach = QSystemTrayIcon::isSystemTrayAvailable() || (m_keys && m_keys->isTaken(X11Keys::Key::Stop));
    if (!m_bar->showBeside(area) && isInReach && m_view->isVisible())
        m_view->window()->showMinimized();
}

void PloversController::openTray()
{
    m_trayMenu = std::make_unique<QMenu>();
    const QStringList keys = keyTexts();
    for (const auto &[key, letter, text] : remoteActions) {
        m_trayMenu
            ->addAction((text.localized() + u'\t' + keys[qsizetype(key)]).trimmed(), this,
                        [this, key = key] { keyPressed(key); })
            ->setVisible(offers(key));
    }
    m_tray = std::make_unique<QSystemTrayIcon>(QApplication::windowIcon());
    m_tray->setToolTip(trayTip({}));
    m_tray->setContextMenu(m_trayMenu.get());
    connect(m_tray.get(), &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger)
            keyPressed(X11Keys::Key::Stop);
    });
    m_tray->show();
}

/// Where the bar has no place, the icon alone tells how far the recording is.
QString PloversController::trayTip(const QString &progress) const
{
    QStringList lines{"Recording"_key.localized(), progress, keyLine(u'\n')};
    lines.removeAll(QString());
    return lines.join(u'\n');
}

void PloversController::takeKeys()
{
    if (m_shortcuts)
        return;
    if (!isWaylandSession()) {
        if (!m_keys) {
            m_keys = std::make_unique<X11Keys>();
            connect(m_keys.get(), &X11Keys::pressed, this, &PloversController::keyPressed);
        }
        for (const auto &[key, letter, text] : remoteActions) {
            if (offers(key))
                m_keys->take(key);
        }
        return;
    }
    m_shortcuts = std::make_unique<QObject>();
    for (const auto &[key, letter, text] : remoteActions) {
        auto *shortcut = new QShortcut(keysFor(letter), m_view->window());
        shortcut->setContext(Qt::ApplicationShortcut);
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, this, [this, key = key] { keyPressed(key); });
        connect(m_shortcuts.get(), &QObject::destroyed, shortcut, &QObject::deleteLater);
    }
}

/// Of those that were got and do something.
QStringList PloversController::keyTexts() const
{
    QStringList texts;
    for (const auto &[key, letter, text] : remoteActions) {
        const bool isThere = offers(key) && (m_shortcuts || (m_keys && m_keys->isTaken(key)));
        texts.append(isThere ? keysFor(letter).toString(QKeySequence::NativeText) : QString());
    }
    return texts;
}

QString PloversController::keyLine(QChar separator) const
{
    const QStringList keys = keyTexts();
    QStringList parts;
    for (const auto &[key, letter, text] : remoteActions) {
        if (const QString &known = keys[qsizetype(key)]; !known.isEmpty())
            parts.append(text.localized() + u": "_s + known);
    }
    return parts.join(separator == u' ' ? u" · "_s : QString(separator));
}

void PloversController::closeControls()
{
    m_recording = 0;
    m_meter.close();
    m_rings.reset();
    m_keys.reset();
    m_shortcuts.reset();
    m_tray.reset();
    if (m_trayMenu)
        m_trayMenu.release()->deleteLater();
    // Its own button may be what ended the recording.
    if (m_bar)
        m_bar.release()->deleteLater();
    QWidget *window = m_view->window();
    if (window->isMinimized())
        window->showNormal();
    if (m_view->isVisible())
        openPanel();
}

void PloversController::recordChanged(JobId id)
{
    if (id != m_recording || id == 0)
        return;
    const JobRecord *record = queue().record(id);
    if (!record || isEnded(record->state)) {
        closeControls();
    } else if (m_bar) {
        const qint64 missed = m_recipe.recording() ? m_recipe.recording()->missedPictures() : 0;
        m_bar->showRecord(*record, missed);
        m_tray->setToolTip(trayTip(ControlBar::textOf(*record, missed)));
        const auto pause = int(X11Keys::Key::Pause);
        const tarnwell::TextKey text = record->state == JobState::Paused ? "Go On"_key : "Pause"_key;
        m_trayMenu->actions().at(pause)->setText((text.localized() + u'\t' + keyTexts()[pause]).trimmed());
    }
    showState();
}

void PloversController::keyPressed(X11Keys::Key key)
{
    switch (key) {
        case X11Keys::Key::Stop:
            // Not within the keys' own signal, which ends with them.
            return foundation::queue::asyncMain([self = QPointer(this)] {
                if (self)
                    self->stopRecording();
            });
        case X11Keys::Key::Pause:
            return togglePause();
        case X11Keys::Key::Snapshot:
            return takeSnapshot();
    }
}

void PloversController::togglePause()
{
    const JobRecord *record = queue().record(m_recording);
    if (record)
        queue().setPaused({m_recording}, record->state != JobState::Paused);
}

void PloversController::stopRecording()
{
    if (m_recording != 0)
        queue().stop({m_recording});
    else
        endCountdown();
}

void PloversController::takeSnapshot()
{
    if (m_recording == 0)
        return;
    if (m_target.isShared) {
        RecordJob *job = m_recipe.recording();
        if (!job || !job->takeSnapshot())
            return tell("There is no picture at this place."_key.localized());
        disconnect(job, &RecordJob::snapshotTaken, this, nullptr);  // one that never came
        connect(
            job, &RecordJob::snapshotTaken, this, [this](const QString &path) { saveSnapshot(QImage(path)); },
            Qt::SingleShotConnection);
    }
    // What is recorded may have another size by now.
    const auto plan = RecordPlan::fromJson(queue().record(m_recording)->plan);
    const auto target = plan && !m_target.display.isEmpty() ? captureTarget(*plan) : CaptureTarget();
    if (!target)
        tell(target.reason().localized());
    else if (!target->display.isEmpty())
        saveSnapshot(displayPicture(target->window, target->area).toImage());
}

void PloversController::saveSnapshot(const QImage &picture)
{
    const QString moment = QDateTime::currentDateTime().toString(u"yyyy-MM-dd HH.mm.ss.zzz"_s);
    // The folder for snapshots is the converter's setting, the only one for all of Kestrel's pictures.
    const QString folder = JKestrelSettingDispatcher::SettingDispatcherWithType(ModuleSettingVideo)->getSnapshotDir();
    const bool isThere = QDir().mkpath(folder);
    keepSnapshot(picture, isThere ? folder : m_settings->getVideoDir(), "Snapshot"_key.localized() + u' ' + moment,
                 m_page, [this](const QString &path, const QString &sentence) {
                     const QString name = QFileInfo(path).fileName();
                     tell(path.isEmpty() ? sentence : Sentence("Saved: %1"_key, {name}).localized());
                 });
}

/// Where it is seen while a recording runs.
void PloversController::tell(const QString &text)
{
    if (m_bar && m_bar->isVisible())
        m_bar->showNote(text);
    else if (m_tray && QSystemTrayIcon::isSystemTrayAvailable())
        m_tray->showMessage("Recording"_key.localized(), text);
    else
        m_page->showMessage(text);
}

}  // namespace kestrel
