#include "JAppleScriptHelper.h"

#include <QFileInfo>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace kestrel::tarnwell {

namespace {

/// As it is, where xdg-email takes it for an address; otherwise as the mailto address that says the same.
QString recipientArgument(const QString &mail)
{
    const bool isTakenForAddress = mail.contains(u'@') && !mail.startsWith(u'-') && !mail.startsWith("mailto:"_L1);
    return isTakenForAddress ? mail : "mailto:"_L1 + QString::fromLatin1(QUrl::toPercentEncoding(mail, "@"));
}

}  // namespace

DesktopCommand mailCommand(const QString &mail, const QString &subject, const QStringList &attachments,
                           const QString &body)
{
    QStringList arguments = {u"--utf8"_s};
    const auto add = [&arguments](const QString &option, const QString &value) {
        if (!value.isEmpty())  // an empty one is a mistake to xdg-email
            arguments << option << value;
    };
    add(u"--subject"_s, subject);
    for (const QString &path : attachments)
        add(u"--attach"_s, QFileInfo(path).absoluteFilePath());
    add(u"--body"_s, body);
    if (!mail.isEmpty())
        arguments << recipientArgument(mail);
    return {u"xdg-email"_s, arguments};
}

DesktopCommand revealCommand(const QString &path)
{
    // Encoded throughout: a comma would begin another file.
    const QString address = u"file://"_s + QString::fromLatin1(QUrl::toPercentEncoding(path, "/"));
    return {u"dbus-send"_s,
            {u"--session"_s, u"--print-reply"_s, u"--dest=org.freedesktop.FileManager1"_s,
             u"/org/freedesktop/FileManager1"_s, u"org.freedesktop.FileManager1.ShowItems"_s,
             u"array:string:"_s + address, u"string:"_s}};
}

}  // namespace kestrel::tarnwell
