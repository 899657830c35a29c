#include "helpers/logwatcher/LogFile.h"
#include "helpers/logwatcher/LogFilter.h"
#include "helpers/logwatcher/LogSearch.h"
#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

class LogSearchTest : public testing::Test {
protected:
    void write(const QByteArray &text)
    {
        ASSERT_TRUE(m_disk.open() && m_disk.seek(m_disk.size()) && m_disk.write(text) == text.size());
        m_disk.close();
    }

    QByteArrayList rowsOf(const LogFile &file, const LogFilter &filter) const
    {
        QByteArrayList rows;
        for (auto row = filter.rowAtPosition(0); row; row = filter.rowAfter(*row))
            rows.append(file.read(row->begin, row->end - row->begin));
        return rows;
    }

    QTemporaryFile m_disk;
};

TEST_F(LogSearchTest, FindsAcrossBlocksAndAroundTheEnd)
{
    // The second one lies across the border of the blocks in which a forward search reads.
    const qint64 first = 10;
    const qint64 second = 1024 * 1024 - 3;
    QByteArray text(3 * 1024 * 1024, '.');
    for (const qint64 place : {first, second})
        text.replace(place, 7,
                     "N\xC3\x84"
                     "edle");
    write(text);
    constexpr auto forward = LogSearch::Direction::Forward;
    constexpr auto backward = LogSearch::Direction::Backward;
    constexpr qint64 none = -1;
    const struct {
        const char *name;
        QString text;
        qint64 from;
        LogSearch::Direction direction;
        qint64 place;
        bool hasWrapped = false;
    } rows[] = {
        {"any case", u"näEDLE"_s, 0, forward, first},
        {"at its begin", u"nädle"_s, 0, forward, none},
        {"plain letters", u"EDLE"_s, first + 4, forward, second + 3},
        {"across blocks", u"nÄedle"_s, first + 1, forward, second},
        {"around the end", u"edle"_s, second + 4, forward, first + 3, true},
        {"back", u"näedle"_s, text.size(), backward, second},
        {"back from itself", u"näedle"_s, second, backward, first},
        {"back around the begin", u"näedle"_s, first, backward, second, true},
    };
    const LogFile file(m_disk.fileName());
    const LogLines lines(file);
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        LogSearch search(file);
        QSignalSpy found(&search, &LogSearch::found);
        QSignalSpy notFound(&search, &LogSearch::notFound);
        search.start(row.text, row.from, row.direction, lines);
        ASSERT_TRUE(test::waitUntil([&] { return !search.isRunning(); }));
        EXPECT_EQ(notFound.size(), row.place == none ? 1 : 0);
        ASSERT_EQ(found.size(), row.place == none ? 0 : 1);
        if (row.place != none) {
            EXPECT_EQ(found[0][0].toLongLong(), row.place);
            EXPECT_EQ(found[0][2].toBool(), row.hasWrapped);
        }
    }
}

TEST_F(LogSearchTest, FilterKeepsTheNewestRowsAndGainsMore)
{
    write("key 1\nno\nKEY 2 key\n" + QByteArray(300'000, '.') + "\nkey 3\nhalf a k");
    LogFile file(m_disk.fileName());
    LogFilter filter(file, 3);
    QObject::connect(&file, &LogFile::grown, &filter, &LogFilter::fileGrown);
    filter.setText(u"key"_s);
    ASSERT_TRUE(test::waitUntil([&] { return !filter.isRunning(); }));
    EXPECT_EQ(rowsOf(file, filter), (QByteArrayList{"key 1", "KEY 2 key", "key 3"}));
    EXPECT_FALSE(filter.isCapped());
    EXPECT_TRUE(filter.isShown(0));
    EXPECT_FALSE(filter.isShown(7));
    LogSearch search(file);
    const QSignalSpy notFound(&search, &LogSearch::notFound);
    search.start(u"no"_s, 0, LogSearch::Direction::Forward, filter);
    EXPECT_TRUE(test::waitUntil([&] { return notFound.size() == 1; })) << "it is hidden";

    write("ey\nno\nkey 5\n");
    file.check();
    ASSERT_TRUE(test::waitUntil([&] { return !filter.isRunning(); }));
    EXPECT_EQ(rowsOf(file, filter), (QByteArrayList{"key 3", "half a key", "key 5"}));
    EXPECT_TRUE(filter.isCapped());
    filter.setText(u"key"_s);
    ASSERT_TRUE(test::waitUntil([&] { return !filter.isRunning(); }));
    EXPECT_EQ(rowsOf(file, filter), (QByteArrayList{"key 3", "half a key", "key 5"}));
    EXPECT_EQ(filter.rowBefore(*filter.rowAt(file.size())), filter.rowAtPosition(1));

    QSignalSpy changed(&filter, &LogFilter::changed);
    write("no\n");
    file.check();
    ASSERT_TRUE(test::waitUntil([&] { return !filter.isRunning(); }));
    EXPECT_EQ(changed.size(), 0);
    write("key");
    file.check();
    ASSERT_TRUE(test::waitUntil([&] { return !filter.isRunning(); }));
    write(" goes on");
    file.check();
    EXPECT_EQ(rowsOf(file, filter).last(), "key goes on");

    filter.setText(u"no"_s);
    filter.stop();
    write("\nno");
    file.check();
    ASSERT_TRUE(test::waitUntil([&] { return !filter.isRunning(); }));
    EXPECT_EQ(rowsOf(file, filter), QByteArrayList{"no"});
}

}  // namespace

}  // namespace kestrel
