#pragma once

#include "tarnwell/Folders.h"

namespace kestrel::tarnwell {

/// The desktop's own panel, for folders only.
class DesktopFolderPanel : public FolderPanel {
public:
    QString chooseFolder(QWidget *parent, const QString &startFolder) override;
};

}  // namespace kestrel::tarnwell
