#pragma once

#include <QString>
#include <QStringList>

namespace kestrel::tarnwell {

/// Hands messages to the user's mail program, which shows them for the user to send.
class JAppleScriptHelper {
public:
    /// Opens a new message in the mail program. `Attachments` are paths; files that are not there or cannot be read are
    /// left out. False where the program that does this cannot be started. That, and a failure that it tells within
    /// seconds, brings an alert later, with the address to write to and the way to the files. Main thread only.
    static bool sendEmailWithMail(const QString &mail, const QString &withSubject, const QStringList &Attachments,
                                  const QString &body);
};

/// How this platform does something: a program, by path or looked up in PATH, and its arguments.
struct DesktopCommand {
    QString program;
    QStringList arguments;
};

DesktopCommand mailCommand(const QString &mail, const QString &subject, const QStringList &attachments,
                           const QString &body);    ///< opens a new message
DesktopCommand revealCommand(const QString &path);  ///< shows a file in its folder; fails where nothing here can

}  // namespace kestrel::tarnwell
