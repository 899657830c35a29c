#include "WorkFolder.h"

#include <QDir>

namespace kestrel {

WorkFolder::WorkFolder()
    : m_folder(QDir::tempPath(), QStringLiteral("kestrel-work"), {}, OutputFile::Kind::PrivateFolder)
{
}

}  // namespace kestrel
