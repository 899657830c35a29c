#include "ToolPath.h"

#include "foundation/FileNames.h"

#include <QDir>
#include <QFile>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

/// Some tools go by the ending.
QString plainEnding(const QString &path)
{
    const QString ending = path.mid(path.lastIndexOf(u'/') + 1).section(u'.', 1).section(u'.', -1);
    const bool isPlain = std::all_of(ending.begin(), ending.end(), [](QChar character) {
        return character.unicode() < 0x80 && character.isLetterOrNumber();
    });
    return isPlain && !ending.isEmpty() ? u'.' + ending : QString();
}

}  // namespace

ToolPath::ToolPath(const QString &path)
{
    if (foundation::isPlainFileName(path)) {
        m_path = path;
        return;
    }
    m_folder = std::make_unique<WorkFolder>();
    const QString link = m_folder->filePath("source"_L1 + plainEnding(path));
    const QByteArray target = foundation::encodedFileName(path);
    if (m_folder->isValid() && symlink(target.constData(), QFile::encodeName(link).constData()) == 0)
        m_path = link;
}

}  // namespace kestrel
