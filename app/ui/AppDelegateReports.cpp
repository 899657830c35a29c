#include "AppDelegate.h"
#include "app/LoggerWatcherTask.h"
#include "foundation/Bundle.h"
#include "foundation/Queues.h"
#include "foundation/UserDefaults.h"
#include "tarnwell/Alerts.h"
#include "tarnwell/JAppleScriptHelper.h"
#include "tarnwell/Localization.h"
#include "tarnwell/Log.h"
#include "tarnwell/ProductInformation.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;
using kestrel::tarnwell::AppLocalizedString;

namespace kestrel {

namespace {

const QString notSafeTerminateKey = u"KestrelNotSafeTerminate"_s;

}  // namespace

std::shared_ptr<LoggerWatcherTask> AppDelegate::loggerWatcherTask() const
{
    return m_loggerWatcherTask && !m_loggerWatcherTask->hasEnded() ? m_loggerWatcherTask : nullptr;
}

void AppDelegate::showApplicationLog()
{
    if (m_hasTerminated)
        return;
    if (const auto running = loggerWatcherTask())
        return running->raise();
    m_loggerWatcherTask = std::make_shared<LoggerWatcherTask>();
    const QString viewer =
        tarnwell::productBundle().resource(u"KestrelLogWatcher.app"_s) + u"/Contents/MacOS/KestrelLogWatcher"_s;
    foundation::queue::asyncGlobal(
        [task = m_loggerWatcherTask, viewer, path = tarnwell::DNGetLogFilePath()] { task->run(viewer, {path}); });
}

void AppDelegate::sendBugTypeEmail()
{
    QStringList attachments;
    if (const QString log = tarnwell::DNGetPreviousLogFilePath(); !log.isEmpty()) {
        const QString copy = QDir::temp().filePath(QFileInfo(log).fileName());
        QFile::remove(copy);  // a link goes itself, and not what it names
        // What cannot be replaced there is somebody else's.
        attachments.append(QFile::copy(log, copy) ? copy : log);
    }
    tarnwell::JAppleScriptHelper::sendEmailWithMail(tarnwell::AppSupportEmail(), tarnwell::applicationNameAndVersion(),
                                                    attachments, u""_s);
}

void AppDelegate::checkBugReportFlagWhenLaunch()
{
    if (!tellUnsavedEnd() && m_surroundings.defaults.boolForKey(notSafeTerminateKey)) {
        const auto answer =
            tarnwell::runAlert({.message = AppLocalizedString(u"Problem detected in last conversion."_s),
                                .defaultButton = AppLocalizedString(u"Send Report"_s),
                                .alternateButton = AppLocalizedString(u"Cancel"_s),
                                .informativeText = AppLocalizedString(
                                    u"Would you please send us the Log File to help us fix the issue?"_s)});
        if (answer == tarnwell::AlertAnswer::Default)
            sendBugTypeEmail();
        else if (answer == tarnwell::AlertAnswer::Alternate && !m_sessionEnd.isActive())  // its end closes windows
            tarnwell::DNCleanupLogFile();
    }
    setNotSafeTerminate(true);
}

/// The end of the session counts as the end of the run until it is known that it goes on.
void AppDelegate::setNotSafeTerminate(bool isNotSafe)
{
    m_surroundings.defaults.setObject(isNotSafe && !m_sessionEnd.isActive(), notSafeTerminateKey);
}

}  // namespace kestrel
