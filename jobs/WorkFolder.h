#pragma once

#include "OutputFile.h"

namespace kestrel {

/// A folder of this process alone, in the system's folder for temporary files, for what is needed while something runs.
/// It goes with the object; that of a killed process is swept like a part.
class WorkFolder {
public:
    WorkFolder();

    bool isValid() const { return m_folder.isValid(); }
    QString path() const { return m_folder.partPath(); }
    QString filePath(const QString &name) const { return path() + u'/' + name; }

private:
    OutputFile m_folder;
};

}  // namespace kestrel
