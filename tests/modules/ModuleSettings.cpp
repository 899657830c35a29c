#include "ModuleSettings.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace kestrel::test {

ModuleSettings::ModuleSettings(qint32 kind)
{
    QDir().mkpath(folder());
    QDir().mkpath(QFileInfo(toolPath({})).path());
    for (const QString &tool : {u"ffmpeg"_s, u"ffprobe"_s, u"ffplay"_s, u"mediainfo"_s})
        QFile::link(QStandardPaths::findExecutable(tool), toolPath(tool));
    m_bundle = std::make_unique<foundation::Bundle>(path(u"Test.app"_s));
    m_installedBundle = std::make_unique<tarnwell::Installed<const foundation::Bundle>>(*m_bundle);
    m_defaults = std::make_unique<foundation::UserDefaults>(path(u"defaults.plist"_s));
    m_setting = std::make_unique<JKestrelSetting>(*m_defaults);
    m_setting->setIntelQSV(false);
    m_dispatcher = std::make_shared<JKestrelSettingDispatcher>(kind, *m_setting);
    m_dispatcher->setVideoDir(folder());
}

QStringList ModuleSettings::outputs() const
{
    return QDir(folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

void ModuleSettings::replaceTranscoder(const QByteArray &text)
{
    QFile::remove(toolPath(u"ffmpeg"_s));
    writeFile(toolPath(u"ffmpeg"_s), "#!/bin/sh\nfor output; do :; done\noutput=${output#file:}\n" + text + '\n');
    QFile::setPermissions(toolPath(u"ffmpeg"_s), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void ModuleSettings::makeClip(const QString &path, const QString &arguments)
{
    const QStringList all = u"-nostdin -loglevel error -y "_s.append(arguments).split(u' ', Qt::SkipEmptyParts);
    ASSERT_EQ(QProcess::execute(u"ffmpeg"_s, all + QStringList{"file:"_L1 + path}), 0);
}

QString ModuleSettings::toolPath(const QString &name) const
{
    return path(u"Test.app/Contents/Resources/transcoder.bundle/Contents/Resources/"_s + name);
}

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

}  // namespace kestrel::test
