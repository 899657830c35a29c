#include "LogBytes.h"

#include "foundation/RegularFile.h"
#include "tarnwell/Localization.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

/// Why the last file could not be opened; empty where there is just no such file.
QString lastError()
{
    if (errno == EINVAL)
        return tarnwell::AppLocalizedString(u"This is no text file"_s);
    return errno == ENOENT || errno == ENOTDIR ? QString() : QString::fromLocal8Bit(std::strerror(errno));
}

}  // namespace

std::shared_ptr<const LogBytes> LogBytes::open(const QString &path, QString &error)
{
    const int descriptor = foundation::openRegularFile(path);
    error = descriptor < 0 ? lastError() : QString();
    return descriptor < 0 ? nullptr : std::shared_ptr<const LogBytes>(new LogBytes(descriptor));
}

LogBytes::~LogBytes()
{
    ::close(m_descriptor);
}

qint64 LogBytes::size() const
{
    struct stat status = {};
    return ::fstat(m_descriptor, &status) == 0 ? qint64(status.st_size) : 0;
}

bool LogBytes::isNamed(const QString &path) const
{
    struct stat mine = {};
    struct stat named = {};
    return ::fstat(m_descriptor, &mine) == 0 && ::stat(QFile::encodeName(path).constData(), &named) == 0 &&
           mine.st_dev == named.st_dev && mine.st_ino == named.st_ino;
}

QByteArray LogBytes::read(qint64 offset, qint64 length) const
{
    QByteArray result(std::max<qint64>(length, 0), Qt::Uninitialized);
    qint64 filled = 0;
    while (filled < result.size()) {
        const ssize_t count =
            ::pread(m_descriptor, result.data() + filled, size_t(result.size() - filled), off_t(offset + filled));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            break;
        filled += count;
    }
    result.truncate(filled);
    return result;
}

}  // namespace kestrel
