#include "Folders.h"

#include "Alerts.h"
#include "Installed.h"
#include "Localization.h"
#include "Log.h"
#include "WebPages.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

using namespace Qt::StringLiterals;

namespace kestrel::tarnwell {

namespace {

/// Permissions alone do not tell: a read-only or full disk, a network folder and an administrator's rights each differ
/// from them.
bool canMakeFileIn(const QString &folder)
{
    if (!QFileInfo(folder).isDir())
        return false;
    QTemporaryFile file(folder + u"/.kestrel-XXXXXX"_s);
    return file.open() && file.write("\n") == 1 && file.flush() && file.remove();
}

}  // namespace

void openFolder(const QString &path)
{
    // What is stored may be of any length; the alert has to stay on the screen.
    constexpr qsizetype shownCharacters = 500;
    if (OpenDirectory(path))
        return;
    runAlert({.message = AppLocalizedString(u"The folder could not be opened."_s),
              .defaultButton = AppLocalizedString(u"OK"_s),
              .alternateButton = {},
              .informativeText = path.left(shownCharacters).simplified(),
              .style = AlertStyle::Warning});
}

QString chooseFolder(QWidget *parent, const QString &startFolder)
{
    FolderPanel *panel = Installed<FolderPanel>::current();
    return panel ? panel->chooseFolder(parent, startFolder) : QString();
}

bool checkFolderWritable(const QString &path)
{
    if (canMakeFileIn(path))
        return true;
    DNFootLog(u"Refused the folder \"%1\": no file can be made in it"_s, path);
    runAlert({.message = AppLocalizedString(u"This folder cannot be written to."_s),
              .defaultButton = AppLocalizedString(u"OK"_s),
              .alternateButton = {},
              .informativeText = AppLocalizedString(u"Choose another one, or allow yourself to write to it: %1"_s)
                                     .arg(QDir::toNativeSeparators(path)),
              .style = AlertStyle::Warning});
    return false;
}

}  // namespace kestrel::tarnwell
