#include "MediaSamples.h"

#include "media/SubtitleFile.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrel {

TEST(SubtitleFile, ItsNameTellsTheLanguage)
{
    const struct {
        QString path;
        const char *language;
        bool isForced = false;
    } cases[] = {
        {u"/a/film.fr.srt"_s, "fr"},       {u"/a/film.pt-BR.vtt"_s, "pt-BR"}, {u"/a/film.ger.forced.srt"_s, "de", true},
        {u"/a/The.It.sdh.de.srt"_s, "de"}, {u"/a/It.2010.srt"_s, ""},         {u"/a/de.srt"_s, ""},
        {u"/a/film.ts.srt"_s, ""},         {u"/a/film.de.sdh.srt"_s, "de"}};
    for (const auto &each : cases) {
        const TranscodePlan::ExternalSubtitle file = subtitleFile(each.path);
        EXPECT_EQ(file.language.toStdString(), each.language) << each.path.toStdString();
        EXPECT_EQ(file.isForced, each.isForced) << each.path.toStdString();
    }
}

TEST(SubtitleFile, ToolsReadItAsUtf8WithItsTimes)
{
    const struct {
        const char *ending;
        QByteArray bytes, readable;
    } cases[] = {{"srt", "O\xc3\xb9 \xc3\xa9tiez-vous\n", "O\xc3\xb9 \xc3\xa9tiez-vous\n"},
                 {"srt", "O\xf9 \xe9tiez-vous hier\x85\n", "O\xc3\xb9 \xc3\xa9tiez-vous hier\xe2\x80\xa6\n"},
                 {"srt", QByteArray("\xff\xfe\xf9\0\n\0", 6), "\xc3\xb9\n"},
                 {"vtt", "\xcf\xf0\xe8\xe2\xe5\xf2, \xea\xe0\xea \xe4\xe5\xeb\xe0?\n",
                  "\xd0\x9f\xd1\x80\xd0\xb8\xd0\xb2\xd0\xb5\xd1\x82, \xd0\xba\xd0\xb0\xd0\xba "
                  "\xd0\xb4\xd0\xb5\xd0\xbb\xd0\xb0?\n"},
                 {"sub", "{25}{50}1 and more\n", "{1}{1}25.000\n{25}{50}1 and more\n"},
                 {"sub", "{1}{1}23.976\n{25}{50}1\n", "{1}{1}23.976\n{25}{50}1\n"},
                 {"sub", "[INFORMATION]\n", "[INFORMATION]\n"}};
    const QTemporaryDir folder;
    for (const auto &each : cases) {
        const QString path = folder.filePath(u"a."_s + QLatin1StringView(each.ending));
        test::writeBytes(path, each.bytes);
        const auto readable = readableSubtitles(path, folder.filePath(u"copies"_s), 25);
        ASSERT_TRUE(readable) << readable.reason().english().toStdString();
        EXPECT_EQ(test::readBytes(*readable), each.readable) << each.bytes.constData();
        EXPECT_EQ(*readable == path, each.readable == each.bytes);
    }
    test::writeBytes(folder.filePath(u"a.idx"_s), "");
    EXPECT_EQ(subtitleFile(folder.filePath(u"a.sub"_s)).path, folder.filePath(u"a.idx"_s));
}

}  // namespace kestrel
