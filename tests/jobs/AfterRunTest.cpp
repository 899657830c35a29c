#include "jobs/AfterRun.h"

#include "ScriptedJobs.h"
#include "tests/support/PrivateBus.h"
#include "tests/support/ProductFolder.h"
#include "tests/support/TestDesktop.h"
#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusUnixFileDescriptor>
#include <QSignalSpy>

#include <poll.h>
#include <unistd.h>
#include <csignal>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kestrel {

namespace {

class LoginManager : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")
public:
    ~LoginManager() override { ::close(m_readEnd); }

    bool isInhibited() const
    {
        pollfd end{m_readEnd, POLLIN, 0};
        return m_readEnd >= 0 && ::poll(&end, 1, 0) == 0;  // at its end once nobody holds the other
    }

    bool m_answers = true, m_refuses = false;
    QString m_canPowerOff = u"yes"_s;
    QStringList m_calls;

public slots:
    QDBusUnixFileDescriptor Inhibit(const QString &what, const QString &, const QString &why, const QString &mode)
    {
        m_calls += u"Inhibit %1 %2"_s.arg(what, mode);
        setDelayedReply(!m_answers || why.isEmpty());
        int ends[2] = {-1, -1};
        if (!m_answers || ::pipe(ends) != 0)
            return {};
        ::close(std::exchange(m_readEnd, ends[0]));
        QDBusUnixFileDescriptor given;
        given.giveFileDescriptor(ends[1]);
        return given;
    }
    QString CanPowerOff() { return m_canPowerOff; }
    void PowerOff(bool interactive)
    {
        m_calls += interactive ? u"PowerOff asking"_s : u"PowerOff"_s;
        if (m_refuses)
            sendErrorReply(QDBusError::AccessDenied);
    }

private:
    int m_readEnd = -1;
};

class ScreenSaver : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")
public:
    QList<uint> m_holders;
public slots:
    uint Inhibit(const QString &, const QString &)
    {
        m_holders += 7;
        return 7;
    }
    void UnInhibit(uint number) { m_holders.removeOne(number); }
};

class Notifications : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")
public:
    QStringList m_shown;
    QStringList m_actions;

public slots:
    uint Notify(const QString &, uint, const QString &, const QString &summary, const QString &body,
                const QStringList &actions, const QVariantMap &, int)
    {
        m_shown += summary + u" / "_s + body;
        m_actions = actions;
        return uint(m_shown.size()) + 40;
    }
signals:
    void ActionInvoked(uint id, const QString &action);
    void NotificationClosed(uint id, uint reason);
};

class TaskBar : public QObject {
    Q_OBJECT
public:
    QList<QVariantMap> m_updates;
public slots:
    void update(const QString &application, const QVariantMap &properties)
    {
        if (application == u"application://com.tarnwell.kestrel.desktop"_s)
            m_updates += properties;
    }
};

class AfterRunTest : public testing::Test {
protected:
    AfterRunTest()
    {
        m_queue.setRecipe(u"marlin"_s, &m_recipe);
        m_queue.setLaneLimit(Lane::Encode, 4);
    }
    ~AfterRunTest() override { QDBusConnection::disconnectFromBus(u"stand-ins"_s); }

    void offer(const QString &service, const QString &path, QObject &standIn)
    {
        EXPECT_TRUE(m_bus.isConnected());
        EXPECT_TRUE(
            m_bus.registerObject(path, &standIn, QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals));
        EXPECT_TRUE(m_bus.registerService(service));
    }
    void offerAll()
    {
        offer(u"org.freedesktop.login1"_s, u"/org/freedesktop/login1"_s, m_login);
        offer(u"org.freedesktop.ScreenSaver"_s, u"/org/freedesktop/ScreenSaver"_s, m_screenSaver);
        offer(u"org.freedesktop.Notifications"_s, u"/org/freedesktop/Notifications"_s, m_notifications);
        m_bus.connect({}, {}, u"com.canonical.Unity.LauncherEntry"_s, u"Update"_s, &m_taskBar,
                      SLOT(update(QString, QVariantMap)));
    }
    /// Starts a job for each state and ends them so; true once the module is idle.
    bool run(const QList<JobState> &endings)
    {
        QSignalSpy idle(&m_queue, &JobQueue::idle);
        start(endings.size());
        for (qsizetype i = 0; i < endings.size(); ++i)
            m_recipe.made[i]->end({.state = endings[i]});
        return test::waitUntil([&] { return idle.count() > 0; });
    }
    void start(qsizetype count, Lane lane = Lane::Encode)
    {
        m_recipe.made.clear();
        QList<JobId> ids;
        for (qsizetype i = 0; i < count; ++i) {
            JobRecord record = test::scriptedRecord(u"<film>.mov"_s, lane);
            record.folder = m_folder.path();
            ids += m_queue.add(record);
        }
        m_queue.start(ids);
        ASSERT_EQ(m_recipe.made.size(), count);
    }
    /// Time for what should not come.
    static void settle()
    {
        test::waitUntil([] { return false; }, 200);
    }

