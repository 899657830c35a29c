#include "RecordJob.h"

#include "ScreenCastPortal.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <csignal>

// A recording of what the desktop shares.

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

const QString snapshotName = u"snapshot.ppm"_s;

}  // namespace

/// The desktop asks the user, or knows the answer.
void RecordJob::openScreen()
{
    m_snapshots = std::make_unique<WorkFolder>();
    m_screen = std::make_unique<ScreenCastPortal>();
    connect(m_screen.get(), &ScreenCastPortal::opened, this, [this](const ScreenCastPortal::Screen &screen) {
        m_node = screen.node;
        if (m_tools.keepToken)
            m_tools.keepToken(screen.restoreToken);
        if (!m_isHolding)
            beginStretch();
    });
    connect(m_screen.get(), &ScreenCastPortal::ended, this,
            [this](ScreenCastPortal::End end, const Sentence &sentence) {
                if (end == ScreenCastPortal::End::Closed)
                    return screenClosed();
                if (end == ScreenCastPortal::End::Failed && !m_recording.stretches.isEmpty()) {
                    m_problems.append(sentence);
                    return screenClosed();
                }
                if (end == ScreenCastPortal::End::Failed)
                    return fail(sentence);
                discard();
                finish({.state = JobState::Cancelled});
            });
    emit progressed({.stage = Sentence("Waiting for your choice in the desktop's dialog…"_key)});
    m_screen->open({.pointer = m_recording.plan.pointer,
                    .restoreToken = m_recording.plan.again ? m_tools.restoreToken : QString()});
}

void RecordJob::beginStretch()
{
    if (!m_target.isShared)
        return runStretch({});
    if (m_node == 0 || !m_screen)  // begins when the user has chosen
        return;
    m_screen->openRemote([this](const QDBusUnixFileDescriptor &remote) {
        if (!m_screen || m_recorder || m_isHolding || m_isFinishing || isStopping())
            return;
        m_isScreenMissing = !remote.isValid();
        if (m_isScreenMissing)
            return endRecording();
        const int connection = remote.fileDescriptor();
        // The tool is started before this returns and has its own then.
        runStretch(std::make_shared<const ToolCommand>(ToolCommand{
            .program = m_tools.frames,
            .arguments = framesArguments(m_recording.plan, m_target.area.size(), connection, m_node,
                                         m_snapshots->filePath(snapshotName)),
            .descriptor = connection,
        }));
    });
}

/// What screenFrames tells.
void RecordJob::readScreen(const QByteArray &line)
{
    const QJsonObject told = QJsonDocument::fromJson(line).object();
    const QJsonArray size = told["size"_L1].toArray();
    if (m_target.area.isEmpty() && size.size() == 2)
        m_target.area.setSize({size[0].toInt(), size[1].toInt()});
    m_stretch.missed = std::max(m_stretch.missed, told["dropped"_L1].toInteger());
    if (told["snapshot"_L1].toBool())
        emit snapshotTaken(m_snapshots->filePath(snapshotName));
    m_isScreenMissing = m_isScreenMissing || told.contains("error"_L1);
    // Where there is sound, ffmpeg would wait for pictures for ever.
    if (m_isScreenMissing || told.contains("end"_L1))
        screenClosed();
}

bool RecordJob::takeSnapshot()
{
    if (!m_target.isShared || !m_recorder || m_stretch.pictures == 0)
        return false;
    m_recorder->sendToFeeder(SIGUSR1);
    return true;
}

/// "Stop sharing" is another way to stop, and so is closing the window that is shared.
void RecordJob::screenClosed()
{
    if (m_isFinishing)
        return;
    m_isToEnd = true;
    if (m_recorder)
        m_recorder->stop();
    else
        endRecording();
}

/// Later: it may be what called.
void RecordJob::releaseScreen()
{
    if (m_screen)
        m_screen.release()->deleteLater();
}

}  // namespace kestrel
