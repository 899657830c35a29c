#pragma once

#include "tarnwell/TextKey.h"

#include <QObject>
#include <QProcessEnvironment>
#include <QStringList>

#include <chrono>
#include <memory>

namespace kestrel {

/// One run of a tool of the bundle or the system.
struct ToolCommand {
    /// How it is asked to end with what it has, before it is killed.
    enum class PoliteEnd { Interrupt, Terminate };

    QString program = {};  ///< absolute path
    QStringList arguments = {};
    QProcessEnvironment environment = QProcessEnvironment(QProcessEnvironment::InheritFromParent);
    QString workingFolder = {};
    int descriptor = -1;                     ///< the tool inherits it under its number; it stays the caller's
    std::chrono::milliseconds timeLimit{0};  ///< killed after that; 0 for none
    /// After that long without a byte from it, it is looked at what it does: killed where for as long again it says
    /// nothing, takes no processor time worth the name and moves no data, and after `maximumSpins` times as long where
    /// it moves none; 0 for none.
    std::chrono::milliseconds silenceLimit{0};
    static constexpr int maximumSpins = 30;
    bool saysItLives = false;     ///< only `noteProgress` breaks its silence, not each byte: it may go round in circles
    qint64 outputLimit = 0;       ///< bytes of standard output, then it is killed; 0 for none
    bool collectsOutput = false;  ///< all of standard output is in the ending, instead of lines; 64 MiB without a limit
    PoliteEnd politeEnd = PoliteEnd::Interrupt;
    std::chrono::milliseconds patience{5000};  ///< between the polite end and the kill
    /// Where set: a second tool whose standard output is this one's standard input. It ends with this one; what it says
    /// comes as error lines.
    std::shared_ptr<const ToolCommand> feeder = {};
};

struct ToolEnding {
    enum class Cause {
        Exited,   ///< by itself, with `exitCode`
        Crashed,  ///< by a signal that nobody here sent
        CouldNotStart,
        TimeLimit,
        Silence,
        OutputLimit,
        Stopped,  ///< politely asked; `exitCode` is the tool's
        Cancelled,
    };
    Cause cause = Cause::Exited;
    int exitCode = 0;        ///< as shells have it: 128 and the signal where one ended it
    int feederExitCode = 0;  ///< likewise; a feeder that goes on after the tool has ended is killed (137)
    QByteArray output = {};  ///< where it was collected
    QString lastWords = {};  ///< the last kilobytes of standard error, for "Details"; why it could not be started

    bool isGood() const { return cause == Cause::Exited && exitCode == 0; }
};

/// The only way to run a tool: in a process group of its own that ends, children and all, with this object and with
/// Kestrel, also where Kestrel is killed. No standard input unless it is fed. Lines of both outputs come whole and
/// without their ends ("\n", "\r"), at most 64 KiB each (longer ones are cut). What leaves the group on its own (a
/// daemon) is out of reach. Limits of time do not count while it is paused. Main thread or any with an event loop,
/// which must not end before the tool.
class ToolProcess : public QObject {
    Q_OBJECT
public:
    explicit ToolProcess(ToolCommand command, QObject *parent = nullptr);
    ~ToolProcess() override;

    void start();
    /// Asks it to end (`politeEnd`), and kills it where it has not within its patience.
    void stop();
    /// Kills the whole group; `ended` follows within 100 ms. No line follows.
    void cancel();
    /// Holds the whole group, which then takes no processor time, and lets it go on.
    void setPaused(bool paused);

    /// To the whole group of the feeder, for what it understands beside its end.
    void sendToFeeder(int signal);

    /// It has come on; see `saysItLives`.
    void noteProgress();

    bool isRunning() const;

signals:
    void outputLine(const QByteArray &line);
    void errorLine(const QByteArray &line);
    /// Once, later than `start` returns. After the last line.
    void ended(const kestrel::ToolEnding &ending);

private:
    class Private;
    std::unique_ptr<Private> d;
};

}  // namespace kestrel