    QTemporaryDir m_folder;
    test::ProductFolder m_product{test::productInformation({{u"CFBundleIdentifier"_s, u"com.tarnwell.kestrel"_s}})};
    test::TestDesktop m_desktop;
    QDBusConnection m_bus = QDBusConnection::connectToBus(test::PrivateBus::instance().address(), u"stand-ins"_s);
    LoginManager m_login;
    ScreenSaver m_screenSaver;
    Notifications m_notifications;
    TaskBar m_taskBar;
    test::ScriptedRecipe m_recipe;
    JobQueue m_queue{nullptr};
    AfterRun::Wishes m_wishes;
    AfterRun m_afterRun{m_queue, [this](const QString &) { return m_wishes; }, nullptr, 10ms};
    QSignalSpy m_countdown{&m_afterRun, &AfterRun::shutdownIn};
};

}  // namespace

TEST_F(AfterRunTest, the_machine_stays_awake_while_a_job_is_active)
{
    offerAll();
    start(2);
    ASSERT_TRUE(test::waitUntil([this] { return m_login.isInhibited(); }));
    EXPECT_EQ(m_login.m_calls, QStringList(u"Inhibit sleep:idle block"_s));
    EXPECT_TRUE(m_screenSaver.m_holders.isEmpty()) << "only what is recorded needs the screen";
    emit m_recipe.made[0]->progressed({.fraction = 0.5});
    EXPECT_TRUE(test::waitUntil([this] { return !m_taskBar.m_updates.isEmpty(); }));
    EXPECT_EQ(m_taskBar.m_updates.value(0).value(u"progress-visible"_s), true);
    m_recipe.made[0]->end({.state = JobState::Done});
    settle();
    EXPECT_TRUE(m_login.isInhibited());
    m_recipe.made[1]->end({.state = JobState::Failed});
    EXPECT_TRUE(test::waitUntil([this] { return !m_login.isInhibited(); }));
    EXPECT_TRUE(test::waitUntil([this] { return m_taskBar.m_updates.last().value(u"progress-visible"_s) == false; }));
    EXPECT_LE(m_taskBar.m_updates.size(), 4);
}

TEST_F(AfterRunTest, the_screen_stays_on_while_it_is_recorded)
{
    offerAll();
    start(1, Lane::Capture);
    ASSERT_TRUE(test::waitUntil([this] { return m_screenSaver.m_holders.size() == 1; }));
    m_recipe.made[0]->end({.state = JobState::Done});
    EXPECT_TRUE(test::waitUntil([this] { return m_screenSaver.m_holders.isEmpty(); }));
}

TEST_F(AfterRunTest, an_answer_that_comes_after_the_jobs_is_let_go)
{
    offerAll();
    ::kill(test::PrivateBus::instance().processId(), SIGSTOP);
    const bool ran = run({JobState::Done});
    settle();
    ::kill(test::PrivateBus::instance().processId(), SIGCONT);
    EXPECT_TRUE(ran) << "held up by a bus that does not answer";
    settle();
    EXPECT_FALSE(m_login.isInhibited());
}

