#include "tarnwell/JAppleScriptHelper.h"

#include "tests/support/RecordingMailProgram.h"
#include "tests/support/TestDesktop.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace kestrel;
using namespace kestrel::tarnwell;

namespace {

TEST(JAppleScriptHelper, HandsEverythingOverWhole)
{
    const QTemporaryDir folder;
    const QString odd = folder.filePath(u"-a 'b\" %41%s\nü$(x).log"_s);
    QFile file(odd);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const struct {
        QString mail, subject;
        QStringList attachments;
        QString body;
        QStringList arguments;
    } rows[] = {
        {u"a@b.example"_s, u"K (1)"_s, {}, {}, {u"--subject"_s, u"K (1)"_s, u"a@b.example"_s}},
        {u"Ann Ö <a@b.example>"_s,
         u"-s \"%1'\n\\"_s,
         {folder.filePath(u"missing"_s), odd, folder.path()},
         u"--to x\n&y=%20"_s,
         {u"--subject"_s, u"-s \"%1'\n\\"_s, u"--attach"_s, odd, u"--body"_s, u"--to x\n&y=%20"_s,
          u"Ann Ö <a@b.example>"_s}},
        {u"--attach@b?c=d"_s, {}, {}, {}, {u"mailto:--attach@b%3Fc%3Dd"_s}},
        {u"mailto:a@b?attach=/x"_s, {}, {}, {}, {u"mailto:mailto%3Aa@b%3Fattach%3D%2Fx"_s}},
        {{}, {}, {}, {}, {}},
    };
    test::TestDesktop desktop;
    test::RecordingMailProgram program;
    for (const auto &[mail, subject, attachments, body, arguments] : rows) {
        EXPECT_TRUE(JAppleScriptHelper::sendEmailWithMail(mail, subject, attachments, body));
        EXPECT_EQ(program.arguments(), QStringList(u"--utf8"_s) + arguments) << qPrintable(mail);
    }
    EXPECT_TRUE(desktop.alerts.isEmpty());
}

TEST(JAppleScriptHelper, AnAlertShowsTheWayWithoutMailProgram)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"a %2.log"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    test::TestDesktop desktop;
    const auto send = [&](const QString &attachment) {
        return JAppleScriptHelper::sendEmailWithMail(u"a@b"_s, u"s"_s, {attachment}, {});
    };
    const auto alert = [&desktop] {
        EXPECT_TRUE(desktop.alerts.isEmpty()) << "the caller waited for the answer";
        EXPECT_TRUE(test::waitUntil([&desktop] { return !desktop.alerts.isEmpty(); }));
        return desktop.alerts.isEmpty() ? Alert() : desktop.alerts.takeLast();
    };
    {
        test::RecordingMailProgram program(4);
        EXPECT_TRUE(send(file.fileName()));
        EXPECT_TRUE(alert().informativeText.endsWith(u"a@b and attach this file: "_s + file.fileName()));
        // No file manager can be asked here.
        EXPECT_TRUE(test::waitUntil([&] { return desktop.opened == QList{QUrl::fromLocalFile(folder.path())}; }));
    }
    desktop.opened.clear();
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", folder.path().toUtf8());
    EXPECT_FALSE(send(folder.filePath(u"missing"_s)));
    const Alert shown = alert();
    EXPECT_TRUE(shown.informativeText.endsWith(u": a@b"_s));
    EXPECT_TRUE(shown.alternateButton.isNull());
    EXPECT_TRUE(desktop.opened.isEmpty());
    qputenv("PATH", path);
}

}  // namespace
