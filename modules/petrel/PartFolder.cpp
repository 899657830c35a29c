#include "PartFolder.h"

#include "EngineCommand.h"

#include "jobs/SystemFailure.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

constexpr int maximumAtOnce = 100;  ///< downloads of one plan into one folder
constexpr qint64 maximumWords = 100'000;
const QString ownerName = u"owner"_s;
const QString companionsName = u"companions"_s;
const QString wholesName = u"wholes"_s;

QString pathOf(const QString &folder, const DownloadPlan &plan, int number)
{
    const QString numbering = number == 0 ? QString() : u'-' + QString::number(number);
    return folder + "/.kestrel-download-"_L1 + QString::fromLatin1(plan.identity()) + numbering;
}

/// Holds the folder's lock until it is closed, by the end of the process at the latest; -1 where somebody has it or it
/// cannot be had, which `error` tells.
int lockOf(const QString &folder, int &error)
{
    const QByteArray path = QFile::encodeName(folder + u'/' + ownerName);
    const int file = open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    error = file < 0 ? errno : 0;
    if (file >= 0 && flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        close(file);
        return -1;
    }
    return file;  // also where the file system knows no locks
}

Sentence reasonFor(int error, const QString &folder)
{
    if (!QFileInfo(folder).isDir())
        return "The output directory does not exist. Please check the setting."_key;
    const Sentence sentence = systemFailure(error).sentence;
    return sentence.isEmpty() ? Sentence("The output could not be written."_key) : sentence;
}

}  // namespace

PartFolder::Taken PartFolder::take(const QString &folder, const DownloadPlan &plan)
{
    int error = 0;
    for (int number = 0; number < maximumAtOnce; ++number) {
        const QString path = pathOf(folder, plan, number);
        if (mkdir(QFile::encodeName(path).constData(), 0700) != 0 && errno != EEXIST)
            return foundation::Failure{reasonFor(errno, folder)};
        const int lock = lockOf(path, error);
        if (lock < 0 && error != 0)
            return foundation::Failure{reasonFor(error, folder)};
        if (lock < 0)
            continue;
        const QByteArray owner = plan.address.toUtf8() + '\n';
        if (ftruncate(lock, 0) != 0 || write(lock, owner.constData(), size_t(owner.size())) < 0) {
            error = errno;
            close(lock);
            return foundation::Failure{reasonFor(error, folder)};
        }
        return std::unique_ptr<PartFolder>(new PartFolder(path, lock));
    }
    return foundation::Failure{Sentence("The output could not be written."_key)};
}

void PartFolder::removeLeft(const QString &folder, const DownloadPlan &plan)
{
    for (int number = 0; number < maximumAtOnce; ++number) {
        const QString path = pathOf(folder, plan, number);
        if (!QFileInfo(path).isDir())
            return;
        int error = 0;
        const int lock = lockOf(path, error);
        if (lock < 0)
            continue;
        QDir(path).removeRecursively();
        close(lock);
    }
}

bool PartFolder::moveLeft(const QString &folder, const DownloadPlan &plan, const QString &to)
{
    int error = 0;
    const QString path = pathOf(folder, plan, 0);
    if (!QFileInfo(path).isDir())
        return true;
    const int lock = lockOf(path, error);
    if (lock < 0)
        return false;
    const bool isMoved =
        std::rename(QFile::encodeName(path).constData(), QFile::encodeName(pathOf(to, plan, 0)).constData()) == 0;
    close(lock);
    return isMoved;
}

bool PartFolder::hasLeftFilm(const QString &folder, const DownloadPlan &plan)
{
    return QFileInfo(pathOf(folder, plan, 0) + u'/' + companionsName).isFile();
}

PartFolder::PartFolder(QString path, int lock) : m_path(std::move(path)), m_lock(lock)
{
    if (QFile file(m_path + u'/' + wholesName); file.open(QFile::ReadOnly))
        m_wholes = QJsonDocument::fromJson(file.read(maximumWords)).object();
}

PartFolder::~PartFolder()
{
    close(m_lock);
}

qint64 PartFolder::bytes() const
{
    qint64 bytes = 0;
    for (QDirIterator files(m_path, QDir::Files | QDir::Hidden); files.hasNext();) {
        files.next();
        if (files.fileInfo().fileName().startsWith(downloadedName))
            bytes += files.fileInfo().size();
    }
    return bytes;
}

QString PartFolder::downloaded() const
{
    static const QStringList unfinished{u"part"_s, u"ytdl"_s, u"temp"_s, u"vtt"_s, u"srt"_s, u"json"_s};
    QFileInfo largest;
    for (const QFileInfo &file : QDir(m_path).entryInfoList(QDir::Files | QDir::NoSymLinks)) {
        const QStringList name = file.fileName().split(u'.');
        const bool isWhole = name.size() == 2 && name.first() == downloadedName && !unfinished.contains(name.last());
        if (isWhole && (largest.filePath().isEmpty() || file.size() > largest.size()))
            largest = file;
    }
    return largest.filePath().isEmpty() ? QString() : largest.absoluteFilePath();
}

std::optional<QString> PartFolder::missingCompanions() const
{
    QFile file(m_path + u'/' + companionsName);
    if (downloaded().isNull() || !file.open(QFile::ReadOnly))
        return std::nullopt;
    return QString::fromUtf8(file.read(maximumWords));
}

/// Where it cannot be written, a run after this one lets the engine look again.
void PartFolder::setMissingCompanions(const QString &words)
{
    QSaveFile file(m_path + u'/' + companionsName);
    if (file.open(QFile::WriteOnly) && file.write(words.toUtf8()) >= 0)
        file.commit();
}

bool PartFolder::isPartOf(const QString &name, const QString &whole)
{
    QJsonValueRef known = m_wholes[name];
    if (known.isString())
        return known.toString() == whole;
    known = whole;
    QSaveFile file(m_path + u'/' + wholesName);
    if (file.open(QFile::WriteOnly) && file.write(QJsonDocument(m_wholes).toJson()) >= 0)
        file.commit();
    return true;
}

void PartFolder::clear()
{
    m_wholes = {};
    for (const QFileInfo &file : QDir(m_path).entryInfoList(QDir::Files | QDir::Hidden | QDir::System)) {
        if (file.fileName() != ownerName)
            QFile::remove(file.absoluteFilePath());
    }
}

void PartFolder::remove()
{
    QDir(m_path).removeRecursively();
}

}  // namespace kestrel
