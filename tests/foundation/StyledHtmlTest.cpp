#include "foundation/ui/StyledHtml.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFile>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

/// The runs as "text" or "text{looks}", line ends as "/".
std::string outline(const StyledText &text)
{
    QString result;
    for (const StyledRun &run : text) {
        const TextStyle &style = run.style;
        QStringList looks;
        for (const auto &[set, name] :
             {std::pair(style.bold, u"b"_s), {style.italic, u"i"_s}, {style.underline, u"u"_s}})
            looks += set ? QStringList(name) : QStringList();
        if (style.color)
            looks += QString::number(*style.color, 16);
        if (style.pixelSize > 0)
            looks += QString::number(style.pixelSize);
        if (style.indent > 0)
            looks += u">"_s.repeated(style.indent);
        if (!style.link.isNull())
            looks += style.link;
        result += run.text + (looks.isEmpty() ? QString() : u'{' + looks.join(u' ') + u'}');
    }
    return result.replace(u'\n', u'/').replace(u'\t', u'~').toStdString();
}

}  // namespace

TEST(StyledHtml, ReadsADocumentAsABrowserShowsIt)
{
    QFile file(QStringLiteral(KESTREL_TEST_DATA "/styled.html"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(
        outline(styledTextFromHtml(file.readAll())),
        "Spring & Sale//{b ff336699 20}Save 30\u00A0%{b} on every {ffff0000 15}licence{i ffff0000 15}, until May…//"
        "New://1.~Faster/2.~Smaller/{>}•~by ½//{>>}One Two/Three/See our page{https://example.com/?a=1&b=2} or not."
        "///Bye{u}");
}

TEST(StyledHtml, ReadsFragments)
{
    const struct {
        QByteArray html;
        const char *expected;
    } table[] = {
        {"  a \n b<br> c <br/><br>d<br></p>", "a b/c//d"},
        {"<p>a</p>\n<p></p><div></div><p>b</p><div>c</div>d", "a//b//c/d"},
        {"a <u>b</u> <u>c", "a b{u} c{u}"},
        {"<b>1<i>2</b>3</i>4", "1{b}2{b i}3{i}4"},
        {"<EM STYLE=' Color : RED ; color: nonsense'>a</EM><strong\nx=\">\">b", "a{i ffff0000}b{b}"},
        {"<font color=00ff00 size=9>a</font><font size=-9 color=transparent>b", "a{ff00ff00 39}b{9}"},
        {"<p style=color:#123456>a<p>b<ul><li style=color:lime>c<li>d</ul>e",
         "a//{ff123456}b//•~c/{ff00ff00 >}•~d//{>}e"},
        {"<li></li><ul><li></ul>a<ol><li><li><b>b", "a//2.~{>}b{b >}"},
        {"<a href=MailTo:a@example.com>a</a><a href='file:///etc'>b</a><a href='http://x y'>c",
         "a{MailTo:a@example.com}bc"},
        {"&lt;b&gt; &bogus; &amp &#65 &#x1F3AC; &#0;&#xD800;&#99999999999; &copy;",
         "<b> &bogus; &amp A 🎬 \uFFFD\uFFFD\uFFFD ©"},
        {"a<!-->b<!-- <i> --->c<? d ?></>e<1 </ x>f<b", "abce<1 f"},
        {"a<script>'</b>'<b></SCRIPT >b<title>c</title>d<style>e", "abd"},
        {QByteArray("\xEF\xBB\xBF"
                    "a\xFF\0b\x01&#x202E;\xE2\x80\xAE\xEF\xB7\x90"
                    "c&#xFFFC;",
                    31),
         "a\uFFFDbc"},
        {"<b>" + QByteArray("<span>").repeated(15) + "<i>a", "a{b}"},
        {QByteArray("<i>").repeated(20) + "a" + QByteArray("</i>").repeated(20) + "b", "a{i}b"},
        {"a <br>&#1;&#x1FFFE;", "a"},
    };
    for (const auto &row : table)
        EXPECT_EQ(outline(styledTextFromHtml(row.html)), row.expected) << row.html.toStdString();
}

TEST(StyledHtml, KeepsTextsThatWouldBeHardToLayOutShort)
{
    const auto longestWord = [](const QString &text) {
        qsizetype longest = 0;
        for (const QString &word : text.split(QChar(0x200B)))
            longest = std::max(longest, word.toUcs4().size());
        return longest;
    };
    const QString film = plainText(styledTextFromHtml(QByteArray("🎬").repeated(1000)));
    EXPECT_EQ(film.size(), 2004);
    EXPECT_EQ(longestWord(film), 200);
    const QString across = plainText(styledTextFromHtml(QByteArray("<b>aaa</b>aa").repeated(10'000)));
    EXPECT_TRUE(across.size() <= 20'000 && across.size() > 19'900) << across.size();
    EXPECT_EQ(longestWord(across), 200);
    const StyledText colorful = styledTextFromHtml(QByteArray("<b>a</b>b").repeated(5'000));
    EXPECT_TRUE(colorful.size() == 2'000 && plainText(colorful).size() > 10'000);
    EXPECT_EQ(plainText(styledTextFromHtml("a" + QByteArray("<br>").repeated(100'000) + "b")).size(), 20'000);
}

TEST(StyledHtml, TakesTimeInProportion)
{
    constexpr qsizetype size = 1024 * 1024;
    const QByteArray patterns[] = {
        "<b>",        "<",        "&",       "<!--", "<script>", "<script></script>", "<a href=",
        "<a href=\"", "<ol><li>", "<b a=b ", "\x01", "<p>",      "<a b b b b b b b>"};
    for (const QByteArray &pattern : patterns) {
        const QByteArray html = pattern.repeated(size / pattern.size());
        QElapsedTimer timer;
        timer.start();
        const StyledText text = styledTextFromHtml(html);
        EXPECT_LT(timer.elapsed(), 1000) << pattern.toStdString();
        EXPECT_LE(plainText(text).size(), 20'000);
    }
}

}  // namespace kestrel::foundation
