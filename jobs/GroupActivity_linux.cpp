#include "GroupActivity.h"

#include <QByteArray>
#include <QDir>
#include <QFile>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

QByteArray contentsOf(const QString &path)
{
    constexpr qint64 maximumBytes = 4096;
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.read(maximumBytes) : QByteArray();
}

/// "rchar: 1" and "wchar: 2".
qint64 bytesIn(const QByteArray &counters)
{
    qint64 bytes = 0;
    for (const QByteArray &line : counters.split('\n')) {
        if (line.startsWith("rchar: ") || line.startsWith("wchar: "))
            bytes += line.mid(line.indexOf(' ') + 1).toLongLong();
    }
    return bytes;
}

}  // namespace

GroupActivity GroupActivity::of(qint64 group)
{
    static const qint64 ticksPerSecond = sysconf(_SC_CLK_TCK);
    constexpr qsizetype groupField = 2, firstTime = 11, lastTime = 14;  // behind the name, with those of ended children
    GroupActivity activity;
    for (const QString &process : QDir(u"/proc"_s).entryList({u"[0-9]*"_s}, QDir::Dirs)) {
        const QByteArray status = contentsOf(u"/proc/%1/stat"_s.arg(process));
        const QList<QByteArray> fields = status.mid(status.lastIndexOf(')') + 2).split(' ');
        if (fields.size() <= lastTime || fields[groupField].toLongLong() != group)
            continue;
        for (qsizetype field = firstTime; field <= lastTime; ++field)
            activity.processorMs += fields[field].toLongLong() * 1000 / ticksPerSecond;
        activity.bytes += bytesIn(contentsOf(u"/proc/%1/io"_s.arg(process)));
    }
    return activity;
}

}  // namespace kestrel
