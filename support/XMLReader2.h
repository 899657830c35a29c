#pragma once

#include "XMLDictionary.h"
#include "XMLTree.h"
#include "foundation/XmlEventParser.h"

#include <optional>

namespace kestrel {

/// Turns a small XML document into dictionaries: one entry, the root element, under its name. An element's attributes
/// come first, then its children, then its text as "text", and a later one replaces an earlier one of its name. Text is
/// trimmed and belongs to the next element that ends, so that text beside elements is not told from theirs. Nothing
/// where the document is not well-formed, nests deeper than 512 elements or goes beyond the parser's other limits.
class XMLReader2 final : private foundation::XmlEventParser::Delegate {
public:
    /// Where an `error` is given, which stays as it is, a failure is not logged. A null string is nothing.
    static std::optional<XMLDictionary> dictionaryForXMLString(const QString &string,
                                                               const std::optional<foundation::XmlError> &error = {});
    /// Any encoding that the document declares and expat knows: UTF-8, UTF-16, ISO-8859-1, US-ASCII.
    static std::optional<XMLDictionary> dictionaryForXMLData(const QByteArray &data,
                                                             const std::optional<foundation::XmlError> &error = {});

    explicit XMLReader2(const std::optional<foundation::XmlError> &error = {}) : m_errorPointer(error) {}

    std::optional<XMLDictionary> objectWithData(const QByteArray &data);

private:
    void startElement(foundation::XmlEventParser &parser, QUtf8StringView name,
                      const QList<foundation::XmlAttribute> &attributes) override;
    void endElement(foundation::XmlEventParser &parser, QUtf8StringView name) override;
    void characters(foundation::XmlEventParser &parser, QUtf8StringView text) override;
    void parseErrorOccurred(const foundation::XmlError &error);

    quint32 stored(std::string_view string);

    XMLTree m_tree;
    std::vector<quint32> m_dictionaryStack;              ///< the open elements, the document dictionary first
    std::string m_textInProgress;                        ///< UTF-8
    std::optional<foundation::XmlError> m_errorPointer;  ///< the last failure, where the caller wants none logged
};

}  // namespace kestrel
