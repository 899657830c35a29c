#include "Installed.h"
#include "Log.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace kestrel::tarnwell;

namespace {

QString contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

TEST(Log, LeavesPrivatePartsOut)
{
    const struct {
        const char *name, *text, *written;
    } rows[] = {{"home", "/home/ann/a.mov, and in /home/ann.", "~/a.mov, and in ~."},
                {"longer name", "/home/anna /home/ann-old /home/annö", "/home/anna /home/ann-old /home/annö"},
                {"deeper", "/mnt/home/ann/x file:///home/ann/x", "/mnt/home/~/x file://~/x"},
                {"volume", "/media/ann/a /run/user/ann2, /x/ann.mov ann", "/media/~/a /run/user/~, /x/ann.mov ann"},
                {"credentials", "https://ann:se@cret@host/a", "https://host/a"},
                {"at in query", "http://host?x=a@b ann@host", "http://host?x=a@b ann@host"},
                {"lines", "one\r\ntwo", "one\n    two"}};
    for (const auto &[name, text, written] : rows)
        EXPECT_EQ(withoutPrivateParts(QString::fromUtf8(text), u"/home/ann"_s, u"ann2"_s), QString::fromUtf8(written))
            << name;
}

TEST(Log, KeepsThisRunAndTheOneBefore)
{
    const QTemporaryDir folder;
    for (const QString &run : {u"first"_s, u"second"_s})
        Log(folder.path()).append(run);
    Log log(folder.path());
    log.append(u"third"_s);
    EXPECT_TRUE(contents(log.previousPath()).endsWith(u" second\n"_s));
    EXPECT_TRUE(contents(log.path()).endsWith(u" third\n"_s));  // on the disk while the log is open
    EXPECT_EQ((contents(log.previousPath()) + contents(log.path())).count(u'\n'), 2);
}

TEST(Log, DropsTheOldestLinesAtItsLimit)
{
    constexpr qint64 limit = 4096;
    const QTemporaryDir folder;
    Log log(folder.path(), limit);
    for (int i = 0; i < 500; ++i) {
        log.append(u"line %1."_s.arg(i));
        ASSERT_LE(QFileInfo(log.path()).size(), limit);
    }
    const QString text = contents(log.path());
    EXPECT_TRUE(text.startsWith(u"… older lines were left out\n"_s));
    EXPECT_TRUE(text.endsWith(u"line 499.\n"_s));
    EXPECT_GT(text.size(), limit / 3);
}

TEST(Log, WritesToStandardErrorWhereItHasNoFile)
{
    const QTemporaryDir folder;
    QFile inTheWay(folder.filePath(u"file"_s));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    testing::internal::CaptureStderr();
    Log log(inTheWay.fileName());
    log.append(u"still told"_s);
    log.discardPrevious();
    EXPECT_TRUE(QByteArray::fromStdString(testing::internal::GetCapturedStderr()).endsWith("] still told\n"));
}

TEST(Log, TakesFormatsAndMessagesOfQt)
{
    const QTemporaryDir folder;
    Log log(folder.path());
    const Installed<Log> installed(log);
    const QtMessageLog messages;
    qWarning("from Qt, at %s", qPrintable(QDir::homePath()));
    DNFootLog(u"%1 of %2"_s, u"50%2"_s, u"x"_s);
    EXPECT_EQ(contents(log.path()).count(u"from Qt, at ~\n"_s), 1);
    EXPECT_TRUE(contents(log.path()).endsWith(u"[main] 50%2 of x\n"_s));
}

}  // namespace
