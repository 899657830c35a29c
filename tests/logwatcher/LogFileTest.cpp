#include "helpers/logwatcher/LogCopy.h"
#include "helpers/logwatcher/LogFile.h"
#include "helpers/logwatcher/LogRows.h"
#include "helpers/logwatcher/LogText.h"
#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTemporaryDir>

#include <atomic>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kestrel {

namespace {

class LogFileTest : public testing::Test {
protected:
    void write(const QByteArray &text, QIODevice::OpenMode mode = QIODevice::WriteOnly) const
    {
        QFile file(m_path);
        ASSERT_TRUE(file.open(mode) && file.write(text) == text.size());
    }

    QByteArray all(const LogFile &file) const { return file.read(0, file.size()); }

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(u"a.log"_s);
};

TEST_F(LogFileTest, FollowsWhateverBecomesOfTheFile)
{
    LogFile file(m_path);
    EXPECT_EQ(file.state(), LogFile::State::Missing);
    const struct {
        const char *name;
        std::function<void()> change;
        QByteArray text;
        int grown = 0, replaced = 0;
        bool isGone = false;
        LogFile::State state = LogFile::State::Readable;
    } rows[] = {
        {"appears", [this] { write("one\n"); }, "one\n", 0, 1},
        {"grows", [this] { write("two\n", QIODevice::Append); }, "one\ntwo\n", 1},
        {"written anew, longer", [this] { write("another text\n"); }, "another text\n", 0, 1},
        {"cut short", [this] { QFile::resize(m_path, 7); }, "another", 0, 1},
        {"deleted", [this] { QFile::remove(m_path); }, "another", 0, 0, true},
        {"a folder instead", [this] { QDir().mkdir(m_path); }, "another", 0, 0, false, LogFile::State::Unreadable},
        {"gone as well", [this] { QDir().rmdir(m_path); }, "another", 0, 0, true},
        {"comes back with the same begin", [this] { write("another one"); }, "another one", 0, 1},
        {"emptied", [this] { write(""); }, "", 0, 1},
    };
    QSignalSpy grown(&file, &LogFile::grown);
    QSignalSpy replaced(&file, &LogFile::replaced);
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        grown.clear();
        replaced.clear();
        row.change();
        EXPECT_TRUE(test::waitUntil([&] {
            return file.size() == row.text.size() && all(file) == row.text && file.isGone() == row.isGone &&
                   file.state() == row.state;
        }));
        EXPECT_EQ(grown.size(), row.grown);
        EXPECT_EQ(replaced.size(), row.replaced);
    }
}

TEST_F(LogFileTest, FolderAndPipeAreNoLogs)
{
    const QByteArray pipe = QFile::encodeName(m_path);
    ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0);
    std::atomic<bool> hadReader = false;
    std::thread writer([&] {
        const int descriptor = ::open(pipe.constData(), O_WRONLY);
        hadReader = true;
        ::close(descriptor);
    });
    std::this_thread::sleep_for(50ms);  // the writer waits by then
    for (const QString &path : {m_folder.path(), m_path}) {
        const LogFile file(path);
        EXPECT_EQ(file.state(), LogFile::State::Unreadable);
        EXPECT_FALSE(file.error().isEmpty());
    }
    std::this_thread::sleep_for(50ms);
    EXPECT_FALSE(hadReader);  // and lost it at once, which ends most programs
    const int reader = ::open(pipe.constData(), O_RDONLY | O_NONBLOCK);
    writer.join();
    ::close(reader);
}

TEST_F(LogFileTest, RowsAreTheSameInBothDirections)
{
    constexpr qsizetype block = LogLines::blockLength;
    const QByteArray longLine = QByteArray(3 * block, 'x');
    const struct {
        const char *name;
        QByteArray text;
        QByteArrayList rows;
    } cases[] = {
        {"empty", "", {}},
        {"line breaks of both kinds", "a\r\n\nb\rc\nd", {"a", "", "b\rc", "d"}},
        {"long line",
         "a\n" + longLine + "\nb",
         {"a", longLine.chopped(block + 2), longLine.left(block), longLine.left(2), "b"}},
        {"break on a block's end", longLine.left(block) + "\r\nb", {longLine.left(block), "b"}},
        {"character over a block's end", longLine.left(block - 1) + "ü" + "x", {longLine.left(block - 1) + "ü", "x"}},
        {"no text at all", QByteArray(2 * block, '\x80'), {QByteArray(block, '\x80'), QByteArray(block, '\x80')}},
    };
    for (const auto &[name, text, expected] : cases) {
        SCOPED_TRACE(name);
        write(text);
        const LogFile file(m_path);
        const LogLines lines(file);
        QByteArrayList forward;
        QByteArrayList backward;
        for (auto row = lines.rowAt(0); row; row = lines.rowAfter(*row)) {
            forward.append(file.read(row->begin, row->end - row->begin));
            EXPECT_EQ(lines.rowAt(row->next - 1), row);
        }
        for (auto row = lines.rowAt(text.size()); row; row = lines.rowBefore(*row))
            backward.prepend(file.read(row->begin, row->end - row->begin));
        EXPECT_EQ(forward, expected);
        EXPECT_EQ(backward, expected);

        ASSERT_TRUE(QFile::resize(m_path, 0));  // which the file does not know yet
        int count = 0;
        for (auto row = lines.rowAt(0); row && count < 3; row = lines.rowAfter(*row))
            ++count;
        EXPECT_LT(count, 3);
    }
}

TEST_F(LogFileTest, BytesThatAreNoTextStillHaveAPlace)
{
    const LogText text = LogText::of("a\xC3\xBC\xFF\xED\xA0\x80\xF0\x9F\x90\xA6\xE2\x82");
    const QChar bad = QChar::ReplacementCharacter;
    EXPECT_EQ(text.text, u"aü"_s + QString(4, bad) + u"\U0001F426"_s + QString(2, bad));
    EXPECT_EQ(text.offsets, (std::vector<quint32>{0, 1, 3, 4, 5, 6, 7, 7, 11, 12, 13}));
}

TEST_F(LogFileTest, CopyIsWholeOrNotThere)
{
    write(QByteArray(3'000'000, 'x'));
    const LogFile file(m_path);
    const QString destination = m_folder.filePath(u"copy.log"_s);
    const struct {
        const char *name;
        QString destination;
        qint64 size;
        bool isSaved;
    } rows[] = {
        {"onto itself", m_path, file.size(), false},
        {"more than there is", destination, file.size() + 1, false},
        {"folder that is missing", m_folder.filePath(u"none/copy.log"_s), file.size(), false},
        {"elsewhere", destination, file.size(), true},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        LogCopy copy;
        QSignalSpy finished(&copy, &LogCopy::finished);
        copy.start(file.bytes(), row.size, row.destination);
        ASSERT_TRUE(test::waitUntil([&] { return !finished.isEmpty(); }));
        EXPECT_EQ(finished.first().first().toString().isEmpty(), row.isSaved);
        EXPECT_EQ(QFileInfo(destination).size(), row.isSaved ? row.size : 0);
    }
}

}  // namespace

}  // namespace kestrel
