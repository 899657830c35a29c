#include "foundation/FileNames.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using foundation::decodedFileName;
using foundation::encodedFileName;

TEST(FileNamesTest, EveryNameComesBack)
{
    const QByteArray names[] = {"plain.mp4",     "\xc3\xa4\xf0\x9f\x8e\xac",
                                "caf\xe9.avi",   "\xff\xfe",
                                "\xed\xb2\x80",  "\xc0\xaf",
                                "\xe0\x80\xaf",  "\xf4\x90\x80\x80",
                                "a\xef\xbb\xbf", "a\xc3",
                                "\xf0\x9f\xe9",  "\x80\xf0\x9f\x8e\xac"};
    QSet<QString> texts;
    for (const QByteArray &name : names) {
        const QString text = decodedFileName(name);
        EXPECT_EQ(encodedFileName(text), name) << name.toHex().constData();
        EXPECT_EQ(foundation::isPlainFileName(text), QString::fromUtf8(name).toUtf8() == name)
            << name.toHex().constData();
        EXPECT_FALSE(foundation::readableFileName(text).toUtf8().isNull());
        const QByteArray json = QJsonDocument(QJsonObject{{u"path"_s, text}}).toJson();
        EXPECT_EQ(QJsonDocument::fromJson(json)[u"path"].toString(), text)
            << "as jobs are stored: " << json.constData();
        texts.insert(text);
    }
    EXPECT_EQ(texts.size(), qsizetype(std::size(names)));
    EXPECT_EQ(foundation::readableFileName(decodedFileName("caf\xe9.avi")), u"caf\uFFFD.avi");
}

TEST(FileNamesTest, WordsOfACommandLine)
{
    char program[] = "kestrel", file[] = "../b/./caf\xe9.avi";
    char *words[] = {program, file};
    const QStringList arguments = foundation::decodedArguments(2, words);
    ASSERT_EQ(arguments.size(), 2);
    EXPECT_EQ(encodedFileName(foundation::absoluteFileName(arguments[1])),
              QFile::encodeName(QDir::cleanPath(QDir::currentPath() + u"/../b"_s)) + "/caf\xe9.avi");
    EXPECT_EQ(foundation::absoluteFileName(u"/a/../b"_s), u"/b");
}

TEST(FileNamesTest, AddressesOfDroppedFiles)
{
    const std::pair<const char *, QByteArray> rows[] = {{"file:///a%20b.mp4", "/a b.mp4"},
                                                        {"file:///caf%E9.avi", "/caf\xe9.avi"},
                                                        {"file:///%C3%A4%23.avi", "/\xc3\xa4#.avi"},
                                                        {"file:///a%00b", ""},
                                                        {"https://host/a.mp4", ""}};
    for (const auto &[address, path] : rows)
        EXPECT_EQ(encodedFileName(foundation::pathOfUrl(QUrl::fromEncoded(address))), path) << address;
}

}  // namespace

}  // namespace kestrel
