#include "foundation/UserDefaults.h"

#include "foundation/PropertyList.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QThread>

#include <csignal>
#include <limits>

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

QStringList defaultsWarnings;

/// A domain in a folder of the test's own.
class UserDefaultsTest : public testing::Test {
protected:
    UserDefaultsTest()
    {
        defaultsWarnings.clear();
        qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext &, const QString &text) { defaultsWarnings.append(text); });
        QDir().mkdir(m_folder);
    }
    ~UserDefaultsTest() override { qInstallMessageHandler(nullptr); }

    /// Puts `bytes` where the domain is, as another program would.
    void putFile(const QByteArray &bytes) const
    {
        QFile file(m_path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    void putValues(const QVariantMap &values) const { putFile(writePropertyList(values, PropertyListFormat::Xml)); }
    QByteArray fileBytes() const
    {
        QFile file(m_path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QVariantMap fileValues() const { return readPropertyList(fileBytes()).value.value_or(QVariant()).toMap(); }

    QTemporaryDir m_temporary;
    const QString m_folder = m_temporary.filePath(u"domain"_s);
    const QString m_path = m_folder + "/defaults.plist"_L1;
};

TEST_F(UserDefaultsTest, KeepsEveryTypeOverARestartAndRefusesOthers)
{
    const QDateTime date(QDate(2024, 2, 29), QTime(23, 59, 58, 700), Qt::UTC);
    const QVariantList rest = {u"a <&> \"é\" 🎬\r\n\tb "_s,
                               QString(),
                               -5,
                               3.0,
                               QByteArray("\0\xff\n", 3),
                               true,
                               std::numeric_limits<qulonglong>::max()};
    const QVariantList given = QVariantList{date.toLocalTime(), QStringList(2, u"a"_s)} + rest;
    const QVariantList stored = QVariantList{date.addMSecs(-700), QVariantList(2, u"a"_s)} + rest;
    for (const QVariantList &values : {given, QVariantList()}) {  // of two starts
        UserDefaults defaults(m_path);
        for (int i = 0; i < values.size(); ++i)
            defaults.setObject(values[i], QString::number(i));
        defaultsWarnings.clear();
        for (const QVariant &value : {QVariant(QDateTime()), QVariant(u"a\x01"_s), QVariant(QVariantList(1))})
            defaults.setObject(value, u"4"_s);
        EXPECT_EQ(defaultsWarnings.size(), 3);
        for (int i = 0; i < given.size(); ++i)
            EXPECT_TRUE(isSamePropertyList(defaults.objectForKey(QString::number(i)), stored[i])) << i;
    }
}

TEST_F(UserDefaultsTest, WritesOncePerTurnAndOnlyAChangeOfItsOwnLayer)
{
    UserDefaults defaults(m_path, {{u"a"_s, u"system"_s}});
    defaults.registerDefaults({{u"a"_s, u"fallback"_s}});
    defaults.setObject(3, u"a"_s);
    EXPECT_TRUE(defaults.stringForKey(u"a"_s).isNull());  // another type
    EXPECT_FALSE(QFile::exists(m_path));
    QCoreApplication::processEvents();
    EXPECT_EQ(fileValues(), QVariantMap({{u"a"_s, 3LL}}));
    putFile(writePropertyList(fileValues(), PropertyListFormat::Binary));  // which a write would make XML
    defaults.setObject(3, u"a"_s);
    defaults.setObject(3.0, u"a"_s);  // another type is another value
    defaults.setObject(3, u"a"_s);
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_TRUE(fileBytes().startsWith("bplist"));
    defaults.removeObjectForKey(u"a"_s);
    EXPECT_EQ(defaults.stringForKey(u"a"_s), u"system"_s);
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_TRUE(fileBytes().startsWith("<?xml") && fileValues().isEmpty());
}

TEST_F(UserDefaultsTest, WritesOnTopOfWhatOthersWroteAndThroughALink)
{
    const QString target = m_temporary.filePath(u"linked.plist"_s);
    ASSERT_TRUE(QFile::link(target, m_path));
    putValues({{u"removed by other"_s, 1}, {u"mine"_s, 1}, {u"both"_s, 1}});
    UserDefaults defaults(m_path);
    putValues({{u"unknown"_s, QVariantList{u"kept"_s}}, {u"mine"_s, 1}, {u"both"_s, 2}});
    defaults.setObject(3, u"both"_s);
    defaults.removeObjectForKey(u"mine"_s);
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_TRUE(isSamePropertyList(fileValues(), QVariantMap{{u"unknown"_s, QVariantList{u"kept"_s}}, {u"both"_s, 3}}));
    EXPECT_TRUE(defaults.objectForKey(u"unknown"_s).isValid());
    EXPECT_TRUE(QFileInfo(m_path).isSymLink());
    EXPECT_FALSE(QFile::permissions(target) & (QFile::ReadGroup | QFile::ReadOther));
    ASSERT_TRUE(QFile::remove(target));
    defaults.setObject(1, u"mine"_s);
    EXPECT_TRUE(defaults.synchronize());
    EXPECT_EQ(fileValues().keys(), QStringList({u"both"_s, u"mine"_s, u"unknown"_s}));
}

TEST_F(UserDefaultsTest, MovesADamagedFileAside)
{
    const QByteArray good = writePropertyList(QVariantMap{{u"key"_s, 1}}, PropertyListFormat::Xml);
    const QByteArrayList damaged = {"", good.chopped(12), writePropertyList(QVariantList{1}, PropertyListFormat::Xml),
                                    "bplist00",
                                    // which XML cannot hold
                                    writePropertyList(QVariantMap{{u"key"_s, u"a\x01"_s}}, PropertyListFormat::Binary),
                                    good + QByteArray(PropertyListLimits().bytes, ' ')};
    QList<qint64> sizes, sizesAside;
    for (const QByteArray &bytes : damaged) {  // within one second, so that the names meet
        putFile(bytes);
        UserDefaults defaults(m_path);
        putFile("bplist01");  // while it is in use
        sizes.append({bytes.size(), 8});
        defaults.setObject(2, u"key"_s);
        EXPECT_TRUE(defaults.synchronize());
        EXPECT_EQ(fileValues(), QVariantMap({{u"key"_s, 2LL}}));
    }
    for (const QFileInfo &file : QDir(m_folder).entryInfoList({u"*.corrupt-*"_s}, QDir::Files))
        sizesAside.append(file.size());
    EXPECT_TRUE(std::ranges::is_permutation(sizesAside, sizes));
    EXPECT_EQ(defaultsWarnings.size(), sizes.size());
}

TEST_F(UserDefaultsTest, LosesNothingWhereItCannotSave)
{
    const std::tuple<const char *, QString, QFile::Permissions, rlim_t> obstacles[] = {
        {"unreadable file", m_path, {}, RLIM_INFINITY},
        {"read-only folder", m_folder, QFile::ReadOwner | QFile::ExeOwner, RLIM_INFINITY},
        {"full disk", m_path, QFile::ReadOwner | QFile::WriteOwner, 4096}};
    const auto obstruct = [](const QString &path, QFile::Permissions permissions, rlim_t size) {
        const rlimit limit = {size, RLIM_INFINITY};
        return QFile::setPermissions(path, permissions) && ::setrlimit(RLIMIT_FSIZE, &limit) == 0;
    };
    std::signal(SIGXFSZ, SIG_IGN);
    constexpr uid_t nobody = 65534;
    if (::geteuid() == 0) {  // whom no mode stops
        for (const QString &folder : {m_temporary.path(), m_folder})
            ASSERT_EQ(::chown(QFile::encodeName(folder).constData(), nobody, nobody), 0);
        ASSERT_EQ(::seteuid(nobody), 0);
    }
    const auto end = qScopeGuard([] { return ::getuid() == 0 && ::seteuid(0); });
    for (const auto &[name, path, permissions, size] : obstacles) {
        SCOPED_TRACE(name);
        putValues({{u"old"_s, 1}});
        const QByteArray before = fileBytes();
        defaultsWarnings.clear();
        ASSERT_TRUE(obstruct(path, permissions, size));
        UserDefaults defaults(m_path);
        defaults.setObject(QString(10'000, u'x'), u"large"_s);
        EXPECT_FALSE(defaults.synchronize());
        defaults.setObject(2, u"more"_s);
        EXPECT_FALSE(defaults.synchronize());
        EXPECT_EQ(defaultsWarnings.size(), 1);
        ASSERT_TRUE(obstruct(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner, RLIM_INFINITY));
        EXPECT_EQ(fileBytes(), before);
        EXPECT_TRUE(defaults.synchronize());
        EXPECT_EQ(fileValues().keys(), QStringList({u"large"_s, u"more"_s, u"old"_s}));
        EXPECT_EQ(QDir(m_folder).entryList(QDir::Files), QStringList(u"defaults.plist"_s));
    }
}

TEST_F(UserDefaultsTest, MergesTheSavesOfTwoProcesses)
{
    // A lock left by a process that was killed before it had written its id.
    ASSERT_TRUE(QFile(m_path + ".lock"_L1).open(QIODevice::WriteOnly));
    QProcess writers[2];
    for (QProcess &writer : writers) {
        const QString prefix = &writer == writers ? u"a"_s : u"b"_s;
        writer.start(QStringLiteral(KESTREL_TEST_HELPER), {u"store"_s, m_path, prefix, u"150"_s});
    }
    for (QProcess &writer : writers)
        EXPECT_TRUE(writer.waitForFinished(60'000) && writer.exitCode() == 0);
    EXPECT_EQ(fileValues().size(), 300);
}

TEST_F(UserDefaultsTest, WhatIsChangedBackIsNotWritten)
{
    putValues({{u"a"_s, 1}, {u"b"_s, 2}});
    UserDefaults defaults(m_path);
    const auto changeAndBack = [&] {
        defaults.removeObjectForKey(u"a"_s);
        defaults.setObject(1, u"a"_s);
        defaults.setObject(3, u"c"_s);
        defaults.removeObjectForKey(u"c"_s);
    };
    changeAndBack();
    ASSERT_TRUE(QFile::remove(m_path) && defaults.synchronize());
    EXPECT_FALSE(QFile::exists(m_path));
    changeAndBack();
    defaults.setObject(4, u"b"_s);
    putValues({{u"a"_s, 5}, {u"c"_s, 6}});  // by another process, which holds for what stayed the same here
    ASSERT_TRUE(defaults.synchronize());
    EXPECT_EQ(fileValues(), (QVariantMap{{u"a"_s, 5}, {u"b"_s, 4}, {u"c"_s, 6}}));
}

TEST_F(UserDefaultsTest, ACrashLeavesOneWholeValue)
{
    int values[2] = {};
    for (int round = 0; round < 100; ++round) {
        QProcess writer;
        writer.start(QStringLiteral(KESTREL_TEST_HELPER), {u"rewrite"_s, m_path, QString::number(1 + round % 4)});
        ASSERT_TRUE(writer.waitForReadyRead(20'000));
        QThread::usleep(round * 173 % 4987);
        writer.kill();
        ASSERT_TRUE(writer.waitForFinished() && writer.exitStatus() == QProcess::CrashExit);
        UserDefaults defaults(m_path);
        const QString value = defaults.stringForKey(u"large"_s);
        ASSERT_TRUE(value == QString(20'000, u'o') || value == QString(20'000, u'n')) << round;
        ++values[value.startsWith(u'n')];
        defaults.setObject(round, u"round"_s);
        ASSERT_TRUE(defaults.synchronize()) << round;
    }
    EXPECT_TRUE(values[0] > 0 && values[1] > 0) << values[0] << " old, " << values[1] << " new";
    EXPECT_EQ(QDir(m_folder).entryList({u"*.corrupt-*"_s, u"*.lock*"_s, u"*.saving-*"_s}, QDir::Files), QStringList());
    EXPECT_EQ(defaultsWarnings, QStringList());
}

TEST_F(UserDefaultsTest, ASaveRemovesWhatKilledOnesLeft)
{
    const QStringList left = {u"saving-fGh2Ij"_s, u"saving-aBcdEf"_s}, kept = {u"BackUp"_s, u"saving"_s};
    for (const QString &suffix : left + kept)
        ASSERT_TRUE(QFile(m_path + u'.' + suffix).open(QIODevice::WriteOnly));
    UserDefaults defaults(m_path);
    defaults.setObject(1, u"key"_s);
    EXPECT_TRUE(defaults.synchronize());
    QStringList found = QDir(m_folder).entryList({u"defaults.plist.*"_s}, QDir::Files);
    found.replaceInStrings(u"defaults.plist."_s, QString());
    EXPECT_TRUE(std::ranges::is_permutation(found, kept)) << qPrintable(found.join(u' '));
}

TEST_F(UserDefaultsTest, FoldersAreTheOwnersAloneWhateverTheMask)
{
    for (const mode_t mask : {0, 022, 0777}) {
        const QString folder = m_folder + u"/%1/below"_s.arg(mask);
        const mode_t before = ::umask(mask);
        UserDefaults defaults(folder + u"/defaults.plist"_s);
        defaults.setObject(1, u"key"_s);
        EXPECT_TRUE(defaults.synchronize());
        ::umask(before);
        struct stat status = {};
        for (const QString &path : {folder, QFileInfo(folder).path()}) {
            ASSERT_EQ(::stat(QFile::encodeName(path).constData(), &status), 0);
            EXPECT_EQ(status.st_mode & 0777, mode_t(0700)) << mask;
        }
        ASSERT_EQ(::stat(QFile::encodeName(folder + u"/defaults.plist"_s).constData(), &status), 0);
        EXPECT_EQ(status.st_mode & 0077, mode_t(0)) << mask;
    }
}

TEST_F(UserDefaultsTest, TheStandardOnesAreSavedHoweverTheProgramEnds)
{
    for (const QString &end : {u"change-early"_s, u"change-late"_s}) {
        QProcess process;
        process.start(u"env"_s, {"XDG_CONFIG_HOME="_L1 + m_temporary.path(), u"LC_ALL=en_GB.UTF-8"_s,
                                 u"LANGUAGE=zh_TW:de"_s, QStringLiteral(KESTREL_TEST_HELPER), end});
        EXPECT_TRUE(process.waitForFinished() && process.exitCode() == 0);
        QFile::rename(m_temporary.filePath(u"com.tarnwell.kestrel/defaults.plist"_s), m_path);
        EXPECT_EQ(fileValues().value(u"seen"_s), QVariantList({u"zh-Hant-TW"_s, u"de"_s})) << qPrintable(end);
        QFile::remove(m_path);
    }
}

}  // namespace
}  // namespace kestrel::foundation
