#include "UserDefaults.h"

#include "PropertyList.h"
#include "TestEnvironment.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLockFile>
#include <QProcess>
#include <QSize>
#include <QTemporaryDir>
#include <QThread>

#include <csignal>
#include <functional>
#include <limits>
#include <vector>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

QStringList defaultsWarnings;

void recordWarning(QtMsgType, const QMessageLogContext &, const QString &message)
{
    defaultsWarnings.append(message);
}

/// Changes with every replacement of the file.
std::vector<qint64> fileIdentity(const QString &path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return {};
    return {qint64(status.st_ino), qint64(status.st_ctime), QFileInfo(path).lastModified().toMSecsSinceEpoch()};
}

int fileMode(const QString &path)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? int(status.st_mode & 0777) : -1;
}

/// Takes the rights that only the superuser has from this process, where it has them; the files below `folder` stay its
/// own.
class OrdinaryUser {
public:
    explicit OrdinaryUser(const QString &folder)
    {
        constexpr uid_t nobody = 65534;
        if (::geteuid() != 0)
            return;
        m_isActive = ::chown(QFile::encodeName(folder).constData(), nobody, nobody) == 0 && ::seteuid(nobody) == 0;
    }
    ~OrdinaryUser()
    {
        if (m_isActive)
            m_isActive = ::seteuid(0) != 0;
    }

private:
    bool m_isActive = false;
};

}  // namespace

class UserDefaultsTest : public testing::Test {
protected:
    UserDefaultsTest()
    {
        defaultsWarnings.clear();
        m_previousHandler = qInstallMessageHandler(recordWarning);
    }
    ~UserDefaultsTest() override { qInstallMessageHandler(m_previousHandler); }

    QString folder() const { return m_temporary.filePath(u"domain"_s); }
    QString path() const { return folder() + "/defaults.plist"_L1; }

