#include "RegularFile.h"

#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kestrel::foundation {

int openRegularFile(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    struct stat status = {};
    if (::stat(name.constData(), &status) != 0)
        return -1;
    // It may be another by the time that it is opened: without waiting for the writer of a pipe.
    const int descriptor =
        S_ISREG(status.st_mode) ? ::open(name.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY) : -1;
    if (S_ISREG(status.st_mode) && (descriptor < 0 || (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode))))
        return descriptor;
    if (descriptor >= 0)
        ::close(descriptor);
    errno = EINVAL;
    return -1;
}

}  // namespace kestrel::foundation
