#include "MediaFiles.h"

#include <QDirIterator>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr const char *mediaExtensions =
    "3g2 3gp aac ac3 aiff ape asf avi divx dv f4v flac flv m2t m2ts m2v m4a m4v mka mkv mod mov mp2 mp3 mp4 mpeg mpg "
    "mts mxf oga "
    "ogg ogm ogv opus qt rm rmvb tod ts vob wav webm wma wmv wtv";

QStringList mediaFilesBelow(const QString &folder)
{
    constexpr int maximumEntries = 20'000;  // what is walked on the main thread
    const QStringList extensions = QString::fromLatin1(mediaExtensions).split(u' ');
    QStringList files;
    QDirIterator entries(folder, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    for (int count = 0; entries.hasNext() && count < maximumEntries; ++count) {
        const QFileInfo entry(entries.next());
        if (entry.isFile() && extensions.contains(entry.suffix(), Qt::CaseInsensitive))
            files.append(entry.absoluteFilePath());
    }
    files.sort(Qt::CaseInsensitive);
    return files;
}

}  // namespace

QStringList mediaFiles(const QStringList &paths)
{
    QStringList files;
    for (const QString &path : paths) {
        const QFileInfo file(path);
        if (file.isDir())
            files += mediaFilesBelow(file.absoluteFilePath());
        else
            files.append(file.absoluteFilePath());
    }
    return files;
}

QStringList mediaNameFilters()
{
    QStringList filters = QString::fromLatin1(mediaExtensions).split(u' ');
    for (QString &filter : filters)
        filter.prepend("*."_L1);
    return filters;
}

}  // namespace kestrel
