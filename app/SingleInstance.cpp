#include "SingleInstance.h"

#include "foundation/StandardFolders.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocalServer>
#include <QLocalSocket>
#include <QThread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr qint64 maximumMessageBytes = 8 * 1024 * 1024;  // more than a command line holds
constexpr char acknowledgement = 'k';

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
    while (true) {
        // No folder that can be written is no reason not to start, nor is a file system without locks.
        if (m_lockFile < 0 || flock(m_lockFile, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK)
            return Role::First;
        if (handOver(files, deadline))
            return Role::Second;
        if (deadline.hasExpired())
            return Role::Unanswered;
        QThread::msleep(20);
    }
}

bool SingleInstance::handOver(const QStringList &files, const QDeadlineTimer &deadline)
{
    QLocalSocket socket;
    socket.connectToServer(m_socketPath);
    if (!socket.waitForConnected(int(deadline.remainingTime())))
        return false;
    socket.write(QJsonDocument(QJsonArray::fromStringList(files)).toJson(QJsonDocument::Compact) + '\n');
    char answer = 0;
    return socket.waitForReadyRead(int(deadline.remainingTime())) && socket.read(&answer, 1) == 1 &&
           answer == acknowledgement;
}

void SingleInstance::listen()
{
    QLocalServer::removeServer(m_socketPath);
    m_server = std::make_unique<QLocalServer>();
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server.get(), &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket *socket = m_server->nextPendingConnection()) {
            connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            connect(socket, &QLocalSocket::readyRead, this, [this, socket] { receive(socket); });
        }
    });
    if (!m_server->listen(m_socketPath))
        qWarning("Later starts cannot be handed over: %s", qPrintable(m_server->errorString()));
}

void SingleInstance::receive(QLocalSocket *socket)
{
    if (!socket->canReadLine()) {
        if (socket->bytesAvailable() > maximumMessageBytes)
            socket->abort();
        return;
    }
    const QJsonDocument message = QJsonDocument::fromJson(socket->readLine(maximumMessageBytes));
    if (!message.isArray())
        return socket->abort();
    QStringList files;
    for (const QJsonValue file : message.array())
        files.append(file.toString());
    files.removeAll(QString());
    socket->write(&acknowledgement, 1);
    socket->flush();
    emit startedAgain(files);
}

}  // namespace kestrel
