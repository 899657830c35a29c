#pragma once

#include <QString>
#include <QVariantMap>

namespace kestrel::foundation {

/// A folder of the form `Name.app/Contents/…`: the running program's own, or any other by path. Reading it needs no
/// application object.
class Bundle {
public:
    explicit Bundle(const QString &path);

    /// The bundle that holds the running executable; a bundle with an empty path and no information where there is
    /// none.
    static const Bundle &main();

    QString path() const { return m_path; }
    QString contentsPath(const QString &relativePath) const;  ///< a path below "Contents"
    QString resourcePath() const { return contentsPath(QStringLiteral("Resources")); }
    QString resource(const QString &relativePath) const;  ///< a path below the resource folder

    QString executable() const;  ///< path of the bundle's program

    QString identifier() const { return infoString(QStringLiteral("CFBundleIdentifier")); }
    QString infoString(const QString &key) const;  ///< an entry of Info.plist; null where missing or no string

private:
    QString m_path;
    QVariantMap m_information;
};

/// Absolute path of the running executable with links resolved.
QString executablePath();

}  // namespace kestrel::foundation
