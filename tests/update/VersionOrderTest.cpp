#include "update/VersionOrder.h"

#include <gtest/gtest.h>

#include <QList>
#include <QString>

#include <random>

using namespace Qt::StringLiterals;

namespace kestrel {

TEST(VersionOrder, ComparesComponentsAsNumbers)
{
    const QString longNumber = u"1"_s + QString(100'000, u'0');
    const struct {
        QString server, local;
        int expected;
    } table[] = {
        {u"1.2.10"_s, u"1.2.9"_s, 1},
        {u"2.0"_s, u"2.0.0"_s, -1},
        {u"3.4.0"_s, u"3.4"_s, 1},
        {u"3.4"_s, u"3.4.-1"_s, 0},
        {u"3.4"_s, u"3.4.-2"_s, 1},
        {u"2.0b"_s, u"2.0"_s, 0},
        {u" +07"_s, u"7"_s, 0},
        {u"-0"_s, u"0"_s, 0},
        {u"- 5"_s, u"0"_s, 0},
        {u"1."_s, u"1.0"_s, 0},
        {u""_s, u"0"_s, 0},
        {u"a.b"_s, u"0.0"_s, 0},
        {u"18446744073709551617"_s, u"1"_s, 1},
        {longNumber, longNumber + u'0', -1},
        {u'-' + longNumber, u'-' + longNumber + u'0', 1},
        {u"1.٣"_s, u"1.0"_s, 0},
    };
    for (const auto &row : table) {
        EXPECT_EQ(compareVersions(row.server, row.local), row.expected)
            << qPrintable(row.server.left(30)) << " against " << qPrintable(row.local.left(30));
    }
}

// Against sequences of numbers that the versions were written from, in spellings that mean the same.
TEST(VersionOrder, IsATotalOrder)
{
    using Numbers = QList<qint64>;
    std::mt19937 random(34);
    const auto generated = [&random](Numbers &numbers) {
        constexpr qint64 candidates[] = {-2, 0, 1, 9, 10, 4'294'967'296, 9'223'372'036'854'775'807};
        const QString starts[] = {u""_s, u" "_s, u"+"_s};
        const QString ends[] = {u""_s, u"b"_s, u" 1"_s};
        QStringList components;
        for (quint32 count = 1 + random() % 4; count > 0; --count) {
            numbers += candidates[random() % std::size(candidates)];
            components += (numbers.last() < 0 ? u"-"_s : starts[random() % 3]) + QString(random() % 2 * 30, u'0') +
                          QString::number(qAbs(numbers.last())) + ends[random() % 3];
        }
        return components.join(u'.');
    };
    const auto expected = [](Numbers left, Numbers right) {
        const qsizetype count = qMax(left.size(), right.size());
        left.resize(count, -1);
        right.resize(count, -1);
        return left < right ? -1 : left == right ? 0 : 1;
    };
    for (int round = 0; round < 20'000; ++round) {
        Numbers numbers[3];
        const QString a = generated(numbers[0]), b = generated(numbers[1]), c = generated(numbers[2]);
        const int order = compareVersions(a, b);
        ASSERT_EQ(order, expected(numbers[0], numbers[1])) << qPrintable(a) << " against " << qPrintable(b);
        ASSERT_EQ(compareVersions(b, a), -order) << qPrintable(a) << " against " << qPrintable(b);
        ASSERT_FALSE(order <= 0 && compareVersions(b, c) <= 0 && compareVersions(a, c) > 0)
            << qPrintable(a) << ", " << qPrintable(b) << ", " << qPrintable(c);
    }
}

}  // namespace kestrel
