#pragma once

#include <QByteArray>
#include <QObject>
#include <QSocketNotifier>

#include <functional>
#include <memory>

class QDeadlineTimer;

namespace kestrel {

/// Lines of text from one process of the user to another, over a socket in the file system; each is acknowledged.
/// Plain system calls, as Qt's sockets bring a library that links a dozen others.

/// Whether `line`, which ends with a line break, was taken over by the deadline.
bool sendLocalMessage(const QString &socketPath, const QByteArray &line, const QDeadlineTimer &deadline);

/// Takes lines over while it lives, on the thread of its event loop. A sender whose line is longer than 8 MiB, or is
/// refused, is hung up on.
class LocalMessageServer : public QObject {
    Q_OBJECT
public:
    /// Whether the line makes sense; what it says is for later, once the sender has its answer.
    using Taker = std::function<bool(const QByteArray &line)>;

    explicit LocalMessageServer(Taker taker) : m_taker(std::move(taker)) {}
    ~LocalMessageServer() override;

    /// Takes the place of whatever stands at that path. False with `errno` set where that fails.
    bool listen(const QString &socketPath);

private:
    void acceptSender();

    Taker m_taker;
    int m_socket = -1;
    std::unique_ptr<QSocketNotifier> m_readiness;
};

}  // namespace kestrel
