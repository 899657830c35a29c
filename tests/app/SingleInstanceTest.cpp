#include "app/SingleInstance.h"

#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <future>

using namespace Qt::StringLiterals;

namespace kestrel {

TEST(SingleInstanceTest, what_a_dead_one_left_is_no_hindrance)
{
    const QTemporaryDir folder;
    for (const QString &name : {u"instance.lock"_s, u"instance.socket"_s}) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("99999999"));
    }
    SingleInstance next({folder.path()});
    EXPECT_EQ(next.claim({}, 0), SingleInstance::Role::First);
}

TEST(SingleInstanceTest, one_means_one_without_a_usable_runtime_folder)
{
    const QTemporaryDir folder;
    QFile inTheWay(folder.filePath(u"runtime"_s));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    const QString link = folder.filePath(u"link"_s);
    ASSERT_TRUE(QFile::link(folder.filePath(u"elsewhere"_s), link));
    const QString usable = folder.filePath(u"state/below"_s);
    const QStringList folders = {QString(), inTheWay.fileName() + u"/kestrel"_s, link, usable};
    SingleInstance first(folders);
    ASSERT_EQ(first.claim({}), SingleInstance::Role::First);
    EXPECT_EQ(SingleInstance(folders).claim({}, 0), SingleInstance::Role::Unanswered);
    EXPECT_EQ(QFile::permissions(usable) & (QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther),
              QFile::Permissions());
}

TEST(SingleInstanceTest, one_whose_event_loop_does_not_run_is_told_apart)
{
    const QTemporaryDir folder;
    SingleInstance busy({folder.path()});
    ASSERT_EQ(busy.claim({}), SingleInstance::Role::First);
    busy.listen();
    EXPECT_EQ(SingleInstance({folder.path()}).claim({}, 100), SingleInstance::Role::Unanswered);
}

TEST(SingleInstanceTest, noise_on_the_socket_is_ignored)
{
    const QTemporaryDir folder;
    SingleInstance first({folder.path()});
    ASSERT_EQ(first.claim({}), SingleInstance::Role::First);
    first.listen();
    QSignalSpy startedAgain(&first, &SingleInstance::startedAgain);
    const QString path = folder.filePath(u"instance.socket"_s);
    EXPECT_EQ(QFile::permissions(path) & ~(QFile::ReadUser | QFile::WriteUser), QFile::ReadOwner | QFile::WriteOwner);
    for (const QByteArray &noise : {QByteArray(9 * 1024 * 1024, '\xff'), QByteArray("{\"files\": 12}\n")}) {
        QLocalSocket socket;
        socket.connectToServer(path);
        ASSERT_TRUE(socket.waitForConnected(1000));
        socket.write(noise);
        EXPECT_TRUE(test::waitUntil([&] { return socket.state() == QLocalSocket::UnconnectedState; }));
    }
    EXPECT_EQ(startedAgain.count(), 0);
}

TEST(SingleInstanceTest, a_second_start_hands_its_files_over_however_many)
{
    const QTemporaryDir folder;
    SingleInstance first({folder.path()});
    ASSERT_EQ(first.claim({}), SingleInstance::Role::First);
    first.listen();
    QSignalSpy startedAgain(&first, &SingleInstance::startedAgain);
    QStringList files = {u"/a b.mov"_s, u"/ü\n.mkv"_s};
    for (int i = 0; i < 20'000; ++i)
        files.append(u"/films/%1/a name of some length.mkv"_s.arg(i));
    QLocalSocket idle;  // one who says nothing keeps nobody waiting
    idle.connectToServer(folder.filePath(u"instance.socket"_s));
    auto second = std::async(std::launch::async, [&] { return SingleInstance({folder.path()}).claim(files, 60'000); });
    ASSERT_TRUE(test::waitUntil([&] { return startedAgain.count() == 1; }, 60'000));
    EXPECT_EQ(startedAgain.at(0).at(0).toStringList(), files);
    EXPECT_EQ(second.get(), SingleInstance::Role::Second);
}

}  // namespace kestrel
