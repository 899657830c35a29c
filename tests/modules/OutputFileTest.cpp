#include "ModuleSettings.h"
#include "modules/marlin/OutputFile.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include <thread>

using namespace Qt::StringLiterals;
using kestrel::marlin::OutputFile;

namespace kestrel {

namespace {

QByteArray readText(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
}

}  // namespace

TEST(OutputFileTest, TakesTheFirstFreeNameAndLeavesNoPart)
{
    test::ModuleSettings settings;
    test::writeFile(settings.folder() + "/clip.mp4"_L1, "mine");
    QFile::link(u"nowhere"_s, settings.folder() + "/clip (1).mp4"_L1);
    OutputFile first(settings.folder(), u"clip"_s, u"mp4"_s);
    OutputFile second(settings.folder(), u"clip"_s, u"mp4"_s);
    {
        const OutputFile dropped(settings.folder(), u"clip"_s, u"mp4"_s);
        EXPECT_TRUE(QFile::exists(dropped.partPath()));
    }
    ASSERT_NE(first.partPath(), second.partPath());
    test::writeFile(first.partPath(), "first");
    test::writeFile(second.partPath(), "second");
    EXPECT_EQ(readText(second.publish()), "second");
    EXPECT_EQ(readText(first.publish()), "first");
    EXPECT_EQ(readText(settings.folder() + "/clip.mp4"_L1), "mine");
    EXPECT_EQ(settings.outputs(),
              QStringList({u"clip (1).mp4"_s, u"clip (2).mp4"_s, u"clip (3).mp4"_s, u"clip.mp4"_s}));
}

TEST(OutputFileTest, OnlyStalePartsAreRemoved)
{
    test::ModuleSettings settings;
    const QDir folder(settings.folder());
    const QStringList others{u".d.kestrel-part"_s, u".folder.kestrel-part.mp4"_s, u".link.kestrel-part.mp4"_s,
                             u"c.kestrel-part.mp4"_s};
    for (const QString &name : {u".a.kestrel-part.mp4"_s, u".b (1).kestrel-part.webm"_s, others[0], others[3]})
        test::writeFile(folder.filePath(name), "x");
    folder.mkdir(others[1]);
    QFile::link(others[3], folder.filePath(others[2]));
    OutputFile::removeStaleParts(settings.folder());
    EXPECT_EQ(settings.outputs(), others);
}

TEST(OutputFileTest, LongNamesAreCutBetweenCharacters)
{
    const QString names[] = {QString(251, u'a'), QString(200, u'ü'), u"🎬"_s.repeated(100)};
    for (const QString &name : names) {
        test::ModuleSettings settings;
        for (int copy = 0; copy < 2; ++copy) {
            OutputFile file(settings.folder(), name, u"webm"_s);
            ASSERT_TRUE(file.isValid()) << file.reason().toStdString();
            EXPECT_FALSE(file.publish().isNull());
        }
        for (const QString &output : settings.outputs()) {
            EXPECT_TRUE(output.startsWith(name.left(96)) && output.endsWith(".webm"_L1)) << output.toStdString();
            EXPECT_TRUE(output.isValidUtf16()) << output.toStdString();
        }
        EXPECT_EQ(settings.outputs().size(), 2);
    }
}

TEST(OutputFileTest, NothingIsLostWhereManyWantOneName)
{
    test::ModuleSettings settings;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 8; ++thread) {
        threads.emplace_back([&, thread] {
            for (int round = 0; round < 25; ++round) {
                const QByteArray text = QByteArray::number(thread * 100 + round);
                OutputFile file(settings.folder(), u"same"_s, u"mp3"_s);
                test::writeFile(file.partPath(), text);
                EXPECT_EQ(readText(file.publish()), text);
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(settings.outputs().size(), 200);
}

TEST(OutputFileTest, AFolderThatCannotBeUsedSaysWhy)
{
    test::ModuleSettings settings;
    const OutputFile inNone(settings.path(u"missing"_s), u"clip"_s, u"mp4"_s);
    EXPECT_EQ(inNone.reason(), u"The output directory does not exist. Please check the setting.");
    const OutputFile forbidden(u"/sys"_s, u"clip"_s, u"mp4"_s);  // where nobody may make a file
    EXPECT_TRUE(!inNone.isValid() && !forbidden.isValid());
    EXPECT_TRUE(forbidden.reason().contains("not allowed"_L1) || forbidden.reason().contains("read-only"_L1))
        << forbidden.reason().toStdString();
}

}  // namespace kestrel
