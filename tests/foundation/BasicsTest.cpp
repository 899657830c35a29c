#include "foundation/LanguageTags.h"
#include "foundation/Queues.h"
#include "foundation/StandardFolders.h"
#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>
#include <QThread>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

TEST(QueuesTest, ABackgroundJobWaitsForTheMainThreadUntilTheApplicationsEnd)
{
    QThread *jobThread = nullptr, *mainThread = nullptr;
    queue::asyncGlobal([&] {
        const bool ran = queue::syncMain([&] { mainThread = QThread::currentThread(); });
        queue::asyncMain([&, ran, thread = QThread::currentThread()] { jobThread = ran ? thread : nullptr; });
    });
    EXPECT_TRUE(test::waitUntil([&] { return jobThread; }));
    EXPECT_TRUE(mainThread == qApp->thread() && jobThread != mainThread);
    QProcess process;
    process.start(QStringLiteral(KESTREL_TEST_HELPER), {u"end"_s});
    EXPECT_TRUE(process.waitForFinished(10'000) && process.exitCode() == 0);
}

TEST(LanguageTagsTest, MakesTagsOfLocaleNames)
{
    const QMap<QString, QString> tags = {{u"EN_gb.UTF-8"_s, u"en-GB"_s},      {u"de_AT@euro"_s, u"de-AT"_s},
                                         {u"zh_TW"_s, u"zh-Hant-TW"_s},       {u"zh"_s, u"zh-Hans"_s},
                                         {u"sr_RS@latin"_s, u"sr-Latn-RS"_s}, {u"ru-Cyrl-RU"_s, u"ru-RU"_s},
                                         {u"C.UTF-8"_s, QString()},           {u"en_GB; rm"_s, QString()}};
    for (const QString &name : tags.keys())
        EXPECT_EQ(languageTag(name), tags[name]) << qPrintable(name);
    EXPECT_EQ(languageDisplayName(u"pt-BR"_s), u"português (Brasil)"_s);
    EXPECT_EQ(languageDisplayName(u"no code"_s), u"no code"_s);
}

TEST(StandardFoldersTest, OnlyWholePathsAreTaken)
{
    qputenv("XDG_DATA_HOME", "/elsewhere");
    qputenv("XDG_STATE_HOME", "elsewhere");
    EXPECT_EQ(dataDirectory(), u"/elsewhere");
    EXPECT_EQ(stateDirectory(), qEnvironmentVariable("HOME") + u"/.local/state"_s);
}

}  // namespace kestrel::foundation
