#include "PlacedPart.h"

#include "foundation/FileNames.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <memory>

using namespace Qt::StringLiterals;

namespace kestrel {

std::optional<PlacedPart> PlacedPart::of(const QString &path)
{
    struct statx facts = {};
    if (statx(AT_FDCWD, foundation::encodedFileName(path).constData(), AT_SYMLINK_NOFOLLOW,
              STATX_INO | STATX_SIZE | STATX_BTIME, &facts) != 0)
        return std::nullopt;
    constexpr qint64 nanoseconds = 1'000'000'000;
    const bool knowsBirth = facts.stx_mask & STATX_BTIME;
    return PlacedPart{.path = path,
                      .number = qint64(facts.stx_ino),
                      .bytes = qint64(facts.stx_size),
                      .born = knowsBirth ? facts.stx_btime.tv_sec * nanoseconds + facts.stx_btime.tv_nsec : 0};
}

QString PlacedPart::placedPath() const
{
    const QString folder = path.left(path.lastIndexOf(u'/') + 1);
    const std::unique_ptr<DIR, int (*)(DIR *)> entries(opendir(foundation::encodedFileName(folder).constData()),
                                                       &closedir);
    while (const dirent *entry = entries ? readdir(entries.get()) : nullptr) {
        if (qint64(entry->d_ino) != number)
            continue;
        const QString found = folder + foundation::decodedFileName(entry->d_name);
        const auto facts = of(found);
        if (found != path && facts && facts->number == number && facts->bytes == bytes && facts->born == born)
            return found;
    }
    return {};
}

QJsonObject PlacedPart::toJson() const
{
    return {{u"path"_s, path}, {u"number"_s, number}, {u"bytes"_s, bytes}, {u"born"_s, born}};
}

std::optional<PlacedPart> PlacedPart::fromJson(const QJsonObject &json)
{
    const PlacedPart part{.path = json["path"_L1].toString(),
                          .number = json["number"_L1].toInteger(),
                          .bytes = json["bytes"_L1].toInteger(-1),
                          .born = json["born"_L1].toInteger()};
    return part.path.startsWith(u'/') && part.number > 0 && part.bytes >= 0 ? std::optional(part) : std::nullopt;
}

}  // namespace kestrel
