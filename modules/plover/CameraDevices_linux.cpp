#include "CaptureTarget.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <linux/videodev2.h>
#include <sys/ioctl.h>
#include <unistd.h>
#include <cerrno>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

/// Beside the node with its pictures a camera has others.
bool givesPictures(const QString &path)
{
    const int file = open(QFile::encodeName(path).constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    if (file < 0)
        return errno == EBUSY;
    v4l2_capability told = {};
    const bool isTold = ioctl(file, VIDIOC_QUERYCAP, &told) == 0;
    close(file);
    const quint32 able = (told.capabilities & V4L2_CAP_DEVICE_CAPS) != 0 ? told.device_caps : told.capabilities;
    return isTold && (able & V4L2_CAP_VIDEO_CAPTURE) != 0;
}

/// Numbers change with the order in which cameras are plugged in.
QString lastingPath(const QString &path)
{
    const QDir folder(u"/dev/v4l/by-id"_s);
    for (const QFileInfo &link : folder.entryInfoList(QDir::Files | QDir::System, QDir::Name)) {
        if (link.canonicalFilePath() == path)
            return link.absoluteFilePath();
    }
    return path;
}

QString cameraName(const QString &node)
{
    QFile file(u"/sys/class/video4linux/%1/name"_s.arg(node));
    const QString name = file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.read(256)).trimmed() : QString();
    return name.isEmpty() ? node : name;
}

}  // namespace

QList<CameraDevice> cameraDevices()
{
    QList<CameraDevice> cameras;
    for (const QString &node : QDir(u"/dev"_s).entryList({u"video*"_s}, QDir::System, QDir::Name)) {
        const QString path = u"/dev/"_s + node;
        if (givesPictures(path))
            cameras.append({lastingPath(path), cameraName(node)});
    }
    return cameras;
}

}  // namespace kestrel
