#include "OutputFile.h"

#include "PartOwner.h"
#include "PartPlacing.h"
#include "PortableNames.h"
#include "SystemFailure.h"
#include "foundation/FileNames.h"
#include "foundation/StandardFolders.h"
#include "tarnwell/Log.h"
#include "tarnwell/ProductInformation.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>
#include <atomic>
#include <cerrno>
#include <climits>
#include <utility>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

constexpr QLatin1StringView partMark(".kestrel-part-");
// Most file systems take 255; the encrypting ones are the narrowest.
constexpr qsizetype nameBytes[] = {255, 143};

/// Where the parts of all processes are written down: links that point to them, made in one step and never half.
QString registrationFolder()
{
    return foundation::dataDirectory() + u'/' + tarnwell::GetApplicationName() + u"/parts"_s;
}

/// What stands in a part's name, after the mark, and is the name of its registration.
QString newPartId()
{
    static std::atomic<int> count = 0;
    return PartOwner::self().tag() + u'-' + QString::number(++count);
}

std::optional<PartOwner> ownerOf(const QString &partId)
{
    return PartOwner::fromTag(partId.left(partId.lastIndexOf(u'-')));
}

QString suffixOf(const QString &extension)
{
    return extension.isEmpty() ? QString() : u'.' + extension;
}

/// As it stands, also where it has no end.
QString targetOf(const QString &link)
{
    char target[PATH_MAX];
    const ssize_t length = readlink(QFile::encodeName(link).constData(), target, sizeof target);
    return length > 0 ? foundation::decodedFileName({target, length}) : QString();
}

Sentence sentenceFor(int error, const QString &folder)
{
    if (foundation::fileFacts(folder).kind != foundation::FileKind::Folder)
        return "The output directory does not exist. Please check the setting."_key;
    const Sentence sentence = systemFailure(error).sentence;
    return sentence.isEmpty() ? Sentence("The output could not be written."_key) : sentence;
}

/// Whether `path` names a part of that very registration.
bool isPartOf(const QString &path, const QString &partId)
{
    const QString name = QFileInfo(path).fileName();
    const qsizetype mark = name.lastIndexOf(partMark);
    if (mark < 1 || !name.startsWith(u'.') || !QDir::isAbsolutePath(path))
        return false;
    const QString behind = name.mid(mark + partMark.size());
    return behind == partId || behind.startsWith(partId + u'.');
}

void sweep(const QString &registration, const QString &partId)
{
    const QString path = targetOf(registration);
    if (isPartOf(path, partId)) {
        // A disk that is away may come back with the part.
        if (foundation::fileFacts(path.left(path.lastIndexOf(u'/') + 1)).kind != foundation::FileKind::Folder)
            return;
        if (!placing::removePart(path))
            return;
        tarnwell::DNFootLog(u"Removed what a run that ended had begun: %1"_s, path);
    }
    QFile::remove(registration);
}

}  // namespace

OutputFile::OutputFile(const QString &folder, const QString &baseName, const QString &extension, Kind kind)
    : m_folder(QDir::cleanPath(folder)),
      m_baseName(portableName(baseName)),
      m_extension(extension.isEmpty() ? QString() : portableName(extension)),
      m_kind(kind),
      m_reason(makePart())
{
}

OutputFile::~OutputFile()
{
    if (m_registration.isEmpty())
        return;
    // Where its disk is away, a start after this one finds the part.
    const bool isFolderThere = foundation::fileFacts(m_folder).kind == foundation::FileKind::Folder;
    if (placing::removePart(m_partPath) && isFolderThere)
        forget();
}

/// The reason where it cannot be made.
Sentence OutputFile::makePart()
{
    if (!QDir::isAbsolutePath(m_folder))
        return sentenceFor(ENOENT, {});
    const QString partId = newPartId();
    const QString registrations = registrationFolder();
    const QString registration = registrations + u'/' + partId;
    int error = 0;
    for (const qsizetype limit : nameBytes) {
        // The part keeps the extension at its end: tools look at it.
        const QString path =
            m_folder + u'/' + fittingName(u'.' + m_baseName, partMark + partId + suffixOf(m_extension), limit);
        // Written down before it is there, so that there is no moment in which it could be forgotten.
        foundation::makePrivateFolder(registrations);
        if (symlink(foundation::encodedFileName(path).constData(), QFile::encodeName(registration).constData()) != 0)
            tarnwell::DNFootLog(u"An output could not be written down; it stays where Kestrel is killed"_s);
        error = m_kind == Kind::PrivateFolder ? placing::makePrivateFolder(path)
                                              : placing::makeNew(path, m_kind == Kind::Folder);
        if (error == 0) {
            m_partPath = path;
            m_registration = registration;
            return {};
        }
        QFile::remove(registration);
        if (error != ENAMETOOLONG)
            break;
    }
    return sentenceFor(error, m_folder);
}

void OutputFile::forget()
{
    QFile::remove(std::exchange(m_registration, {}));
}

void OutputFile::keepPart()
{
    forget();
}

foundation::Result<QString, Sentence> OutputFile::publish()
{
    if (!isValid())
        return foundation::Failure{m_reason};
    constexpr int maximumNumber = 9999;
    int error = placing::syncTree(m_partPath);
    for (int number = 0; error == 0 && number <= maximumNumber; ++number) {
        const QString numbering = number == 0 ? QString() : u" (%1)"_s.arg(number);
        QString path;
        for (const qsizetype limit : nameBytes) {
            path = m_folder + u'/' + fittingName(m_baseName, numbering + suffixOf(m_extension), limit);
            error = placing::renameToNew(m_partPath, path, m_kind != Kind::File);
            if (error != ENAMETOOLONG)
                break;
        }
        if (error == 0) {
            placing::syncFolder(m_folder);
            m_partPath.clear();
            forget();
            return path;
        }
        if (error == EEXIST || error == ENOTEMPTY)
            error = 0;
    }
    return foundation::Failure{sentenceFor(error, m_folder)};
}

void OutputFile::sweepDeadOwners()
{
    const QDir folder(registrationFolder());
    // With System, or links that point to nothing are left out.
    constexpr QDir::Filters all = QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot;
    for (const QString &partId : folder.entryList(all, QDir::Unsorted)) {
        const std::optional<PartOwner> owner = ownerOf(partId);
        if (owner && owner->hasEnded())
            sweep(folder.filePath(partId), partId);
    }
}

}  // namespace kestrel
