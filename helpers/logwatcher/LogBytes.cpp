#include "LogBytes.h"

#include "Localization.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace kestrel {

std::shared_ptr<const LogBytes> LogBytes::open(const QString &path, QString &error)
{
    error.clear();
    // Without waiting: a pipe of that name would keep the window from appearing.
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) {
        if (errno != ENOENT && errno != ENOTDIR)
            error = QString::fromLocal8Bit(std::strerror(errno));
        return nullptr;
    }
    std::shared_ptr<const LogBytes> bytes(new LogBytes(descriptor));
    struct stat status = {};
    if (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode))
        return bytes;
    error = tarnwell::AppLocalizedString(u"This is no text file"_s);
    return nullptr;
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
