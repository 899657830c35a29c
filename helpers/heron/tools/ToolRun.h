#pragma once

#include "helpers/heron/DiscError.h"

#include <QJsonObject>

namespace kestrel::disc {

/// What every tool does at its start and end: lines of JSON on a stream of their own, limits, one way to fail.
class ToolRun {
public:
    enum class Output {
        Lines,  ///< JSON lines on standard output, what the library says on standard error
        Film,   ///< film on standard output, JSON lines on standard error, what the library says nowhere
    };
    struct Limits {
        int seconds = 0;  ///< of the clock; 0 for none
        int processorSeconds = 0;
        qint64 memory = 0;  ///< bytes of address space
    };

    /// Before the library's first call: it prints to standard output. From here on a crash also ends with a line.
    explicit ToolRun(Output output);

    /// What is over them ends the tool with "tooSlow" or "noMemory".
    void limit(const Limits &limits);

    void line(const QJsonObject &object);
    /// Says so and gives the exit status.
    int fail(DiscError error, const QString &detail = {});

    /// The film's stream; -1 where there is none.
    int film() const { return m_film; }

private:
    int m_lines = -1;
    int m_film = -1;
};

}  // namespace kestrel::disc