    /// Puts `bytes` where the domain is, as another program would.
    void putFile(const QByteArray &bytes)
    {
        QDir().mkpath(folder());
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    void putValues(const QVariantMap &values) { putFile(writePropertyList(values, PropertyListFormat::Xml)); }
    QByteArray fileBytes() const { return bytesOf(path()); }
    QVariantMap fileValues() const { return readPropertyList(fileBytes()).value.value_or(QVariant()).toMap(); }
    QStringList filesAside() const { return QDir(folder()).entryList({u"*.corrupt-*"_s}, QDir::Files, QDir::Name); }

    static QByteArray bytesOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_temporary;

private:
    QtMessageHandler m_previousHandler = nullptr;
};

TEST_F(UserDefaultsTest, KeepsEveryTypeOverARestart)
{
    const QDateTime date(QDate(2024, 2, 29), QTime(23, 59, 58, 700), Qt::UTC);
    const struct {
        const char *name;
        QVariant value;
        QVariant stored;
    } rows[] = {
        {"string", u"a <&> \"é\" 🎬\r\n\tb "_s, u"a <&> \"é\" 🎬\r\n\tb "_s},
        {"null string", QString(), u""_s},
        {"empty data", QByteArray(), QByteArray("")},
        {"data", QByteArray("\0\xff\n", 3), QByteArray("\0\xff\n", 3)},
        {"true", true, true},
        {"int", -5, qlonglong(-5)},
        {"lowest integer", std::numeric_limits<qlonglong>::min(), std::numeric_limits<qlonglong>::min()},
        {"highest integer", std::numeric_limits<qulonglong>::max(), std::numeric_limits<qulonglong>::max()},
        {"real", 0.1, 0.1},
        {"whole real", 3.0, 3.0},
        {"date", date.toLocalTime(), date.addMSecs(-700)},
        {"list of strings", QStringList{u"a"_s, u""_s}, QVariantList{u"a"_s, u""_s}},
        {"dictionary", QVariantMap{{u"list"_s, QVariantList{1, false}}, {u""_s, QVariantMap()}},
         QVariantMap{{u"list"_s, QVariantList{qlonglong(1), false}}, {u""_s, QVariantMap()}}},
    };
    {
        UserDefaults defaults(path());
        for (const auto &row : rows)
            defaults.setObject(row.value, QString::fromLatin1(row.name));
        for (const auto &row : rows)
            EXPECT_TRUE(isSamePropertyList(defaults.objectForKey(QString::fromLatin1(row.name)), row.stored))
                << row.name;
    }
    const UserDefaults restarted(path());
    for (const auto &row : rows)
        EXPECT_TRUE(isSamePropertyList(restarted.objectForKey(QString::fromLatin1(row.name)), row.stored)) << row.name;
    EXPECT_FALSE(restarted.stringForKey(u"null string"_s).isNull());
    EXPECT_FALSE(restarted.dataForKey(u"empty data"_s).isNull());
    EXPECT_EQ(defaultsWarnings, QStringList());
}

TEST_F(UserDefaultsTest, SearchesItsLayersFromTheTop)
{
    UserDefaults defaults(path(), {{u"a"_s, u"system"_s}, {u"languages"_s, QStringList{u"de"_s}}});
    defaults.registerDefaults({{u"a"_s, u"fallback"_s}, {u"b"_s, 1}, {u"c"_s, u"fallback"_s}});
    defaults.registerDefaults({{u"c"_s, u"later"_s}});
    defaults.setObject(u"own"_s, u"a"_s);
    EXPECT_EQ(defaults.stringForKey(u"a"_s), u"own"_s);
    defaults.removeObjectForKey(u"a"_s);
    EXPECT_EQ(defaults.stringForKey(u"a"_s), u"system"_s);
    EXPECT_EQ(defaults.stringForKey(u"c"_s), u"later"_s);
    EXPECT_TRUE(defaults.boolForKey(u"b"_s));
    EXPECT_EQ(defaults.stringArrayForKey(u"languages"_s), QStringList(u"de"_s));
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_FALSE(QFile::exists(path())) << "only the application's own layer is written";
}

TEST_F(UserDefaultsTest, ReadsAnotherTypeAsAbsent)
{
    UserDefaults defaults(path());
    defaults.registerDefaults({{u"number"_s, 2}, {u"text"_s, u"x"_s}, {u"mixed"_s, QVariantList{u"x"_s, 1}}});
    EXPECT_TRUE(defaults.stringForKey(u"number"_s).isNull());
    EXPECT_TRUE(defaults.dataForKey(u"text"_s).isNull());
    for (const auto &key : {u"number"_s, u"text"_s, u"mixed"_s})
        EXPECT_TRUE(defaults.stringArrayForKey(key).isEmpty());

    const std::pair<QVariant, bool> rows[] = {
        {u"YES"_s, true}, {u"true"_s, true}, {u"1"_s, true}, {u"no"_s, false},         {u"2x"_s, false},
        {0.5, true},      {0, false},        {-1, true},     {QByteArray("1"), false}, {QVariant(), false}};
    for (const auto &[value, expected] : rows) {
        defaults.setObject(value, u"flag"_s);
        EXPECT_EQ(defaults.boolForKey(u"flag"_s), expected) << qPrintable(value.toString());
    }
}

TEST_F(UserDefaultsTest, WritesOncePerTurnAndOnlyForAChange)
{
    UserDefaults defaults(path());
    for (int i = 0; i < 10; ++i)
        defaults.setObject(i, u"key%1"_s.arg(i));
    defaults.setObject(u"passing"_s, u"gone"_s);
    defaults.removeObjectForKey(u"gone"_s);
    EXPECT_FALSE(QFile::exists(path()));
    EXPECT_TRUE(test::waitUntil([&] { return QFile::exists(path()); }));
    EXPECT_EQ(fileValues().size(), 10);

    // A replacement gets this file's identity only once it is unused, which it is not while it is open.
    QFile original(path());
    ASSERT_TRUE(original.open(QIODevice::ReadOnly));
    const auto identity = fileIdentity(path());
    defaults.setObject(3, u"key3"_s);
    defaults.removeObjectForKey(u"never there"_s);
    defaults.setObject(5, u"key4"_s);
    defaults.setObject(4, u"key4"_s);
    QCoreApplication::processEvents();
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(fileIdentity(path()), identity);
    defaults.setObject(3.0, u"key3"_s);  // another type is another value
    QCoreApplication::processEvents();
    EXPECT_NE(fileIdentity(path()), identity);
}

TEST_F(UserDefaultsTest, WritesOnTopOfWhatOthersWrote)
{
    putValues({{u"unknown"_s, QVariantList{u"kept"_s}}, {u"removed by other"_s, 1}, {u"mine"_s, 1}, {u"both"_s, 1}});
    UserDefaults defaults(path());
    putValues({{u"unknown"_s, QVariantList{u"kept"_s}}, {u"mine"_s, 1}, {u"both"_s, 2}, {u"new"_s, 2}});
    defaults.setObject(3, u"both"_s);
    defaults.removeObjectForKey(u"mine"_s);
    EXPECT_TRUE(defaults.synchronize());
    const QVariantMap expected = {{u"unknown"_s, QVariantList{u"kept"_s}}, {u"both"_s, 3}, {u"new"_s, 2}};
    EXPECT_TRUE(isSamePropertyList(fileValues(), expected));
    EXPECT_EQ(defaults.objectForKey(u"new"_s), 2);
    EXPECT_FALSE(defaults.objectForKey(u"removed by other"_s).isValid());

    ASSERT_TRUE(QFile::remove(path()));
    defaults.setObject(1, u"mine"_s);
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(fileValues().keys(), QStringList({u"both"_s, u"mine"_s, u"new"_s, u"unknown"_s}));
}

TEST_F(UserDefaultsTest, RefusesWhatAListCannotHold)
{
    QVariantList deep;
    for (int i = 0; i < PropertyListLimits().depth; ++i)
        deep = {QVariant(deep)};
    UserDefaults defaults(path());
    defaults.setObject(u"old"_s, u"key"_s);
    const QVariant values[] = {QSize(1, 2), u"a\x01"_s, QVariantList{QVariant()}, deep, QDateTime()};
    for (const QVariant &value : values)
        defaults.setObject(value, u"key"_s);
    defaults.setObject(1, u"bad\x01key"_s);
    EXPECT_EQ(defaultsWarnings.size(), std::ssize(values) + 1);
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_TRUE(isSamePropertyList(fileValues(), QVariantMap{{u"key"_s, u"old"_s}}));
}

TEST_F(UserDefaultsTest, MovesADamagedFileAside)
{
    const QByteArray good = writePropertyList(QVariantMap{{u"key"_s, 1}}, PropertyListFormat::Xml);
    const struct {
        const char *name;
        QByteArray bytes;
    } rows[] = {{"empty", ""},
                {"torn", good.chopped(12)},
                {"zeros", QByteArray(good.size(), '\0')},
                {"not a dictionary", writePropertyList(QVariantList{1}, PropertyListFormat::Xml)},
                {"binary head alone", "bplist00"},
                {"too large", good + QByteArray(PropertyListLimits().bytes, ' ')}};
    int count = 0;
    for (const auto &row : rows) {  // within one second, so that the names meet
        putFile(row.bytes);
        UserDefaults defaults(path());
        ASSERT_EQ(filesAside().size(), ++count) << row.name;
        EXPECT_EQ(defaultsWarnings.size(), count) << row.name;
        defaults.setObject(count, u"key"_s);
        EXPECT_TRUE(defaults.synchronize());
        EXPECT_EQ(fileValues().value(u"key"_s), count) << row.name;
    }
    QList<qint64> sizesAside;
    for (const QFileInfo &file : QDir(folder()).entryInfoList(filesAside()))
        sizesAside.append(file.size());
    for (const auto &row : rows)
        EXPECT_TRUE(sizesAside.removeOne(row.bytes.size())) << row.name;

    // Damaged while it is in use.
    UserDefaults defaults(path());
    putFile("");
    defaults.setObject(u"b"_s, u"other"_s);
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(fileValues().keys(), QStringList({u"key"_s, u"other"_s}));
    EXPECT_EQ(filesAside().size(), count + 1);
}

TEST_F(UserDefaultsTest, LosesNothingWhereItCannotSave)
{
    // The domain's file is written with {"old": 1}, the obstacle put up, and taken away again.
    struct Obstacle {
        const char *name;
        std::function<void()> put;
        std::function<void()> remove;
    };
    const QString kept = path() + u'~';
    const auto putAway = [&] { QFile::rename(path(), kept); };
    const auto putBack = [&] {
        QDir().rmdir(path());
        QFile::remove(path());
        QFile::rename(kept, path());
    };
    const auto setMode = [](const QString &target, QFile::Permissions permissions) {
        return [=] { QFile::setPermissions(target, permissions); };
    };
    const auto all = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    const auto limitFileSize = [](rlim_t bytes) {
        return [=] {
            rlimit limit = {};
            ::getrlimit(RLIMIT_FSIZE, &limit);
            limit.rlim_cur = std::min(bytes, limit.rlim_max);
            ::setrlimit(RLIMIT_FSIZE, &limit);
        };
    };
    const Obstacle obstacles[] = {
        {"a folder in its place", [&] { putAway(), QDir().mkdir(path()); }, putBack},
        {"a pipe in its place", [&] { putAway(), ::mkfifo(QFile::encodeName(path()).constData(), 0600); }, putBack},
        {"a link to itself", [&] { putAway(), QFile::link(path(), path()); }, putBack},
        {"a file that may not be read", setMode(path(), {}), setMode(path(), all)},
        {"a folder that may not be written", setMode(folder(), QFile::ReadOwner | QFile::ExeOwner),
         setMode(folder(), all)},
        {"a full disk", limitFileSize(4096), limitFileSize(RLIM_INFINITY)},
    };
    std::signal(SIGXFSZ, SIG_IGN);
    const OrdinaryUser user(m_temporary.path());
    for (const Obstacle &obstacle : obstacles) {
        SCOPED_TRACE(obstacle.name);
        putValues({{u"old"_s, 1}});
        const QByteArray before = fileBytes();
        defaultsWarnings.clear();
        obstacle.put();
        {
            UserDefaults defaults(path());
            defaults.setObject(QString(10'000, u'x'), u"large"_s);
            EXPECT_FALSE(defaults.synchronize());
            defaults.setObject(2, u"more"_s);
            QCoreApplication::processEvents();
            EXPECT_FALSE(defaults.synchronize());
            EXPECT_EQ(defaultsWarnings.size(), 1);
            EXPECT_EQ(defaults.objectForKey(u"more"_s), 2);
            obstacle.remove();
            EXPECT_EQ(fileBytes(), before);
            EXPECT_TRUE(defaults.synchronize());
        }
        EXPECT_EQ(fileValues().keys(), QStringList({u"large"_s, u"more"_s, u"old"_s}));
        EXPECT_EQ(QDir(folder()).entryList(QDir::Files | QDir::System), QStringList(u"defaults.plist"_s));
    }
    std::signal(SIGXFSZ, SIG_DFL);
}

TEST_F(UserDefaultsTest, WritesThroughALinkAndForTheOwnerAlone)
{
    const QString target = m_temporary.filePath(u"dotfiles/kestrel.plist"_s);
    QDir().mkpath(m_temporary.filePath(u"dotfiles"_s));
    {
        UserDefaults defaults(m_temporary.filePath(u"new/domain/defaults.plist"_s));
        defaults.setObject(1, u"key"_s);
    }
    EXPECT_EQ(fileMode(m_temporary.filePath(u"new/domain"_s)), 0700);
    QDir().mkpath(folder());
    ASSERT_TRUE(QFile::link(u"../dotfiles/kestrel.plist"_s, folder() + "/second"_L1));
    ASSERT_TRUE(QFile::link(u"second"_s, path()));
    for (int value : {1, 2}) {  // its target is first missing, then there
        UserDefaults defaults(path());
        defaults.setObject(value, u"key"_s);
        EXPECT_TRUE(defaults.synchronize());
        EXPECT_TRUE(QFileInfo(path()).isSymLink());
        EXPECT_FALSE(QFileInfo(target).isSymLink());
        EXPECT_EQ(readPropertyList(bytesOf(target)).value->toMap().value(u"key"_s), value);
        EXPECT_EQ(fileMode(target), 0600);
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther);
    }
}

TEST_F(UserDefaultsTest, WaitsForALockInUseAndHealsOneLeftBehind)
{
    UserDefaults defaults(path());
    defaults.setObject(1, u"key"_s);
    EXPECT_TRUE(defaults.synchronize());
    QLockFile lock(path() + ".lock"_L1);
    ASSERT_TRUE(lock.tryLock());
    defaults.setObject(2, u"key"_s);
    EXPECT_FALSE(defaults.synchronize());  // though the lock is old by then
    EXPECT_EQ(fileValues().value(u"key"_s), 1);
    lock.unlock();
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(fileValues().value(u"key"_s), 2);

    QFile left(path() + ".lock"_L1);  // by a process that was killed before it had written its id
    ASSERT_TRUE(left.open(QIODevice::WriteOnly));
    left.close();
    QElapsedTimer clock;
    clock.start();
    defaults.setObject(3, u"key"_s);
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_LT(clock.elapsed(), 2500);
}

TEST_F(UserDefaultsTest, MergesTheSavesOfTwoProcesses)
{
    QProcess writers[2];
    for (auto &writer : writers) {
        const QString prefix = &writer == writers ? u"a"_s : u"b"_s;
        writer.start(QStringLiteral(KESTREL_TEST_HELPER), {u"store-keys"_s, path(), prefix, u"150"_s});
    }
    for (auto &writer : writers) {
        EXPECT_TRUE(writer.waitForFinished(60'000));
        EXPECT_EQ(writer.exitCode(), 0);
    }
    EXPECT_EQ(fileValues().size(), 300);
}

TEST_F(UserDefaultsTest, ACrashLeavesOneWholeValue)
{
    int values[2] = {};
    for (int round = 0; round < 100; ++round) {
        QProcess writer;
        writer.start(QStringLiteral(KESTREL_TEST_HELPER), {u"rewrite"_s, path(), QString::number(1 + round % 4)});
        ASSERT_TRUE(writer.waitForReadyRead(20'000));
        QThread::usleep(round * 173 % 4987);
        writer.kill();
        ASSERT_TRUE(writer.waitForFinished());
        ASSERT_EQ(writer.exitStatus(), QProcess::CrashExit);

        UserDefaults defaults(path());
        const QString value = defaults.stringForKey(u"large"_s);
        ASSERT_TRUE(value == QString(20'000, u'o') || value == QString(20'000, u'n')) << round;
        ++values[value.startsWith(u'n')];
        defaults.setObject(round, u"round"_s);
        ASSERT_TRUE(defaults.synchronize()) << round;
    }
    EXPECT_TRUE(values[0] > 0 && values[1] > 0) << values[0] << " old, " << values[1] << " new";
    EXPECT_EQ(QDir(folder()).entryList({u"*.corrupt-*"_s, u"*.lock*"_s}, QDir::Files), QStringList());
    EXPECT_EQ(defaultsWarnings, QStringList());
}

TEST_F(UserDefaultsTest, TheStandardOnesAreSavedHoweverTheProgramEnds)
{
    const QString home = m_temporary.path();
    const QString file = u"/com.tarnwell.kestrel/defaults.plist"_s;
    const struct {
        const char *name;
        QString task;
        QString configurationHome;
        QString folder;
        QString key;
        QVariant value;
    } rows[] = {
        {"without an application", u"change-and-end"_s, home + "/a"_L1, u"/a"_s, u"seen"_s,
         QVariantList{u"zh-Hant-TW"_s, u"de"_s}},
        {"before the application", u"change-early"_s, QString(), u"/.config"_s, u"early"_s, true},
        {"after the last turn", u"change-late"_s, u"relative"_s, u"/.config"_s, u"late"_s, true},
    };
    for (const auto &row : rows) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, home);
        environment.insert(u"XDG_CONFIG_HOME"_s, row.configurationHome);
        environment.insert(u"LC_ALL"_s, u"en_GB.UTF-8"_s);
        environment.insert(u"LANGUAGE"_s, u"zh_TW:de"_s);
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(home);
        process.start(QStringLiteral(KESTREL_TEST_HELPER), {row.task});
        EXPECT_TRUE(process.waitForFinished()) << row.name;
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << row.name;
        EXPECT_EQ(process.exitCode(), 0) << row.name;
        const auto list = readPropertyList(bytesOf(home + row.folder + file)).value.value_or(QVariant());
        EXPECT_TRUE(isSamePropertyList(list.toMap().value(row.key), row.value)) << row.name;
    }
}

}  // namespace kestrel::foundation
