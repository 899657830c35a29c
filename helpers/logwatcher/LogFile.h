#pragma once

#include "LogBytes.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

namespace kestrel {

/// The text file at a path, followed while it is open: it may grow, be written anew, be replaced, go and come back.
/// What is read never exceeds `size()`, which changes together with the signals only. A file that is deleted stays
/// readable until another comes.
class LogFile : public QObject {
    Q_OBJECT
public:
    enum class State { Missing, Unreadable, Readable };

    explicit LogFile(const QString &path, QObject *parent = nullptr);

    QString path() const { return m_path; }
    State state() const { return m_state; }
    QString error() const { return m_error; }  ///< why the file is unreadable
    bool isGone() const { return m_isGone; }   ///< what is read has no name any more

    qint64 size() const { return m_size; }  ///< bytes
    QByteArray read(qint64 offset, qint64 length) const;
    std::shared_ptr<const LogBytes> bytes() const { return m_bytes; }

    /// Looks at the disk now. It happens by itself soon after a change.
    void check();

signals:
    void grown();
    void replaced();      ///< nothing that was read before counts any more
    void stateChanged();  ///< `state`, `error` or `isGone`; after `replaced` where both come

private:
    void watch();
    void begin(std::shared_ptr<const LogBytes> bytes);
    bool isContinued() const;
    void remember();
    void setState(State state, const QString &error, bool isGone);

    QString m_path;
    std::shared_ptr<const LogBytes> m_bytes;
    State m_state = State::Missing;
    QString m_error;
    bool m_isGone = false;
    qint64 m_size = 0;
    QByteArray m_head, m_tail;  ///< of the first `m_size` bytes: they tell growth from a text written anew
    QFileSystemWatcher m_watcher;
    QTimer m_soon, m_poll;
};

}  // namespace kestrel
