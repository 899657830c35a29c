#include "SingleInstance.h"

#include "LocalMessages.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QThread>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <cerrno>
#include <cstring>

using namespace Qt::StringLiterals;

namespace kestrel {

SingleInstance::SingleInstance(const QString &folder, QObject *parent)
    : QObject(parent),
      m_lockPath(folder + "/instance.lock"_L1),
      m_socketPath(folder + "/instance.socket"_L1)
{
    QDir().mkpath(folder);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
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
        if (lock())
            return Role::First;
        if (sendLocalMessage(m_socketPath, message, deadline))
            return Role::Second;
        if (deadline.hasExpired())
            return Role::Unanswered;
        QThread::msleep(20);
    }
}

bool SingleInstance::lock()
{
    const int file = open(QFile::encodeName(m_lockPath).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (file < 0)
        return true;  // a folder that cannot be written is no reason not to start
    if (flock(file, LOCK_EX | LOCK_NB) != 0) {
        const bool isTaken = errno == EWOULDBLOCK;
        close(file);
        return !isTaken;  // nor is a file system without locks
    }
    m_lockFile = file;
    return true;
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
