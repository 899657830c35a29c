#include "CoverTag.h"

#include <QDataStream>
#include <QFile>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace kestrel {

bool writeCoverTag(const CoverTag &tag)
{
    constexpr quint32 frontCover = 3, bitsPerPixel = 24, coloursOfPalette = 0;
    QFile picture(tag.picturePath);
    QSaveFile file(tag.tagPath);
    if (!picture.open(QIODevice::ReadOnly) || !file.open(QIODevice::WriteOnly))
        return false;
    QByteArray block;
    QDataStream stream(&block, QIODevice::WriteOnly);
    stream << frontCover << tag.mimeType.toLatin1() << QByteArray("") << quint32(tag.width) << quint32(tag.height)
           << bitsPerPixel << coloursOfPalette << picture.readAll();
    file.write(";FFMETADATA1\n[STREAM]\nMETADATA_BLOCK_PICTURE=" + block.toBase64().replace("=", "\\=") + '\n');
    return file.commit();
}

}  // namespace kestrel
