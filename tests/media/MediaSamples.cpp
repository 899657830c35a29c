#include "MediaSamples.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrel::test {

QString toolPath(const QString &name)
{
    return QStandardPaths::findExecutable(name);
}

bool makeSample(const QString &path, const QStringList &options)
{
    const QStringList inputs = {u"-v"_s, u"error"_s, u"-nostdin"_s, u"-y"_s,
                                u"-f"_s, u"lavfi"_s, u"-i"_s,       u"testsrc2=s=160x120:r=25:d=2"_s,
                                u"-f"_s, u"lavfi"_s, u"-i"_s,       u"sine=r=48000:d=2"_s};
    return QProcess::execute(toolPath(u"ffmpeg"_s), inputs + options + QStringList{"file:"_L1 + path}) == 0;
}

QString makeScript(const QString &path, const QByteArray &lines)
{
    writeBytes(path, "#!/bin/sh\n" + lines + '\n');
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
}

void writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    ASSERT_EQ(file.write(bytes), bytes.size());
}

QByteArray readBytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace kestrel::test
