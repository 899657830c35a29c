#include "XmlEventParser.h"

#include <gtest/gtest.h>

#include <QStringList>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

/// Writes down what it is told; stops the parser at an element named "stop".
class RecordingXmlDelegate : public XmlEventParser::Delegate {
public:
    void startElement(XmlEventParser &parser, QUtf8StringView name, const QList<XmlAttribute> &attributes) override
    {
        flush();
        QString event = u'<' + name.toString();
        for (const XmlAttribute &attribute : attributes)
            event += u' ' + attribute.name + u'=' + attribute.value;
        m_events.append(event);
        if (name == QUtf8StringView("stop"))
            parser.abort(u"stopped"_s);
    }
    void endElement(XmlEventParser &, QUtf8StringView name) override
    {
        flush();
        m_events.append("</"_L1 + name.toString());
    }
    void characters(XmlEventParser &, QUtf8StringView text) override { m_text += text.toString(); }

    QString events() const { return m_events.join(u'|'); }

private:
    void flush()
    {
        if (!m_text.isEmpty())
            m_events.append(std::exchange(m_text, QString()));
    }

    QStringList m_events;
    QString m_text;
};

QByteArray manyEntities(int count)
{
    QByteArray text = "<!DOCTYPE a [<!ENTITY e0 'x'>";
    for (int i = 1; i < count; ++i)
        text += "<!ENTITY e" + QByteArray::number(i) + " '&e" + QByteArray::number(i - 1) + ";'>";
    return text + "]><a>&e" + QByteArray::number(count - 1) + ";</a>";
}

}  // namespace

TEST(XmlEventParser, ReportsEventsAndErrors)
{
    const struct {
        const char *name;
        QByteArray text;
        QString events;
        QString error;
    } table[] = {
        {"text and CDATA", "<a>1<![CDATA[<2>]]>&amp;<b/>3</a>", u"<a|1<2>&|<b|</b|3|</a"_s, {}},
        {"attributes and prefixes", "<n:a n:x='1' y='&lt;é'/>", u"<n:a n:x=1 y=<é|</n:a"_s, {}},
        {"encoding of the text", "<?xml version='1.0' encoding='ISO-8859-1'?><a>\xE9</a>", u"<a|é|</a"_s, {}},
        {"own entity", "<!DOCTYPE a [<!ENTITY e '<b>1</b>'>]><a>&e;</a>", u"<a|<b|1|</b|</a"_s, {}},
        {"default of the DTD", "<!DOCTYPE a [<!ATTLIST a x CDATA '1'>]><a y='2'/>", u"<a y=2|</a"_s, {}},
        {"stopped", "<a><stop/><b/></a>", u"<a|<stop"_s, u"stopped"_s},
        {"external entity", "<!DOCTYPE a [<!ENTITY e SYSTEM 'f'>]><a>&e;</a>", u"<a"_s,
         u"reference to an external entity"_s},
        {"undeclared beside a DTD", "<!DOCTYPE a SYSTEM 'f'><a>&e;</a>", u"<a"_s, u"undeclared entity \"e\""_s},
        {"as many entities as allowed", manyEntities(64), u"<a|x|</a"_s, {}},
        {"too many entities", manyEntities(65), {}, u"more than 64 entity declarations"_s},
        {"as deep as allowed", "<a><b><c/></b></a>", u"<a|<b|<c|</c|</b|</a"_s, {}},
        {"too deep", "<a><b><c><d/></c></b></a>", u"<a|<b|<c"_s, u"elements are nested deeper than 3"_s},
        {"too long", "<a>" + QByteArray(20000, ' '), {}, u"longer than 20000 bytes"_s},
    };
    for (const auto &row : table) {
        SCOPED_TRACE(row.name);
        RecordingXmlDelegate delegate;
        XmlEventParser parser({.bytes = 20000, .depth = 3});
        const auto error = parser.parse(row.text, delegate);
        EXPECT_EQ(delegate.events().toStdString(), row.events.toStdString());
        EXPECT_EQ(error ? error->message.toStdString() : "", row.error.toStdString());
    }
}

TEST(XmlEventParser, SaysWhereAndCanBeUsedAgain)
{
    XmlEventParser parser;
    for (int round = 0; round < 2; ++round) {
        RecordingXmlDelegate delegate;
        const auto error = parser.parse("<a>\n\n  <stop/></a>", delegate);
        ASSERT_TRUE(error);
        EXPECT_EQ(error->line, 3);
        EXPECT_EQ(error->offset, 7);
    }
}

}  // namespace kestrel::foundation
