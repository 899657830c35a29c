#pragma once

#include <QByteArray>

#include <functional>

namespace kestrel {

/// Makes lines of what comes in pieces. "\n", "\r" and both together end a line; what a line has above
/// `maximumLength` is dropped.
class LineCutter {
public:
    static constexpr qsizetype maximumLength = 64 * 1024;

    /// Takes a line; false ends the call at once, for takers that take the cutter with them.
    using Taker = std::function<bool(const QByteArray &line)>;

    bool read(const QByteArray &piece, const Taker &take);
    /// The line that has no end, where there is one.
    bool finish(const Taker &take);

private:
    QByteArray m_line;
    bool m_endsWithReturn = false;  ///< the last piece; a "\n" at the start of the next belongs to it
};

}  // namespace kestrel
