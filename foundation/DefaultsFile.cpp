#include "DefaultsFile.h"

#include "PropertyList.h"
#include "StandardFolders.h"

#include <QDateTime>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <QThread>

#include <cerrno>
#include <chrono>
#include <cstdio>

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
constexpr auto replacementSuffix = ".saving-"_L1;

/// The file that `path` leads to, which need not exist. Links in a circle end at one of them.
QString resolvedPath(QString path)
{
    for (int link = 0; link < maxLinks && QFileInfo(path).isSymLink(); ++link)
        path = QFileInfo(path).symLinkTarget();
    return path;
}

/// Removes what processes left that were killed while they replaced the file. Nobody else replaces it meanwhile.
void removeLeftReplacements(const QString &path)
{
    const QFileInfo info(path);
    const QDir folder = info.dir();
    const QString names = info.fileName() + replacementSuffix + u'*';
    for (const QString &name : folder.entryList({names}, QDir::Files | QDir::NoSymLinks))
        QFile::remove(folder.filePath(name));
}

/// A free name beside the file, which tells the time.
QString nameAside(const QString &path)
{
    const QString base = path + ".corrupt-"_L1 + QDateTime::currentDateTimeUtc().toString(u"yyyyMMdd'T'HHmmss'Z'"_s);
    QString name = base;
    for (int copy = 2; QFileInfo::exists(name) || QFileInfo(name).isSymLink(); ++copy)
        name = base + u'-' + QString::number(copy);
    return name;
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
    // What the XML form cannot hold would stand in the way of every later save.
    if (list.format == PropertyListFormat::Binary &&
        !readPropertyList(writePropertyList(*list.value, PropertyListFormat::Xml)).value)
        return found(State::Damaged, u"it holds what cannot be written again"_s);
    found(State::Readable);
    m_values = list.value->toMap();
    return m_state;
}

DefaultsFile::State DefaultsFile::setAside()
{
    const QString name = nameAside(m_path);
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
    removeLeftReplacements(m_path);
    QTemporaryFile file(m_path + replacementSuffix + "XXXXXX"_L1);  // which its owner alone can read
    if (!file.open() || file.write(bytes) != bytes.size() || !file.flush())
        return fail(file.errorString());
    if (!syncToDisk(file.handle()))
        return fail(u"the disk refused it"_s);
    if (std::rename(QFile::encodeName(file.fileName()).constData(), QFile::encodeName(m_path).constData()) != 0)
        return fail(qt_error_string());
    file.setAutoRemove(false);
    syncFolder(QFileInfo(m_path).path());
    return true;
}

bool DefaultsFile::keepAside(const QByteArray &bytes, const QString &key)
{
    const QString name = nameAside(m_path + u'.' + key);
    QFile file(name);
    const bool isKept = file.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner) &&
                        file.write(bytes) == bytes.size() && file.flush();
    if (!isKept)
        return fail(file.errorString());
    qWarning("Defaults: what could not be read of \"%ls\" was kept as \"%ls\"", qUtf16Printable(m_path),
             qUtf16Printable(name));
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
