// A property list that is read can be written, and reads back the same.

#include "Require.h"
#include "foundation/PropertyList.h"

using namespace kestrel::foundation;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    // Shared parts are written as copies: the limit keeps a round short.
    const auto value = readPropertyList(fuzzInput(data, size), {.items = 20'000}).value;
    if (!value)
        return 0;
    const QByteArray binary = writePropertyList(*value, PropertyListFormat::Binary);
    const auto fromBinary = readPropertyList(binary).value;
    require(fromBinary && isSamePropertyList(*fromBinary, *value));
    // XML has no place for some texts, nor for a date's fraction of a second.
    const QByteArray xml = writePropertyList(*value, PropertyListFormat::Xml);
    const auto fromXml = readPropertyList(xml).value;
    require(xml.isNull() || (fromXml && writePropertyList(*fromXml, PropertyListFormat::Xml) == xml));
    return 0;
}
