// Writes pictures as plain pixels, for the program to draw without decoding: PackPixels OUTPUT NAME=FILE...

#include "tarnwell/ui/PixelFileFormat.h"

#include <QFile>
#include <QImage>
#include <QSaveFile>

#include <cstdio>
#include <cstring>

namespace pixelfile = kestrel::tarnwell::pixelfile;

static bool isTransparentSomewhere(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) != 255)
                return true;
        }
    }
    return false;
}

int main(int argc, char **argv)
{
    const quint32 count = argc > 2 ? quint32(argc - 2) : 0;
    QByteArray bytes(qsizetype(sizeof(pixelfile::Header) + count * sizeof(pixelfile::Entry)), '\0');
    const pixelfile::Header header = {pixelfile::magic, count};
    std::memcpy(bytes.data(), &header, sizeof header);
    for (quint32 i = 0; i < count; ++i) {
        const QByteArray argument(argv[i + 2]);
        const qsizetype equals = argument.indexOf('=');
        pixelfile::Entry entry = {};
        QImage image(QString::fromLocal8Bit(argument.mid(equals + 1)));
        if (image.isNull() || equals < 0 || size_t(equals) >= sizeof entry.name) {
            std::fprintf(stderr, "%s cannot be packed\n", argument.constData());
            return 1;
        }
        image.convertTo(QImage::Format_ARGB32_Premultiplied);
        bytes.append((pixelfile::alignment - bytes.size() % pixelfile::alignment) % pixelfile::alignment, '\0');
        std::memcpy(entry.name, argument.constData(), size_t(equals));
        entry.width = quint32(image.width());
        entry.height = quint32(image.height());
        entry.hasAlpha = isTransparentSomewhere(image);
        entry.offset = quint32(bytes.size());
        std::memcpy(bytes.data() + sizeof header + i * sizeof entry, &entry, sizeof entry);
        for (int y = 0; y < image.height(); ++y)
            bytes.append(reinterpret_cast<const char *>(image.constScanLine(y)), qsizetype(image.width()) * 4);
    }
    // In one step: a program that runs has the old one mapped.
    QSaveFile output(QString::fromLocal8Bit(argv[1]));
    return output.open(QIODevice::WriteOnly) && output.write(bytes) == bytes.size() && output.commit() ? 0 : 1;
}
