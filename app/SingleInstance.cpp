#include "SingleInstance.h"

#include "LocalMessages.h"
#include "foundation/StandardFolders.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QThread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <cstring>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

int openLock(const QString &path)
{
    return open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
}

/// Makes the folder where it is missing. False where it is not the user's alone: others could hold the lock, or answer.
bool isPrivateFolder(const QString &path)
{
    struct stat status = {};
    return foundation::makePrivateFolder(path) && ::lstat(QFile::encodeName(path).constData(), &status) == 0 &&
           S_ISDIR(status.st_mode) && status.st_uid == ::geteuid() &&
           QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

}  // namespace

SingleInstance::SingleInstance(const QStringList &folders, QObject *parent) : QObject(parent)
{
    for (const QString &folder : folders) {
        if (folder.isEmpty())
            continue;
        m_lockFile = isPrivateFolder(folder) ? openLock(folder + "/instance.lock"_L1) : -1;
        m_socketPath = folder + "/instance.socket"_L1;
        if (m_lockFile >= 0)
            return;
    }
}

SingleInstance::~SingleInstance()
{
    m_server.reset();
    if (m_lockFile >= 0)
        close(m_lockFile);
}

SingleInstance::Role SingleInstance::claim(const QStringList &files, int patienceMs)
{
    // Either may change at any moment: the other one may just have begun, or be about to end.
    const QDeadlineTimer deadline(patienceMs);
    const QByteArray message = QJsonDocument(QJsonArray::fromStringList(files)).toJson(QJsonDocument::Compact) + '\n';
    while (true) {
        // No folder that can be written is no reason not to start, nor is a file system without locks.
        if (m_lockFile < 0 || flock(m_lockFile, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK)
            return Role::First;
        if (sendLocalMessage(m_socketPath, message, deadline))
            return Role::Second;
        if (deadline.hasExpired())
            return Role::Unanswered;
        QThread::msleep(20);
    }
}

void SingleInstance::listen()
{
    m_server = std::make_unique<LocalMessageServer>([this](const QByteArray &line) { return takeOver(line); });
    if (!m_server->listen(m_socketPath))
        qWarning("Later starts cannot be handed over: %s", std::strerror(errno));
}

bool SingleInstance::takeOver(const QByteArray &line)
{
    const QJsonDocument message = QJsonDocument::fromJson(line);
    if (!message.isArray())
        return false;
    QStringList files;
    for (const QJsonValue file : message.array())
        files.append(file.toString());
    files.removeAll(QString());
    // In a later turn: what it opens may take its time, and the sender waits.
    QMetaObject::invokeMethod(
        this, [this, files] { emit startedAgain(files); }, Qt::QueuedConnection);
    return true;
}

}  // namespace kestrel
