#pragma once

#include <QObject>
#include <QStringList>

#include <memory>

namespace kestrel {

class LocalMessageServer;

/// One Kestrel a user. The first one to claim a folder holds a lock there that the system takes back when its process
/// ends, however it ends; a later one hands over its files through a socket beside the lock.
class SingleInstance : public QObject {
    Q_OBJECT
public:
    enum class Role {
        First,       ///< this process is the one
        Second,      ///< another one is, and has taken the files over
        Unanswered,  ///< another one holds the lock but does not answer
    };

    /// The first of the folders that is the user's own and takes a lock file is the one; each is created where it is
    /// missing. An empty path stands for a folder that this session does not have.
    explicit SingleInstance(const QStringList &folders, QObject *parent = nullptr);
    ~SingleInstance() override;

    /// `files` are absolute paths. Takes up to `patienceMs` where another instance is slow to answer. Needs an
    /// application object, and no display.
    Role claim(const QStringList &files, int patienceMs = 5000);
    /// For the first one, once its event loop is about to run: takes over what later ones bring.
    void listen();

signals:
    /// Another one was started, with these files, and has gone again.
    void startedAgain(const QStringList &files);

private:
    bool takeOver(const QByteArray &line);

    QString m_socketPath;
    int m_lockFile = -1;  ///< open as long as this object lives; none where no folder can be used
    std::unique_ptr<LocalMessageServer> m_server;
};

}  // namespace kestrel
