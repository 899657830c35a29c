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

}  // namespace kestrel
