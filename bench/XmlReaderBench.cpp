// A document of 10 MB and 200,000 elements: what the dictionaries cost on top of the bare event parser.

#include "support/XMLReader2.h"

#include <benchmark/benchmark.h>

namespace {

using kestrel::foundation::XmlAttribute;
using kestrel::foundation::XmlEventParser;

class NothingDelegate final : public XmlEventParser::Delegate {
public:
    void startElement(XmlEventParser &, QUtf8StringView, const QList<XmlAttribute> &) override {}
    void endElement(XmlEventParser &, QUtf8StringView) override {}
    void characters(XmlEventParser &, QUtf8StringView) override {}
};

/// 50,000 records of four elements each, about 210 bytes long.
QByteArray records()
{
    QByteArray text = "<items>\n";
    for (int i = 0; i < 50000; ++i) {
        const QByteArray number = QByteArray::number(i);
        text += "  <item id=\"" + number + "\">\n    <title>Recording number " + number +
                "</title>\n    <place>/media/archive/" + number +
                ".mp4</place>\n    <note>A line of text that says what can be seen &amp; heard, and for how long it "
                "is.</note>\n  </item>\n";
    }
    return text + "</items>\n";
}

void bareEventParser(benchmark::State &state)
{
    const QByteArray text = records();
    NothingDelegate delegate;
    for (auto _ : state)
        if (XmlEventParser().parse(text, delegate))
            state.SkipWithError("not well-formed");
    state.SetBytesProcessed(qint64(state.iterations()) * text.size());
}

void dictionaryReader(benchmark::State &state)
{
    const QByteArray text = records();
    for (auto _ : state)
        if (!kestrel::XMLReader2::dictionaryForXMLData(text))
            state.SkipWithError("not well-formed");
    state.SetBytesProcessed(qint64(state.iterations()) * text.size());
}

BENCHMARK(bareEventParser)->Unit(benchmark::kMillisecond);
BENCHMARK(dictionaryReader)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
