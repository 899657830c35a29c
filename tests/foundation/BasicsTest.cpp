#include "Bundle.h"
#include "Color.h"
#include "Geometry.h"
#include "NotificationCenter.h"
#include "Numbers.h"
#include "Queues.h"
#include "TestEnvironment.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <limits>
#include <memory>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kestrel::foundation {

TEST(GeometryTest, TurnsTheVerticalAxisAndBack)
{
    EXPECT_EQ(toTopDown({10, 20, 30, 40}, 100), QRect(10, 40, 30, 40));
    EXPECT_EQ(toTopDown({-10, -20, 30, 40}, 100), QRect(-10, 80, 30, 40));
    EXPECT_EQ(toBottomUp(toTopDown({-7, 130, 0, 5}, 101), 101), Rect(-7, 130, 0, 5));
    const Rect rect(1, 2, 10, 20);
    EXPECT_EQ(rect.inset(2, -3), Rect(3, -1, 6, 26));
    EXPECT_EQ(rect.inset(2, -3).center(), rect.center());
}

TEST(NumbersTest, ReadsTheIntegerAtTheStart)
{
    constexpr qint64 lowest = std::numeric_limits<qint64>::min();
    constexpr qint64 highest = std::numeric_limits<qint64>::max();
    const struct {
        QString text;
        qint64 value;
    } rows[] = {
        {u" 12x"_s, 12},
        {u"-7.9"_s, -7},
        {u"+5"_s, 5},
        {u"007"_s, 7},
        {QString(), 0},
        {u"x1"_s, 0},
        {u"- 5"_s, 0},
        {u"+-5"_s, 0},
        {u"\t\n3"_s, 3},
        {u"٣"_s, 0},
        {u"0x10"_s, 0},
        {u"1 2"_s, 1},
        {u"9223372036854775807"_s, highest},
        {u"9223372036854775808"_s, highest},
        {u"-9223372036854775808"_s, lowest},
        {u"-9223372036854775809"_s, lowest},
        {QString(400, u'9'), highest},
    };
    for (const auto &[text, value] : rows)
        EXPECT_EQ(lenientInteger(text), value) << qPrintable(text);
}

TEST(ColorTest, TakesSixHexadecimalDigitsAndNothingElse)
{
    for (const auto &text : {u"0074CC"_s, u"#0074cc"_s})
        EXPECT_EQ(ColorWithHexString(text), QColor(0x00, 0x74, 0xCC));
    for (const auto &text : {u""_s, u"#"_s, u"074CC"_s, u"0074CC0"_s, u"##074CC"_s, u"0x74CC"_s, u" 074CC"_s,
                             u"074CC "_s, u"+074CC"_s, u"-074CC"_s, u"0074CG"_s, u"red"_s, u"٠٠٧٤٠٠"_s})
        EXPECT_FALSE(ColorWithHexString(text).isValid()) << qPrintable(text);
}

TEST(NotificationCenterTest, CallsObserversOfTheNameInTheirOrderWhileTheyLast)
{
    NotificationCenter center;
    QStringList calls;
    const auto record = [&](const QString &name) { return [&calls, name](QObject *) { calls.append(name); }; };
    QObject context;
    auto shortLived = std::make_unique<QObject>();
    QObject *posted = nullptr;
    center.addObserver(&context, u"A"_s, record(u"first"_s));
    center.addObserver(shortLived.get(), u"A"_s, record(u"second"_s));
    center.addObserver(&context, u"B"_s, record(u"other"_s));
    const auto last = center.addObserver(&context, u"A"_s, record(u"last"_s));
    center.addObserver(&context, u"A"_s, [&](QObject *object) { posted = object; });

    center.postNotificationName(u"A"_s, &context);
    EXPECT_EQ(calls, QStringList({u"first"_s, u"second"_s, u"last"_s}));
    EXPECT_EQ(posted, &context);
    calls.clear();
    shortLived.reset();
    QObject::disconnect(last);
    center.postNotificationName(u"A"_s);
    EXPECT_EQ(calls, QStringList(u"first"_s));
    EXPECT_EQ(posted, nullptr);
}

TEST(QueuesTest, RunsJobsOfTheMainThreadLaterAndInOrder)
{
    QStringList calls;
    QElapsedTimer clock;
    clock.start();
    qint64 elapsed = 0;
    queue::afterMain(50ms, [&] {
        elapsed = clock.elapsed();
        calls.append(u"delayed"_s);
    });
    queue::asyncMain([&] { queue::asyncMain([&] { calls.append(u"nested"_s); }); });
    queue::asyncMain([&] { calls.append(u"queued"_s); });
    EXPECT_TRUE(queue::syncMain([&] { calls.append(u"at once"_s); }));
    EXPECT_EQ(calls, QStringList(u"at once"_s));
    EXPECT_TRUE(test::waitUntil([&] { return calls.size() == 4; }));
    EXPECT_EQ(calls, QStringList({u"at once"_s, u"queued"_s, u"nested"_s, u"delayed"_s}));
    EXPECT_GE(elapsed, 50);
}

TEST(QueuesTest, ABackgroundJobWaitsForTheMainThread)
{
    QThread *jobThread = nullptr;
    QThread *mainThread = nullptr;
    bool isDone = false;
    queue::asyncGlobal([&] {
        QThread *const thread = QThread::currentThread();
        const bool ran = queue::syncMain([&] { mainThread = QThread::currentThread(); });
        queue::asyncMain([&, ran, thread] {
            jobThread = thread;
            isDone = ran;
        });
    });
    EXPECT_TRUE(test::waitUntil([&] { return isDone; }));
    EXPECT_EQ(mainThread, qApp->thread());
    EXPECT_NE(jobThread, qApp->thread());
}

TEST(QueuesTest, TheApplicationsEndReleasesAWaitingJob)
{
    QProcess process;
    process.start(QStringLiteral(KESTREL_TEST_HELPER), {u"end-while-waited-for"_s});
    EXPECT_TRUE(process.waitForFinished(10'000));
    EXPECT_EQ(process.exitCode(), 0);
}

TEST(BundleTest, ReadsWhatIsThere)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Name.app"_s);
    EXPECT_EQ(Bundle(path).identifier(), QString());
    QDir().mkpath(path + "/Contents"_L1);
    QFile file(path + "/Contents/Info.plist"_L1);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(
        "<plist version=\"1.0\"><dict><key>CFBundleIdentifier</key><string>com.example.name</string>"
        "<key>Number</key><integer>1</integer></dict></plist>");
    file.close();

    const Bundle bundle(path);
    EXPECT_EQ(bundle.identifier(), u"com.example.name"_s);
    EXPECT_TRUE(bundle.infoString(u"Number"_s).isNull());
    EXPECT_TRUE(bundle.infoString(u"Missing"_s).isNull());
    EXPECT_EQ(bundle.resource(u"en.lproj/a"_s), path + "/Contents/Resources/en.lproj/a"_L1);
    EXPECT_TRUE(Bundle::main().path().isEmpty());
    EXPECT_TRUE(Bundle::main().identifier().isNull());
}

}  // namespace kestrel::foundation
