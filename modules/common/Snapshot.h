#pragma once

#include <QImage>

#include <functional>

class QObject;

namespace kestrel {

/// Writes the picture into a folder as a PNG file of that name (or "name (1)" and so on) in the background. Then its
/// path, or a null one and a sentence why not; not once `context` has gone.
void keepSnapshot(const QImage &image, const QString &folder, const QString &name, QObject *context,
                  const std::function<void(const QString &path, const QString &sentence)> &then);

}  // namespace kestrel
