#include "RecordJob.h"

#include "foundation/Queues.h"
#include "tarnwell/Log.h"

#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <unistd.h>
#include <atomic>
#include <utility>

// What becomes of a recording whose sources change or go away.

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

/// What has been recorded survives the end of the machine as well. A slow disk is not asked again while it writes.
void syncLater(const QString &path, const std::shared_ptr<std::atomic_bool> &isSyncing)
{
    if (isSyncing->exchange(true))
        return;
    foundation::queue::asyncGlobal([name = QFile::encodeName(path), isSyncing] {
        if (const int file = open(name.constData(), O_RDONLY | O_CLOEXEC); file >= 0) {
            fdatasync(file);
            close(file);
        }
        *isSyncing = false;
    });
}

const tarnwell::TextKey soundIsMissing = "The sound is missing since the sound server went away."_key;
const tarnwell::TextKey soundWasMissing = "The sound server was away for a while: that part has no sound."_key;

}  // namespace

void RecordJob::setTarget(const CaptureTarget &target)
{
    m_target = target;
    if (!target.note.isEmpty() && !m_problems.contains(target.note))
        m_problems.append(target.note);
}

/// The screen's picture goes on without it.
void RecordJob::loseInset()
{
    m_recording.plan.inset.reset();
    m_problems.append("The camera went away: its picture ends there."_key);
}

/// What ffmpeg says of a sound that cannot be opened, or ends, begins with its name.
bool RecordJob::loseMicrophone(const ToolEnding &ending)
{
    RecordPlan &plan = m_recording.plan;
    if (plan.microphone.isEmpty() || !ending.lastWords.contains(plan.microphone + u": "_s))
        return false;
    plan.microphone.clear();
    m_problems.append("The chosen microphone is missing: the usual one is recorded instead."_key);
    return true;
}

void RecordJob::noteSoundEnd(const QByteArray &line)
{
    for (const QString &source : soundSources(m_recording.plan))
        m_hasSoundEnded = m_hasSoundEnded || line.contains((source + u": "_s).toUtf8());
}

/// Asks the sound server now and then: it may be back, or record from elsewhere.
void RecordJob::lookForSound()
{
    constexpr int looks = 8;
    const QStringList usual = usualDeviceArguments(m_recording.plan);
    if (m_soundProbe || (!m_isSilent && usual.isEmpty()) || m_looksForSound++ % looks != 0)
        return;
    const bool isForServer = m_isSilent;
    RecordPlan plan = m_recording.plan;
    plan.microphone.clear();
    m_soundProbe =
        std::make_unique<ToolProcess>(ToolCommand{.program = m_tools.transcoder,
                                                  .arguments = isForServer ? soundProbeArguments(plan) : usual,
                                                  .timeLimit = std::chrono::seconds(10),
                                                  .collectsOutput = true});
    connect(m_soundProbe.get(), &ToolProcess::ended, this, [this, isForServer](const ToolEnding &ending) {
        m_soundProbe.release()->deleteLater();
        if (!ending.isGood() || m_isSilent != isForServer)
            return;
        if (!isForServer)
            return followUsualDevice(usualDeviceIn(ending.output));
        m_isSilent = false;
        m_isServerThere = true;
        m_failures = 0;
        for (const tarnwell::TextKey &key : {soundIsMissing, soundWasMissing})
            m_problems.removeAll(Sentence(key));
        m_problems.append(soundWasMissing);
        if (m_recorder)
            m_recorder->stop();
    });
    m_soundProbe->start();
}

/// Another one has another delay: the next stretch begins in step again.
void RecordJob::followUsualDevice(const QString &device)
{
    const QString before = device.isEmpty() ? device : std::exchange(m_usualDevice, device);
    if (!before.isEmpty() && before != device && m_recorder)
        m_recorder->stop();
}

