#include "tarnwell/ui/StyledTextView.h"

#include "foundation/ui/StyledHtml.h"
#include "tarnwell/ui/LabelText.h"
#include "tests/support/TestDesktop.h"
#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

#include <algorithm>
#include <iostream>

using namespace Qt::StringLiterals;
using namespace kestrel;

namespace {

foundation::TextStyle atDepth(int indent)
{
    foundation::TextStyle style;
    style.indent = indent;
    return style;
}

TEST(StyledTextView, LinesKeepTheirIndentsAndListsHang)
{
    foundation::TextStyle bold;
    bold.bold = true;
    const struct {
        const char *name;
        foundation::StyledText text;
        QStringList lines;
        QList<int> indents;  ///< of the first line, in depths
        QList<int> hangs;    ///< of the lines that follow
    } rows[] = {
        {"empty", {}, {u""_s}, {0}, {0}},
        {"plain, with ends at the end", {{u"a\n\nb\n\n"_s, {}}}, {u"a"_s, u""_s, u"b"_s}, {0, 0, 0}, {0, 0, 0}},
        {"runs in one line", {{u"a"_s, {}}, {u"b"_s, bold}}, {u"ab"_s}, {0}, {0}},
        {"list",
         {{u"x\n•\tone\n"_s, atDepth(1)}, {u"2.\tin"_s, atDepth(2)}, {u" bold\n\nend"_s, bold}},
         {u"x"_s, u"•\tone"_s, u"2.\tin bold"_s, u""_s, u"end"_s},
         {1, 0, 1, 0, 0},
         {1, 1, 2, 0, 0}},
    };
    for (const auto &row : rows) {
        tarnwell::StyledTextView view;
        view.setStyledText(row.text);
        QStringList lines;
        QList<int> indents, hangs;
        for (QTextBlock block = view.document()->begin(); block.isValid(); block = block.next()) {
            lines += block.text();
            hangs += qRound(block.blockFormat().leftMargin() / 22);
            indents += qRound((block.blockFormat().leftMargin() + block.blockFormat().textIndent()) / 22);
        }
        EXPECT_EQ(lines, row.lines) << row.name;
        EXPECT_EQ(indents, row.indents) << row.name;
        EXPECT_EQ(hangs, row.hangs) << row.name;
    }
}

TEST(StyledTextView, LinksOpenOutsideAndNothingIsLoaded)
{
    const test::TestDesktop desktop;
    for (const QString &address :
         {u"https://k.example/?a=1&b=%20#c"_s, u"http://k.example/"_s, u"mailto:k@example.org"_s}) {
        foundation::TextStyle link;
        link.link = address;
        tarnwell::StyledTextView view;
        view.setStyledText({{u"<img src='file:///x.png'>"_s, link}});
        const QTextCharFormat format = view.document()->begin().textFormats().value(0).format;
        EXPECT_TRUE(format.fontUnderline() && format.toolTip().contains(u"k"_s));
        EXPECT_TRUE(view.toPlainText().startsWith("<img"_L1));
        EXPECT_FALSE(view.document()->resource(QTextDocument::ImageResource, QUrl(u"file:///x.png"_s)).isValid());
        view.resize(400, 100);
        view.show();
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.cursorRect().center() + QPoint(20, 0));
        ASSERT_FALSE(desktop.opened.isEmpty());
        EXPECT_EQ(desktop.opened.constLast().toString(QUrl::FullyEncoded), address);
        QTest::keyClick(&view, Qt::Key_Tab);
        QTest::keyClick(&view, Qt::Key_Return);
        EXPECT_EQ(desktop.opened.count(QUrl(address)), 2) << "by keyboard";
    }
}

