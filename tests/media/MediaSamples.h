#pragma once

#include <QString>
#include <QStringList>

/// Small films and stand-ins for tools.
namespace kestrel::test {

/// Of the system: "ffmpeg".
QString toolPath(const QString &name);

/// Two seconds of a moving picture, 160 x 120 at 25 a second, and a tone, written by ffmpeg with the options. False
/// where it fails.
bool makeSample(const QString &path, const QStringList &options);

/// A program that does what the shell's lines say; its path.
QString makeScript(const QString &path, const QByteArray &lines);

void writeBytes(const QString &path, const QByteArray &bytes);
QByteArray readBytes(const QString &path);

}  // namespace kestrel::test
