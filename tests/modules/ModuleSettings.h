#pragma once

#include "foundation/Bundle.h"
#include "foundation/UserDefaults.h"
#include "modules/Module.h"
#include "settings/JKestrelSetting.h"
#include "settings/JKestrelSettingDispatcher.h"
#include "tarnwell/Installed.h"

#include <QTemporaryDir>

namespace kestrel::test {

/// Settings of their own over a product bundle of their own, whose tools are the system's, and an output folder that
/// exists.
class ModuleSettings {
public:
    explicit ModuleSettings(qint32 kind = ModuleSettingVideo);

    JKestrelSetting &setting() { return *m_setting; }
    JKestrelSettingDispatcher &dispatcher() { return *m_dispatcher; }
    ModuleConfigure configure() const { return {{moduleSettingKey.toString(), m_dispatcher}}; }
    QString folder() const { return m_folder.filePath(QStringLiteral("out")); }
    QString path(const QString &name) const { return m_folder.filePath(name); }
    /// Everything in the output folder, hidden files included, by name.
    QStringList outputs() const;

    /// Makes a shell script of `text` the bundle's transcoder; "$output" in it is the path that it is to write.
    void replaceTranscoder(const QByteArray &text);
    /// Writes a clip with the system's transcoder.
    void makeClip(const QString &path, const QString &arguments);

private:
    QString toolPath(const QString &name) const;

    QTemporaryDir m_folder;
    std::unique_ptr<foundation::Bundle> m_bundle;
    std::unique_ptr<tarnwell::Installed<const foundation::Bundle>> m_installedBundle;
    std::unique_ptr<foundation::UserDefaults> m_defaults;
    std::unique_ptr<JKestrelSetting> m_setting;
    std::shared_ptr<JKestrelSettingDispatcher> m_dispatcher;
};

void writeFile(const QString &path, const QByteArray &content);

inline constexpr const char *shortVideo = "-f lavfi -i testsrc=size=65x49:rate=10:duration=2";
inline constexpr const char *shortTone = "-f lavfi -i sine=duration=2";

}  // namespace kestrel::test
