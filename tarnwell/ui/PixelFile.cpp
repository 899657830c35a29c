#include "PixelFile.h"

#include "PixelFileFormat.h"

#include <cstring>

namespace kestrel::tarnwell {

PixelFile::PixelFile(const QString &path) : m_file(path)
{
    if (!m_file.open(QIODevice::ReadOnly) || m_file.size() < qint64(sizeof(pixelfile::Header)))
        return;
    m_size = quint64(m_file.size());
    m_bytes = m_file.map(0, m_file.size());
    pixelfile::Header header = {};
    if (m_bytes)
        std::memcpy(&header, m_bytes, sizeof header);
    if (header.magic != pixelfile::magic || m_size < sizeof header + header.count * sizeof(pixelfile::Entry))
        m_bytes = nullptr;
}

QImage PixelFile::image(const QString &name) const
{
    if (!m_bytes)
        return {};
    pixelfile::Header header = {};
    std::memcpy(&header, m_bytes, sizeof header);
    const QByteArray wanted = name.toLatin1();
    for (quint32 i = 0; i < header.count; ++i) {
        pixelfile::Entry entry = {};
        std::memcpy(&entry, m_bytes + sizeof header + i * sizeof entry, sizeof entry);
        if (wanted != QByteArrayView(entry.name, qstrnlen(entry.name, sizeof entry.name)))
            continue;
        const quint64 rowBytes = quint64(entry.width) * 4;
        if (entry.width > pixelfile::longestSide || entry.height > pixelfile::longestSide ||
            entry.offset % pixelfile::alignment != 0 || entry.offset + rowBytes * entry.height > m_size)
            return {};
        return QImage(m_bytes + entry.offset, int(entry.width), int(entry.height), qsizetype(rowBytes),
                      entry.hasAlpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    }
    return {};
}

}  // namespace kestrel::tarnwell
