#include "foundation/ui/StyledHtml.h"

#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

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
        for (const auto &[set, name] : {std::pair(style.bold, u"b"_s),
                                        {style.italic, u"i"_s},
                                        {style.underline, u"u"_s},
                                        {style.strikeOut, u"s"_s},
                                        {style.place == TextPlace::Raised, u"^"_s},
                                        {style.place == TextPlace::Lowered, u"_"_s},
                                        {style.centered, u"c"_s}})
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
        {"<del>90</del> <s>8<strike>0</s></strike> <ins>7</ins> H<sub>2</sub>O m<sup>2</sup>",
         "90{s} 80{s} 7{u} H2{_}O m2{^}"},
        {"<small>a<big>b</big></small><big><big>c</big>d</big><font size=7><big>e", "a{11}b{13}c{19}d{16}e{39}"},
        {"a<center>b<br>c</center>d<p style='text-align:center'>e", "a/b/c/{c}d//e{c}"},
        {"<table style=color:red><tr><td style='font-weight:bold'>a<td>b<tr><th>c<table><td style=color:lime>d</table>e"
         "</table><blockquote style=font-style:italic>f<hr style=color:red>g</blockquote>h",
         "a{b ffff0000} b/c/{ffff0000}d/{ff00ff00}e//{ffff0000}f/g//{i}h"},
        {"<dl><dt style=font-weight:bold>a<dd>b<dt><dl style=font-style:italic><dd>c</dl>d</dl>e",
         "a/{b}b//c//{i}d//e"},
        {"<b style='font-weight:normal'>a</b><i style='font-style: normal'>b</i><u style=text-decoration:none>c</u>"
         "<span style='FONT-WEIGHT:700;font-style:oblique;text-decoration: Underline line-through red'>d</span>",
         "abcd{b i u s}"},
        {"<s><span style='text-decoration:none'>a</span></s><span style='font-weight:lighter;font-weight:bogus'>b",
         "a{s}b"},
        {"<p style='font-size:20px'>a<span style='font-size:50%'>b</span><span style='font-size:1.5em'>c</span>"
         "<span style='font-size:smaller'>d</span><span style='font-size:900pt'>e</span>"
         "<span style='font-size:-3px'>f</span><span style='font-size:x-small !important'>g</span>"
         "<span style='font-size:12pt'>h</span>",
         "a{20}b{10}c{30}d{17}e{39}f{20}g{10}h{16}"},
        {"&agrave;&Eacute;&ntilde;&yuml;&nbsp;&Alpha;&omega;&thetasym;&hearts;&frasl;&permil;&eacut;&Agrav;e",
         "\u00E0\u00C9\u00F1\u00FF\u00A0\u0391\u03C9\u03D1\u2665\u2044\u2030&eacut;&Agrav;e"},
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
    const auto timeFor = [](const QByteArray &pattern, qsizetype size) {
        const QByteArray html = pattern.repeated(size / pattern.size());
        double least = 1e9;
        for (int run = 0; run < 3; ++run) {
            const double start = test::processorMs();
            EXPECT_LE(plainText(styledTextFromHtml(html)).size(), 20'000);
            least = std::min(least, test::processorMs() - start);
        }
        return least;
    };
    const QByteArray patterns[] = {"<b>",
                                   "<",
                                   "&",
                                   "<!--",
                                   "<script>",
                                   "<script></script>",
                                   "<a href=",
                                   "<a href=\"",
                                   "<ol><li>",
                                   "<b a=b ",
                                   "\x01",
                                   "<p>",
                                   "<a b b b b b b b>",
                                   "&bogusly;\x01",
                                   "<b style='a:;;'>"};
    for (const QByteArray &pattern : patterns) {
        constexpr qsizetype size = 64 * 1024;
        EXPECT_LT(timeFor(pattern, 16 * size), 16 * 4 * (timeFor(pattern, size) + 0.2)) << pattern.toStdString();
    }
}

}  // namespace kestrel::foundation
