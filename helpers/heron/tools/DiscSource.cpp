#include "DiscSource.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <dvdread/dvd_reader.h>
#include <dvdread/dvd_udf.h>

#include <fcntl.h>
#include <linux/cdrom.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <algorithm>
#include <cerrno>

using namespace Qt::StringLiterals;

namespace kestrel::disc {

namespace {

constexpr int maximumFilesInFolder = 2000;

void keepQuiet(void *, dvd_logger_level_t, const char *, va_list) {}

qint64 bytesOfDrive(int descriptor)
{
    quint64 bytes = 0;
    return ioctl(descriptor, BLKGETSIZE64, &bytes) == 0 ? static_cast<qint64>(bytes) : 0;
}

QDir filmFolder(const QString &path)
{
    const QDir folder(path);
    for (const QString &name : folder.entryList({u"VIDEO_TS"_s}, QDir::Dirs))
        return QDir(folder.filePath(name));
    return folder;
}

qint64 bytesOfFolder(const QString &path)
{
    qint64 bytes = 0;
    const QFileInfoList files =
        filmFolder(path).entryInfoList({u"*.VOB"_s, u"*.IFO"_s, u"*.BUP"_s}, QDir::Files, QDir::Unsorted);
    for (const QFileInfo &file : files.first(std::min<qsizetype>(files.size(), maximumFilesInFolder)))
        bytes += file.size();
    return bytes;
}

QString nameOfFolder(const QString &path)
{
    QDir folder(QFileInfo(path).absoluteFilePath());
    if (folder.dirName().compare(u"VIDEO_TS"_s, Qt::CaseInsensitive) == 0)
        folder.cdUp();
    return folder.dirName();
}

// Opened here first, so that the reason is known: the library has only one for everything.
foundation::Result<qint64, DiscError> sizeOf(const QByteArray &path, DiscSource::Kind &kind)
{
    const int descriptor = ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0)
        return foundation::Failure{sourceErrorOf(errno)};
    struct stat status = {};
    const bool isKnown = fstat(descriptor, &status) == 0;
    qint64 bytes = -1;
    if (isKnown && S_ISBLK(status.st_mode)) {
        kind = DiscSource::Kind::Drive;
        bytes = bytesOfDrive(descriptor);
    } else if (isKnown && S_ISREG(status.st_mode)) {
        kind = DiscSource::Kind::Image;
        bytes = status.st_size;
    } else if (isKnown && S_ISDIR(status.st_mode)) {
        kind = DiscSource::Kind::Folder;
        bytes = 0;
    }
    close(descriptor);
    if (bytes < 0)
        return foundation::Failure{DiscError::NotADisc};
    return bytes;
}

}  // namespace

void DiscSource::Close::operator()(dvd_reader_t *reader) const
{
    DVDClose(reader);
}

foundation::Result<DiscSource, DiscError> DiscSource::open(const QString &path)
{
    DiscSource source;
    source.m_path = path;
    const QByteArray encoded = QFile::encodeName(path);
    const auto size = sizeOf(encoded, source.m_kind);
    if (!size)
        return foundation::Failure{size.reason()};
    source.m_bytes = source.m_kind == Kind::Folder ? bytesOfFolder(path) : *size;
    static const dvd_logger_cb quiet{.pf_log = keepQuiet};
    source.m_reader.reset(DVDOpen2(nullptr, &quiet, encoded.constData()));
    if (!source.m_reader)
        return foundation::Failure{DiscError::NotADisc};
    return source;
}

QString DiscSource::volume() const
{
    if (m_kind == Kind::Folder)
        return nameOfFolder(m_path);
    char name[64] = {};
    if (DVDUDFVolumeInfo(reader(), name, sizeof name - 1, nullptr, 0) != 0 || !name[0])
        if (DVDISOVolumeInfo(reader(), name, sizeof name - 1, nullptr, 0) != 0)
            return {};
    return QString::fromLatin1(name, static_cast<qsizetype>(strnlen(name, sizeof name))).trimmed();
}

bool DiscSource::isCutOff(int titleSet) const
{
    if (m_kind != Kind::Image)
        return false;
    for (int part = 1; part <= 9; ++part) {
        const QByteArray name =
            QStringLiteral("/VIDEO_TS/VTS_%1_%2.VOB").arg(titleSet, 2, 10, QLatin1Char('0')).arg(part).toLatin1();
        quint32 size = 0;
        const quint32 first = UDFFindFile(reader(), name.constData(), &size);
        if (!first)
            return false;
        if (qint64(first) * sectorBytes + size > m_bytes)
            return true;
    }
    return false;
}

bool isSourceGone(int systemError, const QString &path)
{
    if (systemError != EIO)
        return sourceErrorOf(systemError) == DiscError::Missing;
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0)
        return sourceErrorOf(errno) == DiscError::Missing;
    const int status = ioctl(descriptor, CDROM_DRIVE_STATUS, CDSL_CURRENT);  // fails for what is no drive
    close(descriptor);
    return status == CDS_NO_DISC || status == CDS_TRAY_OPEN;
}

void FilmFile::Close::operator()(dvd_file_t *file) const
{
    DVDCloseFile(file);
}

foundation::Result<FilmFile, DiscError> FilmFile::open(const DiscSource &source, int titleSet)
{
    FilmFile film;
    film.m_path = source.path();
    film.m_file.reset(DVDOpenFile(source.reader(), titleSet, DVD_READ_TITLE_VOBS));
    if (!film.m_file)
        return foundation::Failure{DiscError::Read};
    film.m_sectors = std::max<qint64>(0, DVDFileSize(film.m_file.get()));
    return film;
}

int FilmFile::read(quint32 first, int count, uchar *into)
{
    m_isGone = false;
    if (first >= m_sectors)
        return 0;
    const qint64 wanted = std::min<qint64>(count, m_sectors - first);
    errno = 0;
    const ssize_t came = DVDReadBlocks(m_file.get(), static_cast<int>(first), static_cast<size_t>(wanted), into);
    m_isGone = came <= 0 && isSourceGone(errno, m_path);
    return came > 0 ? static_cast<int>(came) : 0;
}

}  // namespace kestrel::disc
