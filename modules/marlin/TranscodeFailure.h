#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace kestrel {

/// The key of a sentence for the user about a failure that a tool or the system reported in `messages`; null where none
/// of it is known.
QString failureSentence(const QString &messages);

/// The same with a general sentence for what is not known.
QString failureSentenceOrGeneral(const QString &messages);

/// The last lines of a tool's messages, however many it writes.
class MessageTail {
public:
    static constexpr qsizetype maximumLines = 20;
    static constexpr qsizetype maximumLineLength = 500;

    void read(const QByteArray &piece);
    /// The lines, an unfinished one included.
    QString text() const;

private:
    void append(const QByteArray &line);

    QByteArray m_pending;
    QStringList m_lines;
};

}  // namespace kestrel
