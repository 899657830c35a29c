// XML read into dictionaries, which are then walked and searched by paths of their own keys.

#include "Require.h"
#include "support/XMLReader2.h"
#include "support/XMLReaderNavigation2.h"

using namespace Qt::StringLiterals;
using namespace kestrel;

namespace {

/// Every key leads to something, an array has two elements or more, and a path finds what a look-up finds.
void walk(const XMLDictionary &dictionary, int &budget)
{
    const QStringList keys = dictionary.allKeys();
    require(dictionary.isEmpty() == keys.isEmpty());
    for (const QString &key : keys) {
        if (--budget < 0)
            return;
        const XMLValue value = dictionary.objectForKey(key);
        require(!std::holds_alternative<std::monostate>(value));
        require(key.contains(u'.') || retrieveForPath(dictionary, key).index() == value.index());
        if (const auto *child = std::get_if<XMLDictionary>(&value))
            walk(*child, budget);
        const auto *array = std::get_if<QList<XMLDictionary>>(&value);
        require(!array || array->size() > 1);
        if (array)
            walk(array->last(), budget);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray document(reinterpret_cast<const char *>(data), qsizetype(size));
    const auto result = XMLReader2::dictionaryForXMLData(document, foundation::XmlError());
    if (!result)
        return 0;
    const QStringList roots = result->allKeys();
    require(roots.size() == 1);
    int budget = 1000;
    walk(*result, budget);
    for (const QString &rest : {u"last"_s, u"0"_s, u"-1.text"_s, u"a.last.text"_s, u".."_s})
        retrieveArrayForPath(*result, roots.first() + u'.' + rest);
    return 0;
}
