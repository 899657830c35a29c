#include "LocalMessages.h"

#include <QDeadlineTimer>
#include <QFile>

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>
#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>

namespace kestrel {

namespace {

constexpr qsizetype maximumLineBytes = 8 * 1024 * 1024;  // more than a command line holds
constexpr char acknowledgement = 'k';
constexpr int waitingSenders = 50;

/// Nothing, with `errno` set, where the path is too long for a socket.
std::optional<sockaddr_un> addressOf(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    if (name.size() >= qsizetype(sizeof address.sun_path)) {
        errno = ENAMETOOLONG;
        return {};
    }
    std::copy(name.begin(), name.end(), address.sun_path);
    return address;
}

int localSocket()
{
    return ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
}

/// Whether `events` came in time.
bool waitFor(int socket, short events, const QDeadlineTimer &deadline)
{
    pollfd waited = {socket, events, 0};
    int answer = 0;
    do {
        answer = ::poll(&waited, 1, int(deadline.remainingTime()));
    } while (answer < 0 && errno == EINTR);
    return answer > 0;
}

/// Whether the other side may do better next time.
bool isTransient(ssize_t count)
{
    return count < 0 && (errno == EAGAIN || errno == EINTR);
}

bool sendAll(int socket, const QByteArray &bytes, const QDeadlineTimer &deadline)
{
    for (qsizetype sent = 0; sent < bytes.size();) {
        if (!waitFor(socket, POLLOUT, deadline))
            return false;
        const ssize_t count = ::send(socket, bytes.constData() + sent, size_t(bytes.size() - sent), MSG_NOSIGNAL);
        if (count < 0 && !isTransient(count))
            return false;
        sent += std::max<ssize_t>(count, 0);
    }
    return true;
}

/// One who sends; goes with the end of its line.
class Sender final : public QObject {
public:
    Sender(int socket, const LocalMessageServer::Taker &taker, QObject *parent)
        : QObject(parent),
          m_socket(socket),
          m_taker(taker)
    {
        connect(&m_readiness, &QSocketNotifier::activated, this, &Sender::receive);
    }
    ~Sender() override
    {
        m_readiness.setEnabled(false);
        ::close(m_socket);
    }

private:
    void receive()
    {
        std::array<char, 65'536> bytes;
        const ssize_t count = ::recv(m_socket, bytes.data(), bytes.size(), 0);
        if (isTransient(count))
            return;
        m_line.append(bytes.data(), std::max<ssize_t>(count, 0));
        const bool isWhole = m_line.endsWith('\n') && m_line.size() <= maximumLineBytes;
        if (!isWhole && count > 0 && m_line.size() <= maximumLineBytes)
            return;
        m_readiness.setEnabled(false);
        deleteLater();
        if (isWhole && m_taker(m_line))
            ::send(m_socket, &acknowledgement, 1, MSG_NOSIGNAL);
    }

    const int m_socket;
    const LocalMessageServer::Taker &m_taker;
    QSocketNotifier m_readiness{m_socket, QSocketNotifier::Read};
    QByteArray m_line;
};

}  // namespace

bool sendLocalMessage(const QString &socketPath, const QByteArray &line, const QDeadlineTimer &deadline)
{
    const std::optional<sockaddr_un> address = addressOf(socketPath);
    const int socket = localSocket();
    char answer = 0;
    const bool isTaken = address && socket >= 0 &&
                         ::connect(socket, reinterpret_cast<const sockaddr *>(&*address), sizeof *address) == 0 &&
                         sendAll(socket, line, deadline) && waitFor(socket, POLLIN, deadline) &&
                         ::recv(socket, &answer, 1, 0) == 1 && answer == acknowledgement;
    if (socket >= 0)
        ::close(socket);
    return isTaken;
}

LocalMessageServer::~LocalMessageServer()
{
    m_readiness.reset();
    if (m_socket >= 0)
        ::close(m_socket);
}

bool LocalMessageServer::listen(const QString &socketPath)
{
    const std::optional<sockaddr_un> address = addressOf(socketPath);
    if (!address)
        return false;
    ::unlink(QFile::encodeName(socketPath).constData());
    m_socket = localSocket();
    // What the socket itself allows is what its file will.
    if (m_socket < 0 || ::fchmod(m_socket, 0600) != 0 ||
        ::bind(m_socket, reinterpret_cast<const sockaddr *>(&*address), sizeof *address) != 0 ||
        ::listen(m_socket, waitingSenders) != 0)
        return false;
    m_readiness = std::make_unique<QSocketNotifier>(m_socket, QSocketNotifier::Read);
    connect(m_readiness.get(), &QSocketNotifier::activated, this, &LocalMessageServer::acceptSender);
    return true;
}

void LocalMessageServer::acceptSender()
{
    const int socket = ::accept4(m_socket, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    if (socket >= 0)
        new Sender(socket, m_taker, this);
}

}  // namespace kestrel
