#pragma once

#include "jobs/WorkFolder.h"

#include <QString>

#include <memory>

namespace kestrel {

/// A path as tools can take it. Where it is not UTF-8 (foundation/FileNames.h) that is a link with a harmless name in a
/// private folder, which goes with the object; else it is the path itself.
class ToolPath {
public:
    explicit ToolPath(const QString &path);

    /// Null where no link could be made.
    QString path() const { return m_path; }
    /// As an argument: no name is taken for an option or an address then.
    QString argument() const { return QStringLiteral("file:") + m_path; }

private:
    std::unique_ptr<WorkFolder> m_folder;
    QString m_path;
};

}  // namespace kestrel
