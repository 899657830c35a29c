#include "support/XMLReader2.h"
#include "support/XMLReaderNavigation2.h"

#include <QStringEncoder>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace kestrel;

namespace {

/// 'text', {key:value …} with sorted keys, [element …], or nothing.
QString dumped(const XMLValue &value)
{
    if (const auto *text = std::get_if<QString>(&value))
        return u'\'' + *text + u'\'';
    QStringList parts;
    if (const auto *array = std::get_if<QList<XMLDictionary>>(&value)) {
        for (const XMLDictionary &element : *array)
            parts.append(dumped(element));
        return u'[' + parts.join(u' ') + u']';
    }
    const auto *dictionary = std::get_if<XMLDictionary>(&value);
    if (!dictionary)
        return {};
    for (const QString &key : dictionary->allKeys())
        parts.append(key + u':' + dumped(dictionary->objectForKey(key)));
    EXPECT_EQ(dictionary->isEmpty(), parts.isEmpty());
    parts.sort();
    return u'{' + parts.join(u' ') + u'}';
}

QString dictionaryOf(const QByteArray &document)
{
    const auto result = XMLReader2::dictionaryForXMLData(document, foundation::XmlError());
    return result ? dumped(*result) : u"nil"_s;
}

QByteArray encoded(QStringConverter::Encoding encoding, bool withMark, const QString &text)
{
    QStringEncoder encoder(encoding, withMark ? QStringConverter::Flag::WriteBom : QStringConverter::Flag::Default);
    return encoder(text);
}

QByteArray nested(int depth, const QByteArray &text = {})
{
    return QByteArray("<a>").repeated(depth) + text + QByteArray("</a>").repeated(depth);
}

QByteArray laughs()
{
    QByteArray text = R"(<!DOCTYPE a [<!ENTITY e0 "ha ha ha ha ha ha ha ha ">)";
    for (int i = 1; i < 10; ++i)
        text += "<!ENTITY e" + QByteArray::number(i) + " \"" + ("&e" + QByteArray::number(i - 1) + ';').repeated(10) +
                "\">";
    return text + "]><a>&e9;</a>";
}

TEST(XMLReader2, DocumentsBecomeDictionaries)
{
    const QString accents = u"<?xml version='1.0' encoding='%1'?><a é='ü'>ß</a>"_s;
    const QString accentsRead = u"{a:{text:'ß' é:'ü'}}"_s;
    const struct {
        const char *name;
        QByteArray document;
        QString dictionary;
    } rows[] = {
        {"root alone", "<a/>", u"{a:{}}"_s},
        {"attributes", "<a b='1' c=' 2 '/>", u"{a:{b:'1' c:' 2 '}}"_s},
        {"three children", "<a><b>1</b><c/><b>2</b><b/></a>", u"{a:{b:[{text:'1'} {text:'2'} {}] c:{}}}"_s},
        {"text replaces attribute", "<a text='1'>2</a>", u"{a:{text:'2'}}"_s},
        {"attribute named text", "<a text='1'/>", u"{a:{text:'1'}}"_s},
        {"child replaces attribute", "<a b='1'><b/></a>", u"{a:{b:{}}}"_s},
        {"children replace attribute", "<a b='1'><b/><b c='2'/></a>", u"{a:{b:[{} {c:'2'}]}}"_s},
        {"child named text", "<a text='1'><text>2</text></a>", u"{a:{text:{text:'2'}}}"_s},
        {"text replaces children", "<a><text/><text/> </a>", u"{a:{text:''}}"_s},
        {"indentation", "<a>\n  <b>\n 1\t2 \n</b>\n  <c/>\n</a>", u"{a:{b:{text:'1\t2'} c:{text:''} text:''}}"_s},
        {"mixed content", "<a>1<b>2</b>3<c/>4</a>", u"{a:{b:{text:'12'} c:{text:'3'} text:'4'}}"_s},
        {"text before an empty tag", "<a> x <b/></a>", u"{a:{b:{text:'x'}}}"_s},
        {"other white space at one end", u"<a>x \u3000</a>"_s.toUtf8(), u"{a:{text:'x'}}"_s},
        {"other white space", u"<a>\u3000\u00A0\u2028 、x \u0085</a>"_s.toUtf8(), u"{a:{text:'、x'}}"_s},
        {"CDATA", "<a><![CDATA[ <b>&amp; ]]>]</a>", u"{a:{text:'<b>&amp; ]'}}"_s},
        {"entities", R"(<!DOCTYPE a [<!ENTITY e "x<b>y</b>">]><a c="&lt;&#x1F426;">&amp;&e;&#32;</a>)",
         u"{a:{b:{text:'&xy'} c:'<🐦' text:''}}"_s},
        {"comments, instructions", "<?i?><!-- c --><a>1<!-- b -->2<?i j?></a><!-- -->", u"{a:{text:'12'}}"_s},
        {"prefixes", "<p:a xmlns:p='u'><p:b/><b/></p:a>", u"{p:a:{b:{} p:b:{} xmlns:p:'u'}}"_s},
        {"UTF-8", accents.arg(u"UTF-8"_s).toUtf8(), accentsRead},
        {"UTF-8, mark", encoded(QStringConverter::Utf8, true, u"<a é='ü'>ß</a>"_s), accentsRead},
        {"UTF-16, mark", encoded(QStringConverter::Utf16LE, true, accents.arg(u"UTF-16"_s)), accentsRead},
        {"UTF-16, no mark", encoded(QStringConverter::Utf16BE, false, accents.arg(u"UTF-16"_s)), accentsRead},
        {"ISO-8859-1", accents.arg(u"ISO-8859-1"_s).toLatin1(), accentsRead},
        {"nothing", "", u"nil"_s},
        {"no XML", "a", u"nil"_s},
        {"cut off", "<a><b>1</b>", u"nil"_s},
        {"crossed", "<a><b></a></b>", u"nil"_s},
        {"undeclared entity", "<a>&e;</a>", u"nil"_s},
        {"external entity", "<!DOCTYPE a [<!ENTITY e SYSTEM '/etc/hostname'>]><a>&e;</a>", u"nil"_s},
        {"exponential entities", laughs(), u"nil"_s},
        {"deepest", nested(512, "x"), u"{a:"_s.repeated(512) + u"{text:'x'}"_s + u"}"_s.repeated(512)},
        {"too deep", nested(513), u"nil"_s},
        {"hopelessly deep", nested(1000000), u"nil"_s},
    };
    for (const auto &row : rows)
        EXPECT_EQ(dictionaryOf(row.document), row.dictionary) << row.name;
}

TEST(XMLReader2, PathsLeadToValues)
{
    const auto document = XMLReader2::dictionaryForXMLString(
        u"<items n='3'><item>0</item><item>1</item><item><last>l</last></item><one><last>s</last></one></items>"_s);
    ASSERT_TRUE(document);
    const struct {
        QString path;
        QString value;
    } rows[] = {
        {u"items.n"_s, u"'3'"_s},
        {u"items.item"_s, u"[{text:'0'} {text:'1'} {last:{text:'l'}}]"_s},
        {u"items.item.1.text"_s, u"'1'"_s},
        {u"items.item.last.last.text"_s, u"'l'"_s},
        {u"items.item.first.text"_s, u"'0'"_s},
        {u"items.item.2x.last.text"_s, u"'l'"_s},
        {u"items.item.3"_s, {}},
        {u"items.item.-1"_s, {}},
        {u"items.one.last"_s, u"{text:'s'}"_s},
        {u"items.one.0"_s, {}},
        {u"items.n.text"_s, {}},
        {u"items.none.text"_s, {}},
        {u""_s, {}},
    };
    for (const auto &[path, value] : rows) {
        EXPECT_EQ(dumped(retrieveForPath(*document, path)), value) << qPrintable(path);
        const QString array = value.startsWith(u'{') ? u'[' + value + u']' : value;
        EXPECT_EQ(dumped(retrieveArrayForPath(*document, path)), array) << qPrintable(path);
    }
}

TEST(XMLReader2, FailuresAreLoggedUnlessTheCallerTakesTheError)
{
    static QStringList lines;
    lines.clear();
    const QtMessageHandler previous = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &message) { lines.append(message); });
    EXPECT_FALSE(XMLReader2::dictionaryForXMLString(u"<a>\n<b>"_s, foundation::XmlError()));
    EXPECT_FALSE(XMLReader2::dictionaryForXMLString({}));
    EXPECT_TRUE(lines.isEmpty());
    XMLReader2 reader;
    EXPECT_FALSE(reader.objectWithData("<a>\n<b>"));
    EXPECT_TRUE(reader.objectWithData("<a/>"));  // nothing is left of what failed
    qInstallMessageHandler(previous);
    ASSERT_EQ(lines.size(), 1);
    EXPECT_TRUE(lines[0].startsWith(u"parse error:line 2"_s)) << qPrintable(lines[0]);
}

}  // namespace
