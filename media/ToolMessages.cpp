#include "ToolMessages.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr qsizetype maximumLineLength = 1000;

void keepLast(QStringList &lines, const QString &line)
{
    lines.append(line);
    if (lines.size() > ToolMessages::keptAtEachEnd)
        lines.removeFirst();
}

/// "error" of "[h264 @ 0x55d0] [error] no frame!"; in front of the level stand the parts that speak.
QByteArray levelOf(QByteArrayView line)
{
    while (line.startsWith('[')) {
        const qsizetype end = line.indexOf(']');
        if (end < 0)
            return {};
        const QByteArrayView word = line.sliced(1, end - 1);
        if (!word.contains(" @ "))
            return word.toByteArray();
        line = line.sliced(end + 1).trimmed();
    }
    return {};
}

/// The null muxer wants times that only grow, which not every good file has.
bool isFault(const QByteArray &level, const QByteArray &line)
{
    if (line.startsWith("[null @ "))
        return false;
    return level == "error" || level == "fatal" || level == "panic" ||
           (level == "warning" && (line.contains("corrupt input packet") || line.contains("corrupt decoded frame")));
}

}  // namespace

ToolMessages::ToolMessages(QStringList paths) : m_paths(std::move(paths)), m_failure(failureIn({})) {}

void ToolMessages::readLine(const QByteArray &line)
{
    const QByteArray level = levelOf(line);
    if (level == "verbose") {
        static const QRegularExpression muxed(u"Output stream #\\d+:\\d+ \\((\\w+)\\): .*?(\\d+) packets muxed"_s);
        constexpr qsizetype maximumTracks = 1000;
        if (!line.contains("packets muxed") || m_muxedTracks.size() >= maximumTracks)
            return;
        if (const auto match = muxed.match(QString::fromUtf8(line)); match.hasMatch())
            m_muxedTracks.append({match.captured(1), match.captured(2).toLongLong()});
        return;
    }
    if (level == "info" || line.trimmed().isEmpty())
        return;
    QString text = QString::fromUtf8(line.left(maximumLineLength));
    keepLast(m_lastLines, text);
    m_saysEmptyOutput = m_saysEmptyOutput || line.contains(emptyOutputMessage);
    for (const QString &path : std::as_const(m_paths))
        text.remove(path);
    if (const TranscodeFailure failure = failureIn(text); failure.rank < m_failure.rank)
        m_failure = failure;
    if (isFault(level, line)) {
        ++m_faults;
        keepFault(m_lastLines.last());
    }
}

void ToolMessages::keepFault(const QString &line)
{
    if (m_first.size() < keptAtEachEnd)
        m_first.append(line);
    else
        keepLast(m_last, line);
}

QString ToolMessages::text() const
{
    if (m_faults == 0)
        return m_lastLines.join(u'\n');
    QStringList lines = m_first;
    if (m_faults > m_first.size() + m_last.size())
        lines.append(u"…"_s);
    return (lines + m_last).join(u'\n');
}

}  // namespace kestrel
