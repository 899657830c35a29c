#include "tarnwell/Folders.h"

#include "tests/support/TestDesktop.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace kestrel;
using namespace kestrel::tarnwell;

namespace {

TEST(Folders, WritableOnlyWhereAFileCanBeMade)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"file"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    test::TestDesktop desktop;
    EXPECT_TRUE(checkFolderWritable(folder.path()));
    EXPECT_TRUE(desktop.alerts.isEmpty());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList(u"file"_s));

    // The kernel's tables take no new file from anybody, whatever the permissions say.
    const QString refused[] = {QString(),       u"relative/none"_s, folder.filePath(u"none"_s),
                               file.fileName(), u"/proc"_s,         QString(300, u'x')};
    for (const QString &path : refused) {
        desktop.alerts.clear();
        EXPECT_FALSE(checkFolderWritable(path)) << path.toStdString();
        ASSERT_EQ(desktop.alerts.size(), 1);
        EXPECT_EQ(desktop.alerts[0].message, u"This folder cannot be written to."_s);
        EXPECT_TRUE(desktop.alerts[0].alternateButton.isNull());
    }
}

}  // namespace
