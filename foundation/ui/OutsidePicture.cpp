#include "OutsidePicture.h"

#include <QIODevice>
#include <QImageReader>
#include <QtEndian>

#include <algorithm>
#include <cstring>

#include <time.h>

namespace kestrel::foundation {

namespace {

constexpr QSize largestShown(1280, 1280);
constexpr int longestSide = 16'384;
constexpr qint64 mostPixels = 4096 * 4096;
constexpr int mostScans = 64;
constexpr qint64 mostScannedPixels = 16 * mostPixels;  // in all scans of a JPEG together
constexpr qint64 readingLimitMs = 150;

qint64 threadTimeMs()
{
    timespec time = {};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return time.tv_sec * 1000 + time.tv_nsec / 1'000'000;
}

/// Gives out bytes until the thread has worked at them for too long; few at a time, as few can unpack to many.
class MeteredBytes final : public QIODevice {
public:
    explicit MeteredBytes(const QByteArray &bytes) : m_bytes(bytes) { open(ReadOnly | Unbuffered); }

    bool isUsedUp() const { return m_isUsedUp; }
    qint64 size() const override { return m_bytes.size(); }
    bool seek(qint64 position) override
    {
        if (position < 0 || position > m_bytes.size())
            return false;
        m_position = position;
        return QIODevice::seek(position);
    }

protected:
    qint64 readData(char *to, qint64 length) override
    {
        m_isUsedUp = m_isUsedUp || threadTimeMs() > m_end;
        if (m_isUsedUp)
            return -1;
        const qint64 count = std::clamp<qint64>(m_bytes.size() - m_position, 0, length);
        std::memcpy(to, m_bytes.constData() + m_position, size_t(count));
        m_position += count;
        return count;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    const QByteArray m_bytes;
    qint64 m_position = 0;
    bool m_isUsedUp = false;
    const qint64 m_end = threadTimeMs() + readingLimitMs;
};

/// A PNG with the chunks that make the picture: others, once unpacked, may be as large and as many as they like.
QByteArray barePng(const QByteArray &png)
{
    constexpr qsizetype signatureLength = 8, frameLength = 12;
    QByteArray bare = png.first(std::min(signatureLength, png.size()));
    for (qsizetype at = signatureLength; png.size() - at >= frameLength;) {
        const qsizetype length = qFromBigEndian<quint32>(png.constData() + at) + frameLength;
        if (length > png.size() - at)
            break;
        const QByteArrayView chunk = QByteArrayView(png).sliced(at, length);
        const QByteArrayView type = chunk.sliced(4, 4);
        if (type == "IHDR" || type == "PLTE" || type == "tRNS" || (type == "IDAT" && length > frameLength) ||
            type == "IEND")
            bare += chunk;
        at += length;
    }
    return bare;
}

/// Where a marker begins at `at` or behind it, or the end. Data has pairs of bytes that are none, and restarts.
qsizetype nextMarker(QByteArrayView jpeg, qsizetype at)
{
    for (at = jpeg.indexOf('\xFF', at); at >= 0 && at + 1 < jpeg.size(); at = jpeg.indexOf('\xFF', at + 1)) {
        const auto code = uchar(jpeg[at + 1]);
        if (code > 0x01 && code < 0xFF && (code < 0xD0 || code > 0xD7))
            return at;
    }
    return jpeg.size();
}

constexpr uchar startOfScan = 0xDA;
constexpr uchar endOfImage = 0xD9;

/// Whether the reader needs it: frames with Huffman codes, tables, and what says how colours and directions are meant.
bool makesThePicture(uchar code, QByteArrayView segment)
{
    constexpr uchar codes[] = {0xC0, 0xC1, 0xC2, 0xC4, startOfScan, 0xDB, 0xDD, 0xE0, 0xEE};
    return std::ranges::count(codes, code) > 0 || (code == 0xE1 && segment.sliced(4).startsWith("Exif"));
}

struct BareJpeg {
    QByteArray bytes;
    int scans = 0;
};

/// The same for a JPEG. Every scan is work for the whole picture, even one of a few bytes.
BareJpeg bareJpeg(const QByteArray &jpeg)
{
    BareJpeg bare{jpeg.first(std::min<qsizetype>(2, jpeg.size()))};
    for (qsizetype at = nextMarker(jpeg, 2); jpeg.size() - at >= 4;) {
        const auto code = uchar(jpeg[at + 1]);
        const qsizetype length = qFromBigEndian<quint16>(jpeg.constData() + at + 2) + 2;
        if (code == endOfImage || length < 4 || length > jpeg.size() - at)
            break;
        const qsizetype next = nextMarker(jpeg, at + length);
        if (makesThePicture(code, QByteArrayView(jpeg).sliced(at, length)))
            bare.bytes += QByteArrayView(jpeg).sliced(at, code == startOfScan ? next - at : length);
        bare.scans += code == startOfScan;
        at = next;
    }
    bare.bytes += "\xFF\xD9";
    return bare;
}

QImage readPicture(const QByteArray &bytes, const char *format, int scans)
{
    MeteredBytes device(bytes);
    QImageReader reader(&device, format);
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(true);
    const QSize size = reader.canRead() ? reader.size() : QSize();
    const qint64 pixels = qint64(size.width()) * size.height();
    if (size.isEmpty() || std::max(size.width(), size.height()) > longestSide || pixels > mostPixels ||
        scans > mostScans || scans * pixels > mostScannedPixels)
        return {};
    // A JPEG is read faster at a smaller size; for others that would be work even where they are refused.
    if (scans > 0 && size != size.boundedTo(largestShown))
        reader.setScaledSize(size.scaled(largestShown, Qt::KeepAspectRatio).expandedTo({1, 1}));
    QImage image = reader.read();
    // Some readers make do with what they got.
    if (image.isNull() || device.isUsedUp())
        return {};
    image.setDevicePixelRatio(1);
    if (image.size() == image.size().boundedTo(largestShown))
        return image;
    return image.scaled(largestShown, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

}  // namespace

QImage pictureFromOutside(const QByteArray &bytes)
{
    if (bytes.startsWith("\x89PNG"))
        return readPicture(barePng(bytes), "png", 0);
    if (bytes.startsWith("\xFF\xD8")) {
        const BareJpeg jpeg = bareJpeg(bytes);
        return readPicture(jpeg.bytes, "jpeg", jpeg.scans);
    }
    return readPicture(bytes, bytes.startsWith("GIF") ? "gif" : "bmp", 0);
}

}  // namespace kestrel::foundation
