#include "SingleInstance.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocalServer>
#include <QLocalSocket>
#include <QThread>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <cerrno>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr qint64 maximumMessageBytes = 8 * 1024 * 1024;  // more than a command line holds
constexpr char acknowledgement = 'k';

}  // namespace

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
    while (true) {
        if (lock())
            return Role::First;
        if (handOver(files, deadline))
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
