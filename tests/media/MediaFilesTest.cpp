#include "foundation/FileNames.h"
#include "media/MediaFiles.h"
#include "media/ToolPath.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using foundation::decodedFileName;
using foundation::encodedFileName;

/// Qt's temporary folders do not know how to remove files with odd names.
class OddFile {
public:
    explicit OddFile(QByteArray path) : m_path(std::move(path)) { make(m_path); }
    ~OddFile() { unlink(m_path.constData()); }
    OddFile(const OddFile &) = delete;
    OddFile &operator=(const OddFile &) = delete;

    static void make(const QByteArray &path);

private:
    QByteArray m_path;
};

void OddFile::make(const QByteArray &path)
{
    const int file = open(path.constData(), O_CREAT | O_WRONLY, 0600);
    ASSERT_GE(file, 0) << path.constData();
    EXPECT_EQ(write(file, "film", 4), 4);
    close(file);
}

TEST(MediaFilesTest, FoldersInNaturalOrder)
{
    const QTemporaryDir folder;
    const QByteArray root = folder.path().toUtf8();
    for (const char *below : {"/b", "/b/deep", "/.hidden"})
        ASSERT_TRUE(QDir().mkpath(QString::fromUtf8(root + below)));
    for (const char *name :
         {"/film 10.mp4", "/Film 2.mkv", "/notes.txt", "/mkv", "/b/deep/x.TS", "/b/1.gif", "/.hidden/a.mp4"})
        OddFile::make(root + name);
    const OddFile odd(root + "/caf\xe9.avi");
    ASSERT_TRUE(QFile::link(folder.path(), folder.filePath(u"b/round"_s)));
    ASSERT_TRUE(QDir().mkpath(folder.filePath(u"folder.mp4"_s)));
    QList<QByteArray> found;
    const MediaFiles files = mediaFiles({folder.path(), folder.filePath(u"notes.txt"_s)});
    EXPECT_FALSE(files.isPart);
    for (const QString &path : files.paths)
        found.append(encodedFileName(path).mid(root.size()));
    EXPECT_EQ(found, (QList<QByteArray>{"/b/1.gif", "/b/deep/x.TS", "/caf\xe9.avi", "/Film 2.mkv", "/film 10.mp4",
                                        "/notes.txt"}));
}

TEST(ToolPathTest, OddNamesGetALinkForAWhile)
{
    const QTemporaryDir folder;
    const QByteArray odd = folder.path().toUtf8() + "/caf\xe9 \xff.mkv";
    const OddFile oddFile(odd);
    EXPECT_EQ(ToolPath(folder.filePath(u"a.mp4"_s)).argument(), "file:"_L1 + folder.filePath(u"a.mp4"_s));
    QString link;
    {
        const ToolPath path(decodedFileName(odd));
        link = path.path();
        QFile file(link);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(file.readAll(), "film");
        EXPECT_TRUE(link.endsWith("source.mkv"_L1));
    }
    EXPECT_FALSE(QFileInfo(QFileInfo(link).path()).exists());
    EXPECT_EQ(foundation::fileFacts(decodedFileName(odd)).bytes, 4);
}

}  // namespace

}  // namespace kestrel
