#include "CoverTag.h"

#include <QDataStream>
#include <QFile>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace kestrel {

std::optional<bool> writeCoverTag(const CoverTag &tag)
{
    constexpr quint32 frontCover = 3, bitsPerPixel = 24, coloursOfPalette = 0;
    constexpr qint64 largest = 16'000'000;
    QFile picture(tag.picturePath);
    QSaveFile file(tag.tagPath);
    if (!file.open(QIODevice::WriteOnly))
        return {};
    file.write(";FFMETADATA1\n[STREAM]\n");
    const bool isTaken = picture.size() > 0 && picture.size() <= largest && picture.open(QIODevice::ReadOnly);
    if (!isTaken)
        return file.commit() ? std::optional(false) : std::nullopt;
    QByteArray block;
    QDataStream stream(&block, QIODevice::WriteOnly);
    stream << frontCover << tag.mimeType.toLatin1() << QByteArray("") << quint32(tag.width) << quint32(tag.height)
           << bitsPerPixel << coloursOfPalette << picture.readAll();
    file.write("METADATA_BLOCK_PICTURE=" + block.toBase64().replace("=", "\\=") + '\n');
    return file.commit() ? std::optional(true) : std::nullopt;
}

}  // namespace kestrel
