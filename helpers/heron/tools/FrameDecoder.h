#pragma once

#include "foundation/Result.h"
#include "helpers/heron/DiscError.h"

#include <QByteArray>
#include <QStringList>

namespace kestrel::disc {

/// Runs ffmpeg over a few pictures of MPEG video.
class FrameDecoder {
public:
    static constexpr int width = 64, height = 36;

    explicit FrameDecoder(QString program) : m_program(std::move(program)) {}

    /// Luminance of each picture, reduced to `width` x `height`.
    QList<QByteArray> shades(const QByteArray &video) const;
    /// Writes one of the pictures, by its number, into a file whose name says its format.
    bool save(const QByteArray &video, int picture, int pictureWidth, int pictureHeight, const QString &target) const;

private:
    /// What it wrote to standard output; nothing where it failed.
    std::optional<QByteArray> run(const QStringList &arguments, const QByteArray &input) const;

    QString m_program;
};

}  // namespace kestrel::disc
