#include "DesktopFolderPanel.h"

#include "tarnwell/Localization.h"

#include <QFileDialog>

using namespace Qt::StringLiterals;

namespace kestrel::tarnwell {

QString DesktopFolderPanel::chooseFolder(QWidget *parent, const QString &startFolder)
{
    // Left to itself, the panel opens a folder that is not there in the working directory.
    const QString start = QFileInfo(startFolder).isDir() ? startFolder : QDir::homePath();
    const QString path = QFileDialog::getExistingDirectory(parent, AppLocalizedString(u"Choose a Folder"_s), start);
    return path.isEmpty() ? QString() : path;
}

}  // namespace kestrel::tarnwell
