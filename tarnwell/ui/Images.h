#pragma once

#include <QIcon>
#include <QPixmap>
#include <QString>

class QPainter;
class QPointF;

namespace kestrel::tarnwell {

/// The bundle's image of that name ("kestrel_bg"), in the rendering that is crisp at `scale` device pixels a point:
/// 1, 1.5 or 2. Its size in points is the same at every scale. Read once and kept. A null pixmap where there is no such
/// image.
QPixmap namedImage(const QString &name, qreal scale);

/// The file behind `namedImage`, for style sheets.
QString namedImagePath(const QString &name, qreal scale);

/// An icon of the same, which picks the rendering by the screen that it is painted on. Larger places do not enlarge it.
QIcon namedIcon(const QString &name);

/// A PNG file in its own size, outside of `namedImage`'s folder. A null pixmap where it cannot be read.
QPixmap pictureAt(const QString &path);

/// The application's icon in this size, in points; from the bundle's "Kestrel.icns", or where the system cannot read
/// that from its icon for the desktop.
QPixmap applicationIcon(int size, qreal scale);

/// Draws a pixmap at its own size with its pixels on those of the screen, at the place nearest to `topLeft`.
void drawCrisp(QPainter &painter, const QPointF &topLeft, const QPixmap &pixmap);

}  // namespace kestrel::tarnwell
