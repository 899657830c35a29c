// A keyed archive is unpacked and asked for everything that the settings ask for, and for the same again further in.

#include "Require.h"
#include "foundation/KeyedArchive.h"

using namespace Qt::StringLiterals;
using namespace kestrel::foundation;

namespace {

void walk(const KeyedDecoder &object, int depth)
{
    static const QStringList keys = {u"video"_s,      u"dvd"_s,      u"downloader"_s,   u"recorder"_s,
                                     u"vars"_s,       u"quality"_s,  u"video_out"_s,    u"audio_out"_s,
                                     u"openFolder"_s, u"shutdown"_s, u"snapshot_out"_s, u"notify"_s};
    require(!object.className().isEmpty());
    for (const QString &key : keys) {
        const auto child = object.decodeObject(key);
        require(!child || object.contains(key));
        require(!object.decodeObjectOfClass(u"JVideoSetting"_s, key) || child);
        require(object.contains(key) || (object.decodeString(key).isNull() && object.decodeInteger(key) == 0));
        require(object.decodeBool(key) == (object.decodeDouble(key) != 0));
        if (child && depth > 0)
            walk(*child, depth - 1);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (const auto root = KeyedDecoder::unarchive(fuzzInput(data, size)))
        walk(*root, 2);
    return 0;
}
