#include "MediaFiles.h"

#include "foundation/FileNames.h"

#include <QCollator>
#include <QLocale>

#include <algorithm>
#include <filesystem>
#include <system_error>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr const char *mediaExtensions =
    "3g2 3gp aac ac3 aif aiff amr ape apng asf au avi caf divx dts dv eac3 f4v flac flv gif m1v m2t m2ts m2v m4a m4b "
    "m4v "
    "mka mkv mod mov mp2 mp3 mp4 mpe mpeg mpg mts mxf nut oga ogg ogm ogv opus qt ra rm rmvb tod ts tta vob w64 wav "
    "webm "
    "wma wmv wtv wv y4m";

/// With the standard library, which hands names over as bytes: Qt leaves those out that are not UTF-8.
MediaFiles mediaFilesBelow(const QString &folder)
{
    namespace fs = std::filesystem;
    constexpr int maximumEntries = 500'000;
    const QStringList extensions = QString::fromLatin1(mediaExtensions).split(u' ');
    MediaFiles files;
    std::error_code error;
    fs::recursive_directory_iterator entries(foundation::encodedFileName(folder).toStdString(),
                                             fs::directory_options::skip_permission_denied, error);
    for (int count = 0; !error && entries != fs::end(entries); ++count) {
        files.isPart = count == maximumEntries;
        if (files.isPart)
            break;
        const QString path = foundation::decodedFileName(entries->path().native());
        const QString name = path.mid(path.lastIndexOf(u'/') + 1);
        std::error_code entryError;
        if (name.startsWith(u'.'))
            entries.disable_recursion_pending();
        else if (extensions.contains(name.section(u'.', 1).section(u'.', -1), Qt::CaseInsensitive) &&
                 entries->is_regular_file(entryError))
            files.paths.append(path);
        entries.increment(error);
    }
    sortNaturally(files.paths);
    return files;
}

}  // namespace

MediaFiles mediaFiles(const QStringList &paths)
{
    MediaFiles files;
    for (const QString &path : paths) {
        const QString absolute = foundation::absoluteFileName(path);
        if (foundation::fileFacts(absolute).kind == foundation::FileKind::Folder) {
            const MediaFiles below = mediaFilesBelow(absolute);
            files.paths += below.paths;
            files.isPart |= below.isPart;
        } else {
            files.paths.append(absolute);
        }
    }
    return files;
}

void sortNaturally(QStringList &paths)
{
    const QLocale locale;
    QCollator collator(locale.language() == QLocale::C ? QLocale(QLocale::English) : locale);  // "C" knows no numbers
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    struct Sortable {
        std::vector<QCollatorSortKey> keys;
        QString path;
    };
    std::vector<Sortable> items;
    for (const QString &path : std::as_const(paths)) {
        Sortable &item = items.emplace_back(Sortable{{}, path});
        for (const QString &part : path.split(u'/'))
            item.keys.push_back(collator.sortKey(part));
    }
    std::stable_sort(items.begin(), items.end(), [](const Sortable &left, const Sortable &right) {
        return std::lexicographical_compare(left.keys.begin(), left.keys.end(), right.keys.begin(), right.keys.end());
    });
    std::transform(items.begin(), items.end(), paths.begin(), [](const Sortable &item) { return item.path; });
}

QStringList mediaNameFilters()
{
    QStringList filters = QString::fromLatin1(mediaExtensions).split(u' ');
    for (QString &filter : filters)
        filter.prepend("*."_L1);
    return filters;
}

}  // namespace kestrel