/// A source has gone away by itself.
void RecordJob::goOnAfterFailure(const ToolEnding &ending)
{
    const RecordPlan &plan = m_recording.plan;
    tarnwell::DNFootLog(u"A recording was interrupted: %1"_s, ending.lastWords);
    const bool isFirst = m_recording.stretches.isEmpty();
    if (isFirst && !std::exchange(m_hardwareDevice, {}).isEmpty()) {
        emit noted("Encoding in software"_key);
        return m_isHolding ? void() : beginStretch();
    }
    const bool isCamera = !m_target.camera.isEmpty() && ending.lastWords.contains(m_target.camera);
    if (isFirst && isCamera)
        return fail("The camera could not be opened. Another program may be using it."_key, ending.lastWords);
    if (plan.inset && (isCamera || !cameraTarget(plan)))
        loseInset();
    if ((std::exchange(m_isServerThere, false) || isFirst) && loseMicrophone(ending))
        return m_isHolding ? void() : beginStretch();
    const auto target = captureTarget(plan);
    // Another one's pictures may have another size, which only they tell.
    const bool isOtherCamera =
        !isFirst && target && plan.what == RecordPlan::What::Camera && target->camera != m_target.camera;
    if (!target || isOtherCamera ||
        (isFirst && (plan.sound == RecordPlan::Sound::None || ending.cause == ToolEnding::Cause::CouldNotStart)) ||
        m_failures > 2) {
        if (isFirst)
            return fail(target ? m_messages.failure().sentence : target.reason(), ending.lastWords);
        m_problems.append(target ? Sentence("The recording was interrupted."_key)
                          : target.reason() == noSuchWindow(plan.window)
                              ? Sentence("The window was closed or minimised."_key)
                              : target.reason());
        return endRecording();
    }
    if (isFirst)
        return fail(ending.cause == ToolEnding::Cause::Cancelled ? Sentence("Nothing was recorded."_key)
                    : m_hasSoundEnded ? Sentence("The sound could not be recorded. Is the sound server running?"_key)
                                      : m_messages.failure().sentence,
                    ending.lastWords);
    // The picture may have another size or place now, which the arguments make up for; the second attempt goes without
    // the sound where that is what fails, or where nothing is told.
    m_failures = target->area != m_target.area && !m_target.isShared ? 0 : m_failures + 1;
    const bool isForSound = m_hasSoundEnded || ending.cause == ToolEnding::Cause::Cancelled;
    if (m_failures > 1 && isForSound && !std::exchange(m_isSilent, true) && plan.sound != RecordPlan::Sound::None) {
        m_problems.removeAll(Sentence(soundIsMissing));
        m_problems.append(soundIsMissing);
    }
    if (m_isHolding)
        return;
    const QSize size = m_target.area.size();
    setTarget(*target);
    if (m_target.isShared)  // whose size only its pictures tell
        m_target.area.setSize(size);
    beginStretch();
}

/// Pictures come at a constant rate, repeated where nothing changes: none at all for ten seconds, or for half a minute
/// before the first, means that their source is gone without a word.
bool RecordJob::hasStopped()
{
    constexpr int looks = 20, looksBeforeTheFirst = 60;
    const qint64 before = std::exchange(m_picturesAtLook, m_stretch.pictures);
    m_looksInVain = before == m_stretch.pictures ? m_looksInVain + 1 : 0;
    return m_looksInVain >= (before > 0 ? looks : looksBeforeTheFirst);
}

/// The picture's own size changed, or its place on the desktop: what runs knows only the former.
bool RecordJob::followTarget()
{
    const auto target = captureTarget(m_recording.plan);
    // ffmpeg waits forever for a display that is gone, and does not listen then.
    if (!target)
        m_recorder->cancel();
    else if (target->area != m_target.area)
        m_recorder->stop();
    else
        return false;
    if (target)
        setTarget(*target);
    return true;
}

void RecordJob::watch()
{
    if (!m_recorder)
        return;
    syncLater(m_recording.stretches.last(), m_isSyncing);
    if (m_recording.plan.inset && !m_target.camera.isEmpty() && !QFileInfo::exists(m_target.camera))
        loseInset();
    if (m_hasSoundEnded && m_stretch.pictures > 0)
        return m_recorder->stop();
    lookForSound();
    if (hasStopped()) {
        m_looksInVain = 0;
        m_isScreenMissing = m_target.isShared;
        m_isToEnd = m_isToEnd || m_target.isShared;
        if (m_target.isShared || m_stretch.pictures == 0)
            m_recorder->cancel();
        else
            m_recorder->stop();
        return;
    }
    if (m_recording.plan.hasPicturesOfDisplay() && followTarget())
        return;
    const auto space = m_tools.diskSpace(m_recording.folder);
    if (!space || space->available > m_tools.reservedBytes || m_isToEnd)
        return;
    m_isToEnd = true;
    m_problems.append("The recording ended because the disk is nearly full."_key);
    m_recorder->stop();
}

}  // namespace kestrel
