#include "XMLReader2.h"

namespace kestrel {

namespace {

constexpr foundation::XmlLimits dictionaryLimits = {.depth = 512};

std::string_view view(QUtf8StringView text)
{
    return {text.data(), size_t(text.size())};
}

bool isAscii(char character)
{
    return uchar(character) < 0x80;
}

bool isAsciiBlank(char character)
{
    return character == ' ' || (character >= '\t' && character <= '\r');
}

/// Without white space and line breaks at both ends; a part of `text`, or what replaces it there.
std::string_view trimmed(std::string &text)
{
    std::string_view result = text;
    while (!result.empty() && isAsciiBlank(result.front()))
        result.remove_prefix(1);
    while (!result.empty() && isAsciiBlank(result.back()))
        result.remove_suffix(1);
    if (result.empty() || (isAscii(result.front()) && isAscii(result.back())))
        return result;
    return text = QString::fromUtf8(result.data(), qsizetype(result.size())).trimmed().toStdString();
}

}  // namespace

std::optional<XMLDictionary> XMLReader2::dictionaryForXMLString(const QString &string,
                                                                const std::optional<foundation::XmlError> &error)
{
    if (string.isNull())
        return {};
    return dictionaryForXMLData(string.toUtf8(), error);
}

std::optional<XMLDictionary> XMLReader2::dictionaryForXMLData(const QByteArray &data,
                                                              const std::optional<foundation::XmlError> &error)
{
    return XMLReader2(error).objectWithData(data);
}

std::optional<XMLDictionary> XMLReader2::objectWithData(const QByteArray &data)
{
    m_tree = {};
    m_textInProgress.clear();
    // Memory that stays unused costs nothing; growing costs copies.
    m_tree.strings.reserve(size_t(data.size()));
    m_tree.entries.reserve(size_t(data.size()) / 32);
    m_tree.entries.emplace_back();
    m_dictionaryStack = {0};
    if (const auto error = foundation::XmlEventParser(dictionaryLimits).parse(data, *this)) {
        parseErrorOccurred(*error);
        return {};
    }
    m_tree.entries.front().end = quint32(m_tree.entries.size());
    return XMLDictionary(std::make_shared<const XMLTree>(std::move(m_tree)), 0);
}

void XMLReader2::startElement(foundation::XmlEventParser &, QUtf8StringView name,
                              const QList<foundation::XmlAttribute> &attributes)
{
    m_dictionaryStack.push_back(quint32(m_tree.entries.size()));
    m_tree.entries.push_back({stored(view(name)), 0, 0});
    for (const foundation::XmlAttribute &attribute : attributes) {
        const quint32 attributeName = stored(view(attribute.name));
        m_tree.entries.push_back({attributeName, stored(view(attribute.value)), 0});
    }
}

void XMLReader2::characters(foundation::XmlEventParser &, QUtf8StringView text)
{
    m_textInProgress += view(text);
}

void XMLReader2::endElement(foundation::XmlEventParser &, QUtf8StringView)
{
    XMLTree::Entry &element = m_tree.entries[m_dictionaryStack.back()];
    m_dictionaryStack.pop_back();
    element.end = quint32(m_tree.entries.size());
    if (m_textInProgress.empty())
        return;
    element.text = stored(trimmed(m_textInProgress));
    m_textInProgress.clear();
}

quint32 XMLReader2::stored(std::string_view string)
{
    const size_t place = m_tree.strings.size();
    m_tree.strings += string;
    m_tree.strings += '\0';
    return quint32(place);
}

void XMLReader2::parseErrorOccurred(const foundation::XmlError &error)
{
    if (m_errorPointer)
        m_errorPointer = error;
    else
        qWarning("parse error:line %d, byte %lld: %ls", error.line, error.offset, qUtf16Printable(error.message));
}

}  // namespace kestrel
