#include "OutputFile.h"

#include "TranscodeFailure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>
#include <filesystem>

using namespace Qt::StringLiterals;

namespace kestrel {

inline namespace marlin {

namespace {

constexpr const char *partMark = ".kestrel-part.";

/// `name` followed by `suffix`, cut between characters so that the whole, with `prefix`, is a file name.
QString fittingName(const QString &prefix, QString name, const QString &suffix)
{
    constexpr qsizetype maximumNameBytes = 255;
    while (!name.isEmpty() && QFile::encodeName(prefix + name + suffix).size() > maximumNameBytes)
        name.chop(name.size() > 1 && name.back().isLowSurrogate() ? 2 : 1);
    return prefix + name + suffix;
}

}  // namespace

OutputFile::OutputFile(const QString &folder, const QString &baseName, const QString &extension)
    : m_folder(folder),
      m_baseName(baseName),
      m_extension(extension)
{
    // The part keeps the extension: tools look at it.
    m_partPath = createNew(u"."_s, QLatin1StringView(partMark) + extension);
}

OutputFile::~OutputFile()
{
    if (!m_partPath.isEmpty())
        QFile::remove(m_partPath);
}

void OutputFile::removeStaleParts(const QString &folder)
{
    constexpr QDir::Filters hiddenFiles = QDir::Files | QDir::Hidden | QDir::NoSymLinks;
    const QFileInfoList parts =
        QDir(folder).entryInfoList({u".*"_s + QLatin1StringView(partMark) + u'*'}, hiddenFiles, QDir::Unsorted);
    for (const QFileInfo &part : parts) {
        if (part.ownerId() == geteuid())  // others share the folder
            QFile::remove(part.filePath());
    }
}

QString OutputFile::publish()
{
    if (!isValid())
        return {};
    // Taking the name with an empty file first works on every file system; hard links do not.
    const QString path = createNew({}, u'.' + m_extension);
    if (path.isNull())
        return {};
    std::error_code error;
    std::filesystem::rename(QFile::encodeName(m_partPath).toStdString(), QFile::encodeName(path).toStdString(), error);
    if (error) {
        m_reason = failureIn(QString::fromStdString(error.message())).sentence;
        QFile::remove(path);
        return {};
    }
    m_partPath.clear();
    return path;
}

/// Makes an empty file with the first name that is free and answers its path; null where none can be made.
QString OutputFile::createNew(const QString &prefix, const QString &suffix)
{
    constexpr int maximumNumber = 9999;
    int namesGivenBack = 0;
    for (int number = 0; number <= maximumNumber; ++number) {
        const QString numbering = number == 0 ? QString() : u" (%1)"_s.arg(number);
        QFile file(QDir(m_folder).filePath(fittingName(prefix, m_baseName, numbering + suffix)));
        if (file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
            return file.fileName();
        const QFileInfo taken(file.fileName());
        if (!taken.exists() && !taken.isSymLink()) {
            // Either the folder takes no file, or whoever had the name gave it back in between: then it is free now.
            constexpr int patience = 10;
            if (++namesGivenBack < patience) {
                --number;
                continue;
            }
            m_reason = QFileInfo(m_folder).isDir()
                           ? failureIn(file.errorString()).sentence
                           : u"The output directory does not exist. Please check the setting."_s;
            return {};
        }
    }
    m_reason = failureIn({}).sentence;
    return {};
}

}  // namespace marlin

}  // namespace kestrel
