#pragma once

#include <QString>

class QWidget;

namespace kestrel::tarnwell {

/// Lets the user choose a folder. Install one with `Installed<FolderPanel>`.
class FolderPanel {
public:
    virtual ~FolderPanel() = default;
    /// Runs modally for `parent`'s window and opens in `startFolder` if that is there. Null where the user cancels.
    virtual QString chooseFolder(QWidget *parent, const QString &startFolder) = 0;
};

/// Asks through the installed panel; null without one.
QString chooseFolder(QWidget *parent, const QString &startFolder);

/// Whether files can be made in a folder, found out by making a hidden one, which is removed at once. A refusal is
/// logged and told to the user in an alert.
bool checkFolderWritable(const QString &path);

/// Shows a folder in the user's file manager; an alert tells where that cannot be done.
void openFolder(const QString &path);

}  // namespace kestrel::tarnwell