TEST_F(AfterRunTest, wishes_are_granted_by_how_the_jobs_ended)
{
    offerAll();
    using enum JobState;
    const struct {
        const char *name;
        QList<JobState> endings;
        QString shown;
        bool opens, shutsDown;
    } rows[] = {
        {"done", {Done}, u"<film>.mov / Done: 1"_s, true, true},
        {"all done", {Done, Done}, u"All jobs have ended. / Done: 2"_s, true, true},
        {"one failed", {Failed, Done}, u"All jobs have ended. / Done: 1 · Failed: 1"_s, true, false},
        {"with problems", {DoneWithProblems}, u"<film>.mov / Done with problems: 1"_s, true, false},
        {"one cancelled", {Done, Cancelled}, u"All jobs have ended. / Done: 1 · Cancelled: 1"_s, false, false},
        {"cancelled", {Cancelled}, {}, false, false},
        {"end of the program", {Done, Interrupted}, {}, false, false},
        {"done after those", {Done}, u"<film>.mov / Done: 1"_s, true, true},
    };
    for (const auto &[name, endings, shown, opens, shutsDown] : rows) {
        SCOPED_TRACE(name);
        for (const bool wished : {true, false}) {
            m_wishes = {.openFolder = wished, .notify = wished, .shutDown = wished};
            m_notifications.m_shown.clear();
            m_login.m_calls.clear();
            m_desktop.opened.clear();
            m_countdown.clear();
            ASSERT_TRUE(run(endings));
            EXPECT_TRUE(
                test::waitUntil([&] { return m_notifications.m_shown.isEmpty() == (!wished || shown.isEmpty()); }));
            if (!wished || !shutsDown)
                settle();
            EXPECT_TRUE(
                test::waitUntil([&] { return m_login.m_calls.contains(u"PowerOff"_s) == (wished && shutsDown); }));
            EXPECT_EQ(m_countdown.count(), wished && shutsDown ? 60 : 0);
            EXPECT_EQ(m_notifications.m_shown.join(u'|'), wished ? shown : QString());
            EXPECT_EQ(m_desktop.opened.size(), wished && opens ? 1 : 0);
            m_afterRun.stopShutdown();
        }
    }
}

TEST_F(AfterRunTest, the_notification_leads_to_its_module)
{
    offerAll();
    m_wishes.notify = true;
    ASSERT_TRUE(run({JobState::Done}));
    ASSERT_TRUE(test::waitUntil([this] { return !m_notifications.m_shown.isEmpty(); }));
    EXPECT_EQ(m_notifications.m_actions.mid(2), (QStringList{u"show"_s, u"Show"_s}));
    QSignalSpy shown(&m_afterRun, &AfterRun::showRequested);
    settle();
    emit m_notifications.ActionInvoked(40, u"show"_s);  // another program's
    emit m_notifications.ActionInvoked(41, u"show"_s);
    EXPECT_TRUE(test::waitUntil([&] { return shown.count() == 1; }));
    emit m_notifications.ActionInvoked(41, u"default"_s);  // a click at it
    EXPECT_TRUE(test::waitUntil([&] { return shown.count() == 2; }));
    EXPECT_EQ(shown.value(0).value(0), u"marlin"_s);
}

TEST_F(AfterRunTest, the_countdown_can_be_stopped)
{
    offerAll();
    m_wishes.shutDown = true;
    const std::pair<const char *, std::function<void()>> stops[] = {
        {"by the user", [this] { m_afterRun.stopShutdown(); }}, {"by new work", [this] { start(1); }}};
    for (const auto &[name, stop] : stops) {
        SCOPED_TRACE(name);
        m_countdown.clear();
        ASSERT_TRUE(run({JobState::Done}));
        ASSERT_TRUE(test::waitUntil([this] { return m_countdown.count() >= 2; }));
        EXPECT_EQ(m_countdown.value(0).value(0), 60);
        EXPECT_EQ(m_countdown.value(1).value(0), 59);
        stop();
        ASSERT_TRUE(test::waitUntil([this] { return m_countdown.last().value(0) == -1; }));
        const qsizetype told = m_countdown.count();
        settle();
        EXPECT_EQ(m_countdown.count(), told);
        EXPECT_FALSE(m_login.m_calls.contains(u"PowerOff"_s));
    }
}

TEST_F(AfterRunTest, services_that_are_missing_refuse_or_hang_hold_nothing_up)
{
    m_wishes = {.openFolder = true, .notify = true, .shutDown = true};
    ASSERT_TRUE(run({JobState::Done}));  // none there
    settle();
    EXPECT_EQ(m_countdown.count(), 0);
    offerAll();
    m_login.m_refuses = true;
    ASSERT_TRUE(run({JobState::Done}));
    EXPECT_TRUE(test::waitUntil([this] { return m_countdown.count() == 61 && m_countdown.last().value(0) == -1; }));
    m_countdown.clear();
    m_notifications.m_shown.clear();
    m_login.m_canPowerOff = u"challenge"_s;
    m_login.m_answers = false;
    ASSERT_TRUE(run({JobState::Done}));
    EXPECT_TRUE(test::waitUntil([this] { return m_notifications.m_shown.size() == 1; }));
    settle();
    EXPECT_EQ(m_countdown.count(), 0);
    EXPECT_EQ(m_desktop.opened.size(), 3);
}

}  // namespace kestrel

#include "AfterRunTest.moc"
