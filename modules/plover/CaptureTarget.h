#pragma once

#include "RecordPlan.h"

#include "foundation/Result.h"
#include "tarnwell/TextKey.h"

#include <QList>
#include <QSize>

namespace kestrel {

/// Where a recording's pictures come from, as it is at this moment.
struct CaptureTarget {
    QString display = {};  ///< an X display; empty for a camera
    quint32 window = 0;
    QRect area = {};         ///< of the display; within the window where that is what is recorded. Even sizes.
    QString camera = {};     ///< path of the device; beside a display or what is shared, of the inset
    QString generator = {};  ///< instead of a camera: a source of ffmpeg's own
    bool isShared =
        false;  ///< through the portal: a stream with times of its own on standard input; the area may be empty
    tarnwell::Sentence note = {};  ///< that it is another camera than was asked for
};

struct CameraDevice {
    QString path;  ///< one that lasts where the system has such
    QString name;  ///< "Integrated Webcam"
};
QList<CameraDevice> cameraDevices();  ///< all that are there

/// The camera alone that the plan names, or the first one, with a note where it names another.
foundation::Result<CaptureTarget, tarnwell::Sentence> cameraTarget(const RecordPlan &plan);

/// What the plan names, or why it cannot be recorded: no such screen or window, an area that is nowhere.
foundation::Result<CaptureTarget, tarnwell::Sentence> captureTarget(const RecordPlan &plan);

/// The reason for a window that is not there, or is minimised.
tarnwell::Sentence noSuchWindow(quint32 window);

/// The part of an area that is on the desktop, with even sides as encoders want them; empty where nothing is left.
QRect recordableArea(const QRect &wanted, const QRect &desktop);

}  // namespace kestrel
