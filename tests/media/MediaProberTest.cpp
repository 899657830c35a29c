#include "MediaSamples.h"

#include "media/MediaProber.h"
#include "tests/support/TestEnvironment.h"

#include <QDir>
#include <QHash>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using test::makeSample;
using test::makeScript;

/// What is told of each of the files, by its number in the list: a summary or the reason.
QHash<qint64, QString> probedFiles(MediaProber &prober, const QString &tool, const QStringList &paths)
{
    QHash<qint64, QString> answers;
    const auto connection = QObject::connect(
        &prober, &MediaProber::probed, &prober, [&answers](qint64 id, const MediaProber::Answer &answer) {
            EXPECT_FALSE(answers.contains(id)) << id;
            answers.insert(id, answer ? answer->summary() : answer.reason().english());
        });
    for (qsizetype index = 0; index < paths.size(); ++index)
        prober.probe(index, tool, paths[index]);
    EXPECT_TRUE(answers.isEmpty()) << "later than it returns";
    EXPECT_TRUE(test::waitUntil([&] { return answers.size() == paths.size(); }, 60'000));
    QObject::disconnect(connection);
    return answers;
}

TEST(MediaProberTest, TellsWhatFilesHold)
{
    const QTemporaryDir folder;
    const auto sample = [&folder](const QString &name, const QStringList &options) {
        EXPECT_TRUE(makeSample(folder.filePath(name), options)) << name.toStdString();
        return folder.filePath(name);
    };
    const QString film =
        sample(u"-i a%20b#.mp4"_s, {u"-c:v"_s, u"libx264"_s, u"-preset"_s, u"ultrafast"_s, u"-c:a"_s, u"aac"_s});
    const QString text = folder.filePath(u"letter.txt"_s);
    test::writeBytes(text, QByteArray("Dear reader,\n").repeated(100));
    test::writeBytes(folder.filePath(u"cut.mp4"_s), test::readBytes(film).left(5000));
    ASSERT_EQ(mkfifo(folder.filePath(u"pipe.mp4"_s).toUtf8().constData(), 0600), 0);
    const std::pair<QString, const char *> rows[] = {
        {film, "MPEG-4 · H.264 · AAC"},
        {sample(u"moving.gif"_s, {u"-an"_s}), "GIF"},
        {sample(u"one.png"_s, {u"-an"_s, u"-frames:v"_s, u"1"_s}), "This is no video or sound file."},
        {sample(u"a.mp3"_s, {u"-vn"_s}), "MP3"},
        {text, "This is no video or sound file."},
        {folder.filePath(u"cut.mp4"_s), "The file is damaged or incomplete."},
        {folder.path(), "This is no video or sound file."},
        {folder.filePath(u"pipe.mp4"_s), "This is no video or sound file."},
        {folder.filePath(u"none"_s), "There is no such file."},
        {u"https://host/film.mp4"_s, "There is no such file."},
    };
    QStringList paths;
    for (const auto &[path, answer] : rows)
        paths.append(path);
    MediaProber prober;
    const auto answers = probedFiles(prober, test::toolPath(u"ffprobe"_s), paths);
    for (qsizetype index = 0; index < paths.size(); ++index)
        EXPECT_EQ(answers.value(index), QString::fromUtf8(rows[index].second)) << paths[index].toStdString();
}

TEST(MediaProberTest, ToolsThatDoNotAnswer)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"a.mp4"_s);
    test::writeBytes(file, "film");
    const std::pair<QString, const char *> rows[] = {
        {folder.filePath(u"none"_s), "The tool that reads media files is missing."},
        {makeScript(folder.filePath(u"hang"_s), "exec sleep 60"), "This file could not be read."},
        {makeScript(folder.filePath(u"bare"_s), R"(echo '{"format": {"format_name": "avi"}}')"),
         "This file is damaged, or it holds neither video nor sound."}};
    MediaProber prober(std::chrono::seconds(1));
    for (const auto &[tool, beginning] : rows) {
        const QString answer = probedFiles(prober, tool, {file}).value(0);
        EXPECT_TRUE(answer.startsWith(QLatin1StringView(beginning)))
            << tool.toStdString() << ": " << answer.toStdString();
    }
}

TEST(MediaProberTest, TwoAtATimeAndForgottenOnesNever)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"a.mp4"_s);
    test::writeBytes(file, "film");
    // Each says that it runs and waits for leave to end.
    const QString tool = makeScript(folder.filePath(u"tool"_s), R"sh(cd "${0%/*}"
        touch running.$$; until [ -e go ]; do sleep 0.02; done; echo '{"format": {"format_name": "avi"}}')sh");
    QList<qint64> ended;
    MediaProber prober;
    QObject::connect(&prober, &MediaProber::probed, &prober, [&ended](qint64 id) { ended.append(id); });
    for (qint64 id = 0; id < 6; ++id)
        prober.probe(id, tool, file);
    const auto running = [&folder] { return QDir(folder.path()).entryList({u"running.*"_s}).size(); };
    EXPECT_TRUE(test::waitUntil([&] { return running() == 2; }));
    prober.forget({0, 3, 4});
    test::writeBytes(folder.filePath(u"go"_s), "");
    EXPECT_TRUE(test::waitUntil([&] { return ended.size() == 4; }));
    std::sort(ended.begin(), ended.end());
    EXPECT_EQ(ended, (QList<qint64>{0, 1, 2, 5})) << "0 had begun";
    EXPECT_EQ(running(), 4);
}

}  // namespace

}  // namespace kestrel
