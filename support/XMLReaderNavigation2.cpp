#include "XMLReaderNavigation2.h"

#include "foundation/Numbers.h"

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

XMLValue elementOf(const QList<XMLDictionary> &array, QStringView component)
{
    if (component == "last"_L1)
        return array.last();
    const qint64 index = foundation::lenientInteger(component);
    return index < 0 || index >= array.size() ? XMLValue() : array[index];
}

XMLValue stepInto(const XMLValue &value, QStringView component)
{
    if (const auto *array = std::get_if<QList<XMLDictionary>>(&value))
        return elementOf(*array, component);
    const auto *dictionary = std::get_if<XMLDictionary>(&value);
    return dictionary ? dictionary->objectForKey(component) : XMLValue();
}

}  // namespace

XMLValue retrieveForPath(const XMLDictionary &dictionary, QStringView path)
{
    XMLValue value = dictionary;
    for (const QStringView component : path.tokenize(u'.'))
        value = stepInto(value, component);
    return value;
}

XMLValue retrieveArrayForPath(const XMLDictionary &dictionary, QStringView path)
{
    const XMLValue value = retrieveForPath(dictionary, path);
    if (const auto *single = std::get_if<XMLDictionary>(&value))
        return QList{*single};
    return value;
}

}  // namespace kestrel
