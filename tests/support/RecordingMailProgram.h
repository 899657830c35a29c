#pragma once

#include "tests/support/TestEnvironment.h"

#include <QFile>
#include <QStringList>

namespace kestrel::test {

/// The only program in PATH while it lives: stands in for the desktop's way to open a message, notes what it is called
/// with and ends with `exitCode`.
class RecordingMailProgram {
public:
    explicit RecordingMailProgram(int exitCode = 0)
    {
        QFile script(m_folder.filePath(QStringLiteral("xdg-email")));
        if (script.open(QIODevice::WriteOnly))
            script.write("#!/bin/sh\nprintf '%s\\0' \"$@\" >\"$0.part\"\n/bin/mv \"$0.part\" \"$0.arguments\"\nexit " +
                         QByteArray::number(exitCode) + '\n');
        script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
        qputenv("PATH", m_folder.path().toUtf8());
    }
    ~RecordingMailProgram() { qputenv("PATH", m_formerPath); }

    /// Waits for the next call.
    QStringList arguments()
    {
        QFile file(m_folder.filePath(QStringLiteral("xdg-email.arguments")));
        if (!waitUntil([&file] { return file.exists(); }) || !file.open(QIODevice::ReadOnly))
            return {};
        QStringList arguments = QString::fromUtf8(file.readAll()).split(QChar(u'\0'));
        arguments.removeLast();
        file.remove();
        return arguments;
    }

private:
    QTemporaryDir m_folder;
    QByteArray m_formerPath = qgetenv("PATH");
};

}  // namespace kestrel::test
