#include "XMLDictionary.h"

#include "XMLTree.h"

#include <QSet>

#include <string_view>

using namespace Qt::StringLiterals;

namespace kestrel {

XMLValue XMLDictionary::objectForKey(QStringView key) const
{
    const XMLTree::Entry &element = m_tree->entries[m_element];
    if (element.text && key == "text"_L1)
        return QString::fromUtf8(m_tree->string(element.text));
    const QByteArray utf8 = key.toUtf8();
    const std::string_view name(utf8.constData(), size_t(utf8.size()));
    const QList<XMLDictionary> children = childrenNamed(name);
    if (children.size() > 1)
        return children;
    return children.isEmpty() ? attributeNamed(name) : children.first();
}

QStringList XMLDictionary::allKeys() const
{
    const XMLTree::Entry &element = m_tree->entries[m_element];
    QSet<QString> keys;
    if (element.text)
        keys.insert(u"text"_s);
    const quint32 attributesEnd = this->attributesEnd();
    for (quint32 entry = m_element + 1; entry < element.end;) {
        keys.insert(QString::fromUtf8(m_tree->string(m_tree->entries[entry].name)));
        entry = entry < attributesEnd ? entry + 1 : m_tree->entries[entry].end;
    }
    return keys.values();
}

bool XMLDictionary::isEmpty() const
{
    const XMLTree::Entry &element = m_tree->entries[m_element];
    return !element.text && element.end == m_element + 1;
}

quint32 XMLDictionary::attributesEnd() const
{
    const quint32 end = m_tree->entries[m_element].end;
    quint32 entry = m_element + 1;
    while (entry < end && !m_tree->entries[entry].end)
        ++entry;
    return entry;
}

QList<XMLDictionary> XMLDictionary::childrenNamed(std::string_view name) const
{
    QList<XMLDictionary> children;
    const quint32 end = m_tree->entries[m_element].end;
    for (quint32 entry = attributesEnd(); entry < end; entry = m_tree->entries[entry].end)
        if (m_tree->string(m_tree->entries[entry].name) == name)
            children.emplaceBack(m_tree, entry);
    return children;
}

XMLValue XMLDictionary::attributeNamed(std::string_view name) const
{
    const quint32 end = attributesEnd();
    for (quint32 entry = m_element + 1; entry < end; ++entry)
        if (m_tree->string(m_tree->entries[entry].name) == name)
            return QString::fromUtf8(m_tree->string(m_tree->entries[entry].text));
    return {};
}

}  // namespace kestrel
