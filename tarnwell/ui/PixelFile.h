#pragma once

#include <QFile>
#include <QImage>

namespace kestrel::tarnwell {

/// Pictures that are drawn from where their file is mapped, without being decoded or copied. A file that is missing or
/// damaged has none.
class PixelFile {
public:
    explicit PixelFile(const QString &path);

    /// Null where it is not among them. Stays valid as long as this object.
    QImage image(const QString &name) const;

private:
    QFile m_file;
    const uchar *m_bytes = nullptr;
    quint64 m_size = 0;
};

}  // namespace kestrel::tarnwell
