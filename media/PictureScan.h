#pragma once

#include "MediaInformation.h"

#include "jobs/ToolProcess.h"

#include <QRect>

namespace kestrel {

/// What the pictures themselves show, where flags are missing or wrong: whether they are interlaced, and black bars.
/// One run of ffmpeg over a hundred pictures, which takes about 0.2 s; its lines are read here.
class PictureScan {
public:
    /// Of the file's film; looks at the middle. `argument` as ToolPath has it.
    static ToolCommand command(const QString &transcoderPath, const QString &argument, const MediaInformation &film);
    /// Whether its flags leave open how the film is scanned, or cannot be trusted, and it may be interlaced.
    static bool isWorthwhile(const MediaTrack &video);

    void readLine(const QByteArray &line);

    /// Interlaced only where more than nine of ten pictures say so, and all of them in the same order.
    MediaTrack::FieldOrder fieldOrder() const;
    /// What is left without black bars, of the coded picture; null where nothing was found.
    QRect picture() const { return m_picture; }

private:
    int m_topFirst = 0, m_bottomFirst = 0, m_progressive = 0, m_undetermined = 0;
    QRect m_picture;
};

}  // namespace kestrel
