#pragma once

#include <QByteArrayView>
#include <QString>

#include <vector>

namespace kestrel {

/// Bytes as text, with the way back. Every sequence of bytes has a text: what is no UTF-8 reads as replacement
/// characters, one a byte.
struct LogText {
    QString text;
    /// For each UTF-16 unit of `text`, and for its end, the byte at which its character begins.
    std::vector<quint32> offsets;

    static LogText of(QByteArrayView bytes);

    /// The unit whose character begins at this byte, or is the next to begin.
    int indexOf(qint64 offset) const;
};

/// The same on one line, for show: control characters other than tabs, which have no shape, as small dots.
QString displayText(QString text);

}  // namespace kestrel
