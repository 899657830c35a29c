#include "MediaProber.h"

#include "foundation/Processes.h"
#include "foundation/Queues.h"

#include <QFileInfo>
#include <QPointer>
#include <QProcess>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

QString unreadableReason(const QString &path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return QString::fromLatin1(QT_TRANSLATE_NOOP("TarnwellPublic", "There is no such file."));
    // Pipes and devices would keep the tool waiting.
    if (!file.isFile())
        return QString::fromLatin1(QT_TRANSLATE_NOOP("TarnwellPublic", "This is no video or sound file."));
    if (!file.isReadable())
        return QString::fromLatin1(QT_TRANSLATE_NOOP("TarnwellPublic", "You are not allowed to read this file."));
    return {};
}

QString probeFailure(const QProcess &process)
{
    if (process.error() == QProcess::FailedToStart)
        return QString::fromLatin1(QT_TRANSLATE_NOOP(
            "TarnwellPublic", "The tool that reads media files is missing. Please install the application again."));
    if (process.exitStatus() == QProcess::CrashExit)
        return QString::fromLatin1(QT_TRANSLATE_NOOP("TarnwellPublic", "This file could not be read."));
    return QString::fromLatin1(QT_TRANSLATE_NOOP("TarnwellPublic", "This is no video or sound file."));
}

}  // namespace

MediaProber::MediaProber(std::chrono::milliseconds timeLimit, QObject *parent) : QObject(parent), m_timeLimit(timeLimit)
{
}

MediaProber::~MediaProber()
{
    for (const auto &process : m_running) {
        process->disconnect(this);
        process->kill();
        process->waitForFinished(500);
    }
}

void MediaProber::probe(qint64 id, const QString &toolPath, const QString &path)
{
    m_pending.append({id, toolPath, path});
    QMetaObject::invokeMethod(this, &MediaProber::startPending, Qt::QueuedConnection);
}

void MediaProber::forget(const QList<qint64> &ids)
{
    const QSet<qint64> forgotten(ids.begin(), ids.end());
    m_pending.removeIf([&](const Request &request) { return forgotten.contains(request.id); });
}

void MediaProber::startPending()
{
    constexpr size_t maximumRunning = 2;
    while (!m_pending.isEmpty() && m_running.size() < maximumRunning) {
        const Request request = m_pending.takeFirst();
        const QString reason = unreadableReason(request.path);
        if (reason.isNull())
            start(request);
        else
            emit probed(request.id, std::nullopt, reason);
    }
}

void MediaProber::start(const Request &request)
{
    QProcess *process = m_running.emplace_back(std::make_unique<QProcess>()).get();
    process->setChildProcessModifier(foundation::endWithParent());
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    connect(process, &QProcess::finished, this, [this, process, request] { finish(process, request); });
    connect(process, &QProcess::errorOccurred, this, [this, process, request](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            finish(process, request);
    });
    connect(process, &QProcess::readyReadStandardOutput, process, [process] {
        if (process->bytesAvailable() > maximumReportBytes)
            process->kill();
    });
    foundation::queue::afterMain(m_timeLimit, [late = QPointer(process)] {
        if (late)
            late->kill();
    });
    process->start(request.toolPath, {u"--Output=JSON"_s, request.path});
}

void MediaProber::finish(QProcess *process, const Request &request)
{
    auto information = parseMediaInformation(process->readAllStandardOutput());
    QString reason;
    if (!information) {
        reason = probeFailure(*process);
    } else if (!information->canBeConverted()) {
        reason = QString::fromLatin1(
            QT_TRANSLATE_NOOP("TarnwellPublic", "This file is damaged, or it holds neither video nor sound."));
        information.reset();
    }
    std::erase_if(m_running, [process](std::unique_ptr<QProcess> &running) {
        if (running.get() != process)
            return false;
        running.release()->deleteLater();  // it is in the middle of its signal
        return true;
    });
    emit probed(request.id, information, reason);
    QMetaObject::invokeMethod(this, &MediaProber::startPending, Qt::QueuedConnection);
}

}  // namespace kestrel
