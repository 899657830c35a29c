#include "app/ProblemReports.h"

#include "app/LoggerWatcherTask.h"
#include "foundation/StandardFolders.h"
#include "foundation/UserDefaults.h"
#include "tarnwell/Log.h"
#include "tarnwell/ProductInformation.h"
#include "tests/support/ProductFolder.h"
#include "tests/support/RecordingMailProgram.h"
#include "tests/support/TestDesktop.h"
#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

class ProblemReportsTest : public testing::Test {
protected:
    QTemporaryDir m_folder;
    test::ProductFolder m_product{test::productInformation({{u"TWSupportEmail"_s, u"help@kite.example"_s}})};
    foundation::UserDefaults m_defaults{m_folder.filePath(u"defaults.plist"_s)};
    test::TestDesktop m_desktop;
    ProblemReports m_reports{m_defaults};
};

}  // namespace

TEST_F(ProblemReportsTest, a_report_is_offered_after_an_unclean_exit_only)
{
    const QString flag = u"KestrelNotSafeTerminate"_s;
    const QByteArray formerFolder = qgetenv("TMPDIR");
    const auto restored =
        qScopeGuard([&] { formerFolder.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", formerFolder); });
    qputenv("TMPDIR", m_folder.path().toUtf8());
    QFile precious(m_folder.filePath(u"precious"_s));
    ASSERT_TRUE(precious.open(QIODevice::WriteOnly));
    const QString copy = m_folder.filePath(u"kestrel-previous.log"_s);
    const struct {
        const char *name;
        bool wasUnclean;
        tarnwell::AlertAnswer answer;
        qsizetype alerts;
        bool sends, keepsLog;
    } rows[] = {{"orderly", false, tarnwell::AlertAnswer::Default, 0, false, true},
                {"send", true, tarnwell::AlertAnswer::Default, 1, true, true},
                {"cancel", true, tarnwell::AlertAnswer::Alternate, 1, false, false},
                {"end of the application", true, tarnwell::AlertAnswer::None, 1, false, true}};
    for (const auto &[name, wasUnclean, answer, alerts, sends, keepsLog] : rows) {
        SCOPED_TRACE(name);
        const QTemporaryDir logs;
        tarnwell::Log(logs.path()).append(u"the run before"_s);
        tarnwell::Log log(logs.path());
        const tarnwell::Installed<tarnwell::Log> installed(log);
        QFile::remove(copy);
        QFile::link(precious.fileName(), copy);
        test::RecordingMailProgram mail;
        m_desktop.alerts.clear();
        m_desktop.answer = answer;
        m_defaults.setObject(wasUnclean, flag);
        m_reports.checkAtLaunch();
        EXPECT_EQ(m_desktop.alerts.size(), alerts);
        EXPECT_TRUE(m_defaults.boolForKey(flag));
        EXPECT_EQ(QFile::exists(log.previousPath()), keepsLog);
        EXPECT_EQ(QFileInfo(copy).isSymLink(), !sends);
        if (!sends)
            continue;
        EXPECT_EQ(m_desktop.alerts[0],
                  (tarnwell::Alert{u"Problem detected in last conversion."_s, u"Send Report"_s, u"Cancel"_s,
                                   u"Would you please send us the Log File to help us fix the issue?"_s}));
        EXPECT_EQ(mail.arguments(), (QStringList{u"--utf8"_s, u"--subject"_s, u"Kestrel Converter 4K (6.2.1)"_s,
                                                 u"--attach"_s, copy, u"help@kite.example"_s}));
        QFile sent(copy);
        EXPECT_TRUE(sent.open(QIODevice::ReadOnly) && sent.readAll().endsWith("the run before\n"));
    }
    EXPECT_EQ(precious.size(), 0) << "a link in the temporary folder was followed";

    // Without a log nothing is attached, and the temporary folder stays as it is.
    test::RecordingMailProgram mail;
    m_reports.sendPreviousLog();
    EXPECT_FALSE(mail.arguments().contains(u"--attach"_s));
    EXPECT_TRUE(precious.exists());
    // A copy that cannot be replaced is somebody else's.
    const QTemporaryDir logs;
    tarnwell::Log(logs.path()).append(u"the run before"_s);
    tarnwell::Log log(logs.path());
    const tarnwell::Installed<tarnwell::Log> installed(log);
    QFile::remove(copy);
    ASSERT_TRUE(QDir(m_folder.path()).mkpath(copy + u"/kept"_s));
    m_reports.sendPreviousLog();
    EXPECT_TRUE(mail.arguments().contains(log.previousPath()));
    EXPECT_TRUE(QFile::exists(copy + u"/kept"_s));

    m_reports.sessionWillEnd();
    m_defaults.setObject(true, flag);
    m_desktop.answer = tarnwell::AlertAnswer::Alternate;
    m_reports.checkAtLaunch();
    EXPECT_TRUE(QFile::exists(log.previousPath())) << "taken for an answer of the user";
    EXPECT_FALSE(m_defaults.boolForKey(flag)) << "armed while the session ends";
}

TEST_F(ProblemReportsTest, an_end_that_could_not_save_is_told_and_is_no_crash)
{
    const QString flag = u"KestrelNotSafeTerminate"_s;
    QDir().mkpath(foundation::stateDirectory() + u'/' + tarnwell::GetApplicationName());
    m_reports.noteSaved(false);
    m_defaults.setObject(true, flag);  // as the file still has it
    m_reports.checkAtLaunch();
    ASSERT_EQ(m_desktop.alerts.size(), 1);
    EXPECT_EQ(m_desktop.alerts[0].message, u"Your settings could not be saved when Kestrel was last quit."_s);
    EXPECT_TRUE(m_defaults.boolForKey(flag));
    m_reports.checkAtLaunch();
    ASSERT_EQ(m_desktop.alerts.size(), 2) << "told once";
    EXPECT_EQ(m_desktop.alerts[1].message, u"Problem detected in last conversion."_s);
}

TEST_F(ProblemReportsTest, one_log_viewer_at_a_time_until_the_end)
{
    const auto isOver = [this] { return !m_reports.viewer(); };
    m_reports.showLog();
    EXPECT_TRUE(test::waitUntil(isOver)) << "a viewer that is not there";

    QFile viewer(m_product.contentsPath(u"Resources/KestrelLogWatcher.app/Contents/MacOS/KestrelLogWatcher"_s));
    ASSERT_TRUE(viewer.open(QIODevice::WriteOnly));
    viewer.write(
        "#!/bin/sh\ntrap '' TERM\necho started >>\"$0.log\"\nexec 3<&0\n"
        "cat <&3 >>\"$0.asked\" &\nwhile :; do sleep 0.1; done\n");
    viewer.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    viewer.close();
    const auto starts = [&viewer] {
        return QFileInfo(viewer.fileName() + u".log"_s).size() / qint64(sizeof "started");
    };
    m_reports.showLog();
    m_reports.showLog();
    ASSERT_TRUE(test::waitUntil([&] { return starts() == 1; }));
    m_reports.showLog();
    EXPECT_FALSE(isOver());
    EXPECT_TRUE(test::waitUntil([&] { return QFileInfo(viewer.fileName() + u".asked"_s).size() > 0; }))
        << "the one that runs was not asked to the front";
    m_reports.runWillEnd();
    EXPECT_TRUE(test::waitUntil(isOver)) << "a viewer that does not heed SIGTERM holds the end";
    m_reports.showLog();
    EXPECT_TRUE(isOver());
    EXPECT_EQ(starts(), 1);

    LoggerWatcherTask early;
    early.terminate();
    early.run(viewer.fileName(), {});
    EXPECT_TRUE(early.hasEnded());
    EXPECT_EQ(starts(), 1) << "started after the end";
}

}  // namespace kestrel
