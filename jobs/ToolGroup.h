#pragma once

#include "GroupActivity.h"

#include <QObject>

#include <memory>

class QProcess;

namespace kestrel {

struct ToolCommand;

/// A program in a process group of its own, which the guardian knows while it lives. The group goes with its first
/// process, and with the object.
class ToolGroup : public QObject {
    Q_OBJECT
public:
    explicit ToolGroup(const ToolCommand &command);
    /// Waits a moment for the end of the first process, so that its files can be removed.
    ~ToolGroup() override;

    /// Its standard output becomes the standard input of `reader`. Before either is started.
    void feed(ToolGroup &reader);
    void start();
    /// To the whole group; nothing where it has ended.
    void send(int signal);

    bool isAlive() const { return m_group > 0; }
    GroupActivity activity() const { return isAlive() ? GroupActivity::of(m_group) : GroupActivity(); }
    bool hasStarted() const { return m_hasStarted; }
    bool hasCrashed() const;
    /// As shells have it: 128 and the signal where it was ended by one.
    int exitCode() const;
    QString startFailure() const;

signals:
    void outputRead(const QByteArray &piece);
    void errorRead(const QByteArray &piece);
    /// Once, after all that the first process wrote; also where it could not be started.
    void ended();

private:
    void readAll();
    void leaderEnded();

    std::unique_ptr<QProcess> m_process;
    int m_descriptor;
    qint64 m_group = 0;
    int m_depth = 0;  ///< of calls from the process
    bool m_hasStarted = true;
};

}  // namespace kestrel
