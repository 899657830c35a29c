#include "ProductFolder.h"

#include "foundation/PropertyList.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace kestrel::test {

ProductFolder::ProductFolder(const QVariantMap &information)
{
    QFile file(contentsPath(u"Info.plist"_s));
    if (file.open(QIODevice::WriteOnly))
        file.write(foundation::writePropertyList(information, foundation::PropertyListFormat::Xml));
    file.close();
    m_bundle = std::make_unique<const foundation::Bundle>(m_folder.path());
    m_installed = std::make_unique<tarnwell::Installed<const foundation::Bundle>>(*m_bundle);
}

QString ProductFolder::contentsPath(const QString &relativePath) const
{
    const QString path = m_folder.filePath(u"Contents/"_s + relativePath);
    QDir().mkpath(QFileInfo(path).path());
    return path;
}

QVariantMap productInformation(const QVariantMap &changes)
{
    QVariantMap information = {{u"CFBundleIdentifier"_s, u"com.tarnwell.kestrel"_s},
                               {u"CFBundleName"_s, u"Kestrel Converter 4K"_s},
                               {u"CFBundleExecutable"_s, u"Kestrel"_s},
                               {u"CFBundleShortVersionString"_s, u"6.2.1"_s},
                               {u"TWRedirectLink"_s, u"https://www.tarnwell.example/go.php"_s},
                               {u"TWLaunchLink"_s, u"https://www.tarnwell.example/welcome/?a=1"_s},
                               {u"TWHelpLink"_s, u"https://www.tarnwell.example/help/"_s},
                               {u"TWReadableHomeLink"_s, u"www.tarnwell.example"_s}};
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        if (change.value().isNull())
            information.remove(change.key());
        else
            information.insert(change.key(), change.value());
    }
    return information;
}

}  // namespace kestrel::test
