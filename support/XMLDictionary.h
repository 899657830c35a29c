#pragma once

#include <QList>
#include <QString>

#include <memory>
#include <string_view>
#include <variant>

namespace kestrel {

class XMLDictionary;
struct XMLTree;

/// What a dictionary holds under a key; `std::monostate` where it holds nothing.
using XMLValue = std::variant<std::monostate, QString, XMLDictionary, QList<XMLDictionary>>;

/// One element of an XML document: its attributes, child elements and text under one set of keys. Children of one name
/// are a dictionary while there is one of them and an array in document order from the second on; a child takes the
/// place of an attribute of its name, and the text that of either, under "text". Immutable; a copy is a reference to
/// the same document. A look-up takes time with the number of children.
class XMLDictionary {
public:
    XMLDictionary(std::shared_ptr<const XMLTree> tree, quint32 element) : m_tree(std::move(tree)), m_element(element) {}

    XMLValue objectForKey(QStringView key) const;
    QStringList allKeys() const;  ///< each once, in no order that means anything
    bool isEmpty() const;

private:
    quint32 attributesEnd() const;
    QList<XMLDictionary> childrenNamed(std::string_view name) const;
    XMLValue attributeNamed(std::string_view name) const;

    std::shared_ptr<const XMLTree> m_tree;
    quint32 m_element;  ///< its entry in the tree
};

}  // namespace kestrel
