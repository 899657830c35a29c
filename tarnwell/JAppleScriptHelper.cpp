#include "JAppleScriptHelper.h"

#include "Alerts.h"
#include "Folders.h"
#include "Localization.h"
#include "Log.h"
#include "foundation/Queues.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QProcess>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kestrel::tarnwell {

namespace {

/// A mail program that ran this long has shown its message, however it ends.
constexpr auto mailFailureLimit = 10s;
constexpr int mailStartLimitMs = 500;

/// Often it is the mail program itself, which lives on when the application ends.
class MailProcess : public QProcess {
public:
    using QProcess::QProcess;
    ~MailProcess() override { setProcessState(NotRunning); }
};

/// Where the file manager cannot select it, its folder is opened.
void revealFile(const QString &path)
{
    auto *process = new QProcess(QCoreApplication::instance());
    const auto end = [process, folder = QFileInfo(path).absolutePath()](bool isShown) {
        process->deleteLater();
        if (!isShown)
            openFolder(folder);
    };
    QObject::connect(process, &QProcess::errorOccurred, process, [end](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            end(false);
    });
    QObject::connect(process, &QProcess::finished, process,
                     [end](int exitCode, QProcess::ExitStatus) { end(exitCode == 0); });
    const DesktopCommand command = revealCommand(QFileInfo(path).absoluteFilePath());
    process->start(command.program, command.arguments);
}

void showMailFailure(const QString &mail, const QStringList &files)
{
    Alert alert{.message = AppLocalizedString(u"Your mail program could not be opened."_s),
                .defaultButton = AppLocalizedString(u"OK"_s),
                .alternateButton = {},
                .informativeText = AppLocalizedString(u"Please write to this address: %1"_s).arg(mail),
                .style = AlertStyle::Warning};
    if (files.isEmpty()) {
        runAlert(alert);
        return;
    }
    alert.defaultButton = AppLocalizedString(u"Show File"_s);
    alert.alternateButton = AppLocalizedString(u"Close"_s);
    alert.informativeText = AppLocalizedString(u"Please write to %1 and attach this file: %2"_s)
                                .arg(mail, QDir::toNativeSeparators(files.join(u", "_s)));
    if (runAlert(alert) == AlertAnswer::Default)
        revealFile(files.constFirst());
}

void reportMailFailure(const QString &reason, const QString &mail, const QStringList &files)
{
    DNFootLog(u"The mail program could not be opened: %1"_s, reason);
    foundation::queue::asyncMain([mail, files] { showMailFailure(mail, files); });
}

}  // namespace

bool JAppleScriptHelper::sendEmailWithMail(const QString &mail, const QString &withSubject,
                                           const QStringList &Attachments, const QString &body)
{
    QStringList files;
    std::copy_if(Attachments.begin(), Attachments.end(), std::back_inserter(files), [](const QString &path) {
        const QFileInfo file(path);
        return file.isFile() && file.isReadable();
    });
    auto *process = new MailProcess(QCoreApplication::instance());
    QObject::connect(process, &QProcess::errorOccurred, process, [=](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart)
            return;
        reportMailFailure(process->errorString(), mail, files);
        process->deleteLater();
    });
    const QDeadlineTimer limit(mailFailureLimit);
    QObject::connect(process, &QProcess::finished, process, [=](int exitCode, QProcess::ExitStatus status) {
        if ((exitCode != 0 || status != QProcess::NormalExit) && !limit.hasExpired())
            reportMailFailure(u"it ended with %1"_s.arg(exitCode), mail, files);
        process->deleteLater();
    });
    process->setProcessChannelMode(QProcess::ForwardedChannels);
    process->setStandardInputFile(QProcess::nullDevice());
    const DesktopCommand command = mailCommand(mail, withSubject, files, body);
    process->start(command.program, command.arguments);
    return process->waitForStarted(mailStartLimitMs) || process->state() != QProcess::NotRunning;
}

}  // namespace kestrel::tarnwell
