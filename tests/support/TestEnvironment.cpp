#include "TestEnvironment.h"

#include <QDir>
#include <QTest>

#include <ctime>

namespace kestrel::test {

TestEnvironment::TestEnvironment()
{
    const struct {
        const char *variable;
        const char *folder;
    } folders[] = {{"HOME", ""},
                   {"XDG_CONFIG_HOME", "/.config"},
                   {"XDG_DATA_HOME", "/.local/share"},
                   {"XDG_STATE_HOME", "/.local/state"},
                   {"XDG_CACHE_HOME", "/.cache"},
                   {"XDG_RUNTIME_DIR", "/run"}};
    for (const auto &[variable, folder] : folders) {
        const QString path = m_home.path() + QString::fromLatin1(folder);
        QDir().mkpath(path);
        qputenv(variable, path.toUtf8());
    }
    QFile::setPermissions(m_home.filePath(QStringLiteral("run")),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("TZ", "UTC");
    tzset();
    qputenv("LC_ALL", "C.UTF-8");
    for (const char *variable : {"LANGUAGE", "QT_SCALE_FACTOR", "QT_STYLE_OVERRIDE", "QT_QPA_PLATFORMTHEME"})
        qunsetenv(variable);
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

bool waitUntil(const std::function<bool()> &condition, int limitMs)
{
    return QTest::qWaitFor(condition, limitMs);
}

double processorMs()
{
    timespec time = {};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

}  // namespace kestrel::test
