#include "ProblemReports.h"

#include "LoggerWatcherTask.h"
#include "UnsavedEnd.h"
#include "foundation/Bundle.h"
#include "foundation/Queues.h"
#include "foundation/StandardFolders.h"
#include "foundation/UserDefaults.h"
#include "tarnwell/Alerts.h"
#include "tarnwell/JAppleScriptHelper.h"
#include "tarnwell/Localization.h"
#include "tarnwell/Log.h"
#include "tarnwell/ProductInformation.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using kestrel::tarnwell::AppLocalizedString;

namespace kestrel {

namespace {

const QString notSafeTerminateKey = u"KestrelNotSafeTerminate"_s;

}  // namespace

ProblemReports::ProblemReports(foundation::UserDefaults &defaults) : m_defaults(defaults)
{
    // Nobody tells that a session goes on, only that it ends.
    m_sessionEnd.setSingleShot(true);
    m_sessionEnd.setInterval(30s);
    connect(&m_sessionEnd, &QTimer::timeout, this, [this] { setNotSafeTerminate(true); });
}

ProblemReports::~ProblemReports() = default;

std::shared_ptr<LoggerWatcherTask> ProblemReports::viewer() const
{
    return m_viewer && !m_viewer->hasEnded() ? m_viewer : nullptr;
}

void ProblemReports::showLog()
{
    if (m_hasRunEnded)
        return;
    if (const auto running = viewer())
        return running->raise();
    m_viewer = std::make_shared<LoggerWatcherTask>();
    const QString program =
        tarnwell::productBundle().resource(u"KestrelLogWatcher.app"_s) + u"/Contents/MacOS/KestrelLogWatcher"_s;
    foundation::queue::asyncGlobal(
        [task = m_viewer, program, path = tarnwell::DNGetLogFilePath()] { task->run(program, {path}); });
}

void ProblemReports::sendPreviousLog()
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

void ProblemReports::checkAtLaunch()
{
    if (!tellUnsavedEnd() && m_defaults.boolForKey(notSafeTerminateKey)) {
        const auto answer =
            tarnwell::runAlert({.message = AppLocalizedString(u"Problem detected in last conversion."_s),
                                .defaultButton = AppLocalizedString(u"Send Report"_s),
                                .alternateButton = AppLocalizedString(u"Cancel"_s),
                                .informativeText = AppLocalizedString(
                                    u"Would you please send us the Log File to help us fix the issue?"_s)});
        if (answer == tarnwell::AlertAnswer::Default)
            sendPreviousLog();
        else if (answer == tarnwell::AlertAnswer::Alternate && !m_sessionEnd.isActive())  // its end closes windows
            tarnwell::DNCleanupLogFile();
    }
    setNotSafeTerminate(true);
}

void ProblemReports::sessionWillEnd()
{
    m_sessionEnd.start();
}

void ProblemReports::markEnded()
{
    setNotSafeTerminate(false);
}

void ProblemReports::noteSaved(bool isSaved)
{
    UnsavedEnd().note(!isSaved);
}

bool ProblemReports::tellUnsavedEnd() const
{
    if (!UnsavedEnd().take())
        return false;
    tarnwell::runAlert(
        {.message = AppLocalizedString(u"Your settings could not be saved when Kestrel was last quit."_s),
         .defaultButton = AppLocalizedString(u"OK"_s),
         .alternateButton = {},
         .informativeText =
             AppLocalizedString(u"Please check that the disk has room and that this folder can be written: %1"_s)
                 .arg(QDir::toNativeSeparators(foundation::configurationDirectory())),
         .style = tarnwell::AlertStyle::Warning});
    return true;
}

void ProblemReports::runWillEnd()
{
    m_hasRunEnded = true;
    if (const auto running = viewer())
        running->terminate();
}

void ProblemReports::setNotSafeTerminate(bool isNotSafe)
{
    m_defaults.setObject(isNotSafe && !m_sessionEnd.isActive(), notSafeTerminateKey);
}

}  // namespace kestrel