TEST(StyledTextView, LooksAreShown)
{
    foundation::TextStyle struck, raised, lowered, plain;
    struck.strikeOut = true;
    struck.centered = true;
    raised.place = foundation::TextPlace::Raised;
    lowered.place = foundation::TextPlace::Lowered;
    tarnwell::StyledTextView view;
    view.setStyledText({{u"a"_s, struck}, {u"b"_s, raised}, {u"c\n"_s, lowered}, {u"d"_s, plain}});
    const QTextBlock block = view.document()->begin();
    const auto formats = block.textFormats();
    ASSERT_EQ(formats.size(), 3);
    EXPECT_TRUE(formats[0].format.fontStrikeOut() && !formats[1].format.fontStrikeOut());
    EXPECT_EQ(formats[1].format.verticalAlignment(), QTextCharFormat::AlignSuperScript);
    EXPECT_EQ(formats[2].format.verticalAlignment(), QTextCharFormat::AlignSubScript);
    EXPECT_EQ(block.blockFormat().alignment(), Qt::AlignHCenter);
    EXPECT_NE(block.next().blockFormat().alignment(), Qt::AlignHCenter);
}

TEST(StyledTextView, AnyTextIsThereInLittleTime)
{
    const auto letters = [](char32_t from, char32_t to) {
        QByteArray result;
        for (char32_t c = from; c < to; ++c)
            result += QString::fromUcs4(&c, 1).toUtf8();
        return result;
    };
    QByteArray looks;
    for (int i = 0; i < 500; ++i)
        looks += QByteArray("<font style='font-size:%1px;font-weight:%2'><i>a</i>b\xE4\xB8\x80</font>")
                     .replace("%1", QByteArray::number(9 + i % 31))
                     .replace("%2", i % 2 ? "bold" : "normal");
    const std::pair<const char *, QByteArray> rows[] = {
        {"Latin", "lorem ipsum "},
        {"marks", "a" + letters(0x300, 0x36F)},
        {"a mark each", "a\xCC\x81"},
        {"every script", letters(0x370, 0x2FFF)},
        {"historic scripts", letters(0x10000, 0x13000)},
        {"ideographs", letters(0x4E00, 0x9000)},
        {"syllables", letters(0xAC00, 0xD7A3)},
        {"two directions", "a\xD7\x90"},
        {"two kinds of digits", "1\xD9\xA1"},
        {"two scripts", "a\xD0\xB1"},
        {"looks", looks},
    };
    // The first text of a process pays for the fonts; sanitizers and builds for debugging for themselves.
    const auto timeFor = [](const QByteArray &html) {
        const double start = test::processorMs();
        tarnwell::StyledTextView view;
        view.resize(560, 200);
        view.setStyledText(foundation::styledTextFromHtml(html));
        view.grab();
        return test::processorMs() - start;
    };
    timeFor("a");
    const double plain = timeFor(QByteArray("lorem ipsum ").repeated(1700));
    for (const auto &[name, pattern] : rows) {
        const QByteArray html = pattern.repeated((1 << 20) / pattern.size());
        const double limit = std::max(50.0, 4 * plain);
        double time = timeFor(html);
        for (int again = 0; again < 4 && time >= limit; ++again)  // others share the processor's caches
            time = std::min(time, timeFor(html));
        std::cout << name << ": " << time << " ms\n";
        EXPECT_LT(time, limit) << name;
    }
}

TEST(LabelText, OrdinaryTextsStayAsTheyAre)
{
    const QString wrapped = QString(24, u'w') + QChar(0x200B) + u"w"_s;
    const std::pair<QString, QString> rows[] = {
        {u"Version 3.4.1 (beta)  & more <b>"_s, u"Version 3.4.1 (beta)  & more <b>"_s},
        {u"two\nlines\t"_s, u"two lines "_s},
        {QString(25, u'w'), wrapped},
        {QString(25, u'w') + u" "_s + QString(20, u'x'), wrapped + u" "_s + QString(14, u'x') + QChar(0x2026)},
        {u"a\u202Eb\u2067c"_s, u"abc"_s}};
    for (const auto &[text, shown] : rows)
        EXPECT_EQ(tarnwell::labelText(text, 40), shown);
}

}  // namespace
