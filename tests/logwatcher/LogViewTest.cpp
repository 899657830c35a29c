#include "helpers/logwatcher/LogFile.h"
#include "helpers/logwatcher/ui/LogView.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QScrollBar>
#include <QTemporaryFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

TEST(LogViewTest, FollowsScrollsAndSelects)
{
    QTemporaryFile disk;
    ASSERT_TRUE(disk.open());
    for (int i = 0; i < 1000; ++i)
        disk.write("row " + QByteArray::number(i) + "\r\n");
    disk.flush();
    LogFile file(disk.fileName());
    const LogLines lines(file);
    LogView view(file, lines);
    view.resize(400, 300);
    view.show();
    QAccessibleTextInterface *text = QAccessible::queryAccessibleInterface(&view)->textInterface();
    const auto shown = [text] { return text->text(0, text->characterCount()).split(u'\n'); };
    EXPECT_EQ(shown().last(), u"row 999"_s);

    disk.write("more\n");
    disk.flush();
    file.check();
    view.refresh();
    EXPECT_EQ(shown().last(), u"more"_s);

    const struct {
        const char *name;
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        QString first;  ///< row on screen
        bool isFollowing;
        QString selected;
    } rows[] = {
        {"begin", Qt::Key_Home, {}, u"row 0"_s, false, {}},
        {"a row down", Qt::Key_Down, {}, u"row 1"_s, false, {}},
        {"select a row", Qt::Key_Down, Qt::ShiftModifier, u"row 1"_s, false, u"row 1\n"_s},
        {"one character more", Qt::Key_Right, Qt::ShiftModifier, u"row 1"_s, false, u"row 1\nr"_s},
        {"back over the line break", Qt::Key_Left, Qt::ShiftModifier, u"row 1"_s, false, u"row 1\n"_s},
        {"and again", Qt::Key_Left, Qt::ShiftModifier, u"row 1"_s, false, u"row 1"_s},
        {"a row up", Qt::Key_Up, {}, u"row 0"_s, false, u"row 1"_s},
        {"end", Qt::Key_End, {}, {}, true, u"row 1"_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        QTest::keyClick(&view, row.key, row.modifiers);
        EXPECT_EQ(shown().first(), row.first.isNull() ? shown().first() : row.first);
        EXPECT_EQ(view.isFollowing(), row.isFollowing);
        QGuiApplication::clipboard()->clear();
        view.copy();
        EXPECT_EQ(QGuiApplication::clipboard()->text(), row.selected);
    }
    EXPECT_EQ(shown().last(), u"more"_s);
    view.verticalScrollBar()->setValue(view.verticalScrollBar()->maximum() / 2);
    EXPECT_FALSE(view.isFollowing());
    EXPECT_NEAR(shown().first().mid(4).toInt(), 500, 20);

    // Another text with all its rows at the places of the former.
    ASSERT_TRUE(disk.seek(0));
    QByteArray content = disk.readAll();
    ASSERT_TRUE(disk.seek(0) && disk.write(content.replace("row", "new")) && disk.flush());
    const QStringList former = shown();
    file.check();
    view.refresh();
    EXPECT_EQ(shown(), QStringList(former).replaceInStrings(u"row"_s, u"new"_s));
}

}  // namespace

}  // namespace kestrel
