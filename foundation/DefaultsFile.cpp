#include "DefaultsFile.h"

#include "PropertyList.h"

#include <QDateTime>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QThread>

#include <cerrno>
#include <chrono>

#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kestrel::foundation {

namespace {

constexpr std::chrono::milliseconds lockPollInterval = 5ms;
/// The age from which a lock whose owner cannot be told may be taken over. Short, because a running owner keeps it all
/// the same: it holds the lock file itself locked.
constexpr std::chrono::milliseconds staleLockAge = 1s;
constexpr int maxLinks = 32;

/// The file that `path` leads to, which need not exist. Links in a circle end at one of them.
QString resolvedPath(QString path)
{
    for (int link = 0; link < maxLinks && QFileInfo(path).isSymLink(); ++link)
        path = QFileInfo(path).symLinkTarget();
    return path;
}

bool makePrivateFolder(const QString &path)
{
    if (QFileInfo(path).isDir())
        return true;
    const QString parent = QFileInfo(path).path();
    if (parent == path || !makePrivateFolder(parent))
        return false;
    return QDir().mkdir(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner) || QFileInfo(path).isDir();
}

/// False where the disk refuses the data (full, broken), which some file systems tell only now; true where the file
/// system knows no such request.
bool syncToDisk(int descriptor)
{
    return ::fsync(descriptor) == 0 || errno == EINVAL || errno == ENOTSUP;
}

/// Makes a replacement in `folder` outlast a power failure. Nothing can be undone any more where it fails, hence no
/// result.
void syncFolder(const QString &folder)
{
    const int descriptor = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    syncToDisk(descriptor);
    ::close(descriptor);
}

}  // namespace

DefaultsFile::DefaultsFile(const QString &path) : m_path(resolvedPath(path)), m_lock(m_path + ".lock"_L1)
{
    m_lock.setStaleLockTime(int(staleLockAge.count()));
}

bool DefaultsFile::lock(std::chrono::milliseconds patience)
{
    if (!makePrivateFolder(QFileInfo(m_path).path()))
        return fail(u"its folder cannot be made"_s);
    // QLockFile's own waiting doubles its pauses from 100 ms on; a save takes a few.
    const QDeadlineTimer deadline(patience);
    while (!m_lock.tryLock(0)) {
        if (m_lock.error() != QLockFile::LockFailedError)
            return fail(u"its folder takes no lock file"_s);
        if (deadline.hasExpired())
            return fail(u"another process holds its lock"_s);
        QThread::msleep(lockPollInterval.count());
    }
    return true;
}

DefaultsFile::State DefaultsFile::read()
{
    const QFileInfo info(m_path);
    if (!info.exists() && !info.isSymLink())
        return found(State::Missing);
    if (!info.isFile())  // opening a pipe would wait for a writer
        return found(State::Unavailable, u"not a file"_s);
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly))
        return found(State::Unavailable, file.errorString());
    const PropertyListLimits limits;
    const QByteArray bytes = file.read(limits.bytes + 1);
    if (file.error() != QFile::NoError)
        return found(State::Unavailable, file.errorString());
    const PropertyListResult list = readPropertyList(bytes, limits);
    if (!list.value)
        return found(State::Damaged, list.error.toString());
    if (list.value->typeId() != QMetaType::QVariantMap)
        return found(State::Damaged, u"not a dictionary"_s);
    found(State::Readable);
    m_values = list.value->toMap();
    return m_state;
}

DefaultsFile::State DefaultsFile::setAside()
{
    const QString base = m_path + ".corrupt-"_L1 + QDateTime::currentDateTimeUtc().toString(u"yyyyMMdd'T'HHmmss'Z'"_s);
    QString name = base;
    for (int copy = 2; QFileInfo::exists(name) || QFileInfo(name).isSymLink(); ++copy)
        name = base + u'-' + QString::number(copy);
    QFile file(m_path);
    if (!file.rename(name))
        return found(State::Unavailable, m_error + ", and it cannot be moved: "_L1 + file.errorString());
    qWarning("Defaults: \"%ls\" is damaged (%ls) and was moved to \"%ls\"", qUtf16Printable(m_path),
             qUtf16Printable(m_error), qUtf16Printable(name));
    return found(State::Missing);
}

bool DefaultsFile::replace(const QVariantMap &values)
{
    const QByteArray bytes = writePropertyList(values, PropertyListFormat::Xml);
    // Together they may pass a limit that each value keeps; the next start would set such a file aside as damaged.
    if (!readPropertyList(bytes).value)
        return fail(u"the values are too many or too large"_s);
    QSaveFile file(m_path);
    if (!file.open(QIODevice::WriteOnly))
        return fail(file.errorString());
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);  // not every file system has them
    if (file.write(bytes) != bytes.size() || !file.flush())
        return fail(file.errorString());
    if (!syncToDisk(file.handle()))  // QSaveFile itself does not look at the result
        return fail(u"the disk refused it"_s);
    if (!file.commit())
        return fail(file.errorString());
    syncFolder(QFileInfo(m_path).path());
    return true;
}

DefaultsFile::State DefaultsFile::found(State state, const QString &error)
{
    m_state = state;
    m_values.clear();
    m_error = error;
    return state;
}

bool DefaultsFile::fail(const QString &error)
{
    m_error = error;
    return false;
}

}  // namespace kestrel::foundation
