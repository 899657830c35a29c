#include "tarnwell/ui/StyledTextView.h"

#include "tarnwell/ui/LabelText.h"

#include <gtest/gtest.h>

#include <QTextBlock>
#include <QTextLayout>

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

TEST(StyledTextView, NothingIsFollowedOrLoaded)
{
    foundation::TextStyle link;
    link.link = u"https://k.example/"_s;
    tarnwell::StyledTextView view;
    view.setStyledText({{u"<img src='file:///x.png'>"_s, link}});
    const QTextCharFormat format = view.document()->begin().textFormats().value(0).format;
    EXPECT_TRUE(format.fontUnderline() && !format.isAnchor());
    EXPECT_TRUE(view.toPlainText().startsWith("<img"_L1));
    EXPECT_FALSE(view.document()->resource(QTextDocument::ImageResource, QUrl(u"file:///x.png"_s)).isValid());
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
