#include "Images.h"

#include "PixelFile.h"
#include "foundation/Bundle.h"
#include "tarnwell/Log.h"
#include "tarnwell/ProductInformation.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QIconEngine>
#include <QPainter>

#include <png.h>

#include <algorithm>
#include <cmath>
#include <map>

using namespace Qt::StringLiterals;

namespace kestrel::tarnwell {

namespace {

struct Rendering {
    qreal scale;
    const char *suffix;
};

constexpr Rendering renderings[] = {{1, ""}, {1.5, "@1.5x"}, {2, "@2x"}};
constexpr qreal disabledOpacity = 0.4;

const Rendering &renderingFor(qreal scale)
{
    for (const Rendering &rendering : renderings)
        if (scale < rendering.scale + 0.01)
            return rendering;
    return renderings[2];
}

QString renderingPath(const QString &name, const Rendering &rendering, QLatin1StringView ending)
{
    return productBundle().resource("images/"_L1 + name + QLatin1StringView(rendering.suffix) + ending);
}

/// From the file of what the first window shows. What is drawn must go before the file: both end with the application.
QImage mappedImage(const QString &name, const Rendering &rendering)
{
    static std::map<QString, PixelFile> files;
    const QString path = renderingPath(u"home"_s, rendering, ".pixels"_L1);
    return files.try_emplace(path, path).first->second.image(name);
}

/// Without Qt's image plugins, all of which its own reader loads for the first picture.
QImage pngImage(const QString &path)
{
    QFile file(path);
    png_image png = {};
    png.version = PNG_IMAGE_VERSION;
    const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    if (!png_image_begin_read_from_memory(&png, bytes.constData(), size_t(bytes.size())))
        return {};
    png.format = PNG_FORMAT_BGRA;
    QImage image(int(png.width), int(png.height), QImage::Format_ARGB32);
    const bool isRead = !image.isNull() &&
                        png_image_finish_read(&png, nullptr, image.bits(), png_int_32(image.bytesPerLine()), nullptr);
    png_image_free(&png);
    return isRead ? std::move(image).convertToFormat(QImage::Format_ARGB32_Premultiplied) : QImage();
}

QPixmap readImage(const QString &name, const QString &path, const Rendering &rendering)
{
    QImage image = mappedImage(name, rendering);
    if (image.isNull())
        image = pngImage(path);
    if (image.isNull()) {
        DNFootLog(u"The image %1 cannot be read"_s, path);
        return {};
    }
    image.setDevicePixelRatio(rendering.scale);
    // What it would look for is known: the pixels stay where they are.
    return QPixmap::fromImage(std::move(image), Qt::NoOpaqueDetection);
}

/// The images of the bundle as an icon, which reads no rendering before it is shown.
class NamedIconEngine : public QIconEngine {
public:
    explicit NamedIconEngine(const QString &name) : m_name(name) {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const qreal scale = painter->device()->devicePixelRatioF();
        const QPixmap image = pixmapOf(rect.size() * scale, scale, mode);
        const QSizeF size = image.deviceIndependentSize();
        drawCrisp(*painter, rect.toRectF().center() - QPointF(size.width(), size.height()) / 2, image);
    }

    /// `size` is in device pixels; the icon sets the scale of the result.
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override
    {
        const QSizeF points = namedImage(m_name, 1).deviceIndependentSize();
        return points.isEmpty() ? QPixmap() : pixmapOf(size, size.width() / points.width(), mode);
    }

    QIconEngine *clone() const override { return new NamedIconEngine(*this); }
    QString iconName() override { return m_name; }
    bool isNull() override { return namedImage(m_name, 1).isNull(); }
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override { return {namedImage(m_name, 1).size()}; }

private:
    QPixmap pixmapOf(const QSize &pixels, qreal scale, QIcon::Mode mode) const
    {
        QPixmap image = namedImage(m_name, scale);
        if (image.isNull())
            return image;
        const qreal ratio = std::min(scale, image.devicePixelRatio());
        const QSize shown = (image.deviceIndependentSize() * ratio)
                                .toSize()
                                .boundedTo(image.size().scaled(pixels, Qt::KeepAspectRatio));
        if (shown != image.size())
            image = image.scaled(shown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        image.setDevicePixelRatio(ratio);
        return mode == QIcon::Disabled ? faded(image) : image;
    }

    static QPixmap faded(const QPixmap &image)
    {
        QPixmap result(image.size());
        result.setDevicePixelRatio(image.devicePixelRatio());
        result.fill(Qt::transparent);
        QPainter painter(&result);
        painter.setOpacity(disabledOpacity);
        painter.drawPixmap(QPointF(), image);
        return result;
    }

    QString m_name;
};

}  // namespace

QString namedImagePath(const QString &name, qreal scale)
{
    return renderingPath(name, renderingFor(scale), ".png"_L1);
}

QPixmap namedImage(const QString &name, qreal scale)
{
    if (name.isEmpty())
        return {};
    static QHash<QString, QPixmap> images;
    [[maybe_unused]] static const bool isClearedInTime = [] {
        qAddPostRoutine([] { images.clear(); });  // pixmaps need the application object
        return true;
    }();
    const QString path = namedImagePath(name, scale);
    auto image = images.constFind(path);
    if (image == images.cend())
        image = images.insert(path, readImage(name, path, renderingFor(scale)));
    return *image;
}

QIcon namedIcon(const QString &name)
{
    return QIcon(new NamedIconEngine(name));
}

QPixmap pictureAt(const QString &path)
{
    return QPixmap::fromImage(pngImage(path), Qt::NoOpaqueDetection);
}

QPixmap applicationIcon(int size, qreal scale)
{
    QIcon icon(productBundle().resource(u"Kestrel.icns"_s));
    if (icon.availableSizes().isEmpty())
        icon = QIcon(productBundle().resource(u"icons/hicolor/512x512/apps/kestrel.png"_s));
    return icon.pixmap(QSize(size, size), scale);
}

void drawCrisp(QPainter &painter, const QPointF &topLeft, const QPixmap &pixmap)
{
    // At 150 % every other point falls between two pixels of the screen.
    const QTransform toDevice = painter.deviceTransform();
    const QPointF pixel = toDevice.map(topLeft);
    const QPointF place = toDevice.inverted().map(QPointF(std::round(pixel.x()), std::round(pixel.y())));
    // In bands: Qt starts threads, which stay for half a minute, to paint more than 95 rows through a clip.
    constexpr int bandRows = 64;
    const qreal ratio = pixmap.devicePixelRatio();
    for (int row = 0; row < pixmap.height(); row += bandRows)
        painter.drawPixmap(place + QPointF(0, row / ratio), pixmap,
                           QRectF(0, row, pixmap.width(), std::min(bandRows, pixmap.height() - row)));
}

}  // namespace kestrel::tarnwell
