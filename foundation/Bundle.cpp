#include "Bundle.h"

#include "PropertyList.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

/// The bundle around `Name.app/Contents/MacOS/Name`, or one of its helpers, or an empty path.
QString bundlePathOf(const QString &executable)
{
    const QString folder = QFileInfo(executable).path();
    for (const auto end : {"/Contents/MacOS"_L1, "/Contents/Helpers"_L1}) {
        if (folder.endsWith(end))
            return folder.chopped(end.size());
    }
    return {};
}

}  // namespace

Bundle::Bundle(const QString &path) : m_path(path)
{
    QFile file(contentsPath(u"Info.plist"_s));
    if (!m_path.isEmpty() && file.open(QIODevice::ReadOnly))
        m_information = readPropertyList(file.readAll()).value.value_or(QVariant()).toMap();
}

const Bundle &Bundle::main()
{
    static const Bundle bundle(bundlePathOf(executablePath()));
    return bundle;
}

QString Bundle::contentsPath(const QString &relativePath) const
{
    return m_path + "/Contents/"_L1 + relativePath;
}

QString Bundle::resource(const QString &relativePath) const
{
    return resourcePath() + u'/' + relativePath;
}

QString Bundle::executable() const
{
    return contentsPath(u"MacOS/"_s + infoString(u"CFBundleExecutable"_s));
}

QString Bundle::infoString(const QString &key) const
{
    const QVariant value = m_information.value(key);
    return value.typeId() == QMetaType::QString ? value.toString() : QString();
}

}  // namespace kestrel::foundation
