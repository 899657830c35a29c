#include "AlertPanel.h"
#include "DesktopAlertPresenter.h"
#include "Installed.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace kestrel::tarnwell;

namespace {

const Alert question = {u"Reset?"_s, u"Reset"_s, u"Cancel"_s, u"All of <b>them</b>."_s, AlertStyle::Warning};
const Alert message = {u"Done"_s, u"OK"_s, {}, {}, AlertStyle::Informational};

/// What the alert answers when `act` is done to its panel as soon as it is open.
AlertAnswer answerWhen(const Alert &alert, const std::function<void(QWidget *)> &act)
{
    DesktopAlertPresenter presenter;
    const Installed<AlertPresenter> installed(presenter);
    QTimer::singleShot(0, qApp, [act] { act(QApplication::activeModalWidget()); });
    return runAlert(alert);
}

std::function<void(QWidget *)> key(Qt::Key key)
{
    return [key](QWidget *panel) { QTest::keyClick(panel, key); };
}

std::function<void(QWidget *)> click(const char *button)
{
    return [button](QWidget *panel) { panel->findChild<QPushButton *>(QLatin1StringView(button))->click(); };
}

TEST(Alerts, AnswerByKeyAndButton)
{
    EXPECT_EQ(runAlert(question), AlertAnswer::Alternate);  // nobody to ask
    EXPECT_EQ(answerWhen(question, key(Qt::Key_Return)), AlertAnswer::Default);
    EXPECT_EQ(answerWhen(question, key(Qt::Key_Escape)), AlertAnswer::Alternate);
    EXPECT_EQ(answerWhen(question, click("defaultButton")), AlertAnswer::Default);
    EXPECT_EQ(answerWhen(question, click("alternateButton")), AlertAnswer::Alternate);
    EXPECT_EQ(answerWhen(message, key(Qt::Key_Escape)), AlertAnswer::Default);
    EXPECT_EQ(answerWhen(question, [](QWidget *panel) { panel->close(); }), AlertAnswer::Alternate);
}

TEST(Alerts, EndOfTheApplicationAnswers)
{
    std::optional<AlertAnswer> answer;
    QTimer::singleShot(0, qApp, [&] { answer = answerWhen(question, [](QWidget *) { QCoreApplication::quit(); }); });
    QTimer::singleShot(5000, qApp, [] { QCoreApplication::exit(1); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_EQ(answer, AlertAnswer::Alternate);
}

TEST(Alerts, TextsAreShownAsTheyAre)
{
    AlertPanel panel(question);
    panel.show();
    auto *label = panel.findChild<QLabel *>(u"informativeLabel"_s);
    const QImage shown = label->grab().toImage();
    label->setTextFormat(Qt::PlainText);
    EXPECT_EQ(shown, label->grab().toImage());
    label->setTextFormat(Qt::RichText);
    EXPECT_NE(shown, label->grab().toImage());
    EXPECT_TRUE(panel.findChild<QPushButton *>(u"defaultButton"_s)->isDefault());
    EXPECT_GT(panel.findChild<QPushButton *>(u"defaultButton"_s)->x(),
              panel.findChild<QPushButton *>(u"alternateButton"_s)->x());
}

TEST(Alerts, NothingIsClipped)
{
    const struct {
        const char *name;
        QString message, informativeText, button;
    } rows[] = {
        {"short", u"Hi"_s, {}, u"OK"_s},
        {"sentence", u"Screen Record Unavailable!"_s, QString(u"A sentence that goes on. "_s).repeated(12), u"OK"_s},
        {"german button", u"Zurücksetzen?"_s, u"Ja?"_s, u"Sämtliche Ausgabeprofile unwiderruflich zurücksetzen"_s},
        {"japanese", u"画面収録は使用できません"_s, u"画面レコーダーはMac OS Lion以降でのみ。"_s.repeated(8),
         u"続ける"_s},
        {"no blanks", u"Cannot write"_s, u"/home/"_s + QString(300, u'w'), u"OK"_s},
        {"lines", u"One\nTwo"_s, u"a\nb\nc\nd"_s, u"OK"_s}};
    for (const auto &[name, text, informativeText, buttonText] : rows) {
        AlertPanel panel({text, buttonText, u"Abbrechen und alles so lassen"_s, informativeText, AlertStyle::Critical});
        panel.show();
        EXPECT_GE(panel.width(), 360) << name;
        EXPECT_TRUE(panel.width() <= 520 || buttonText.size() > 40) << name;
        for (const QLabel *label : panel.findChildren<QLabel *>()) {
            const QRect needed =
                label->fontMetrics().boundingRect(QRect(0, 0, label->width(), 10000), Qt::TextWordWrap, label->text());
            EXPECT_LE(needed.height(), label->height()) << name;
            EXPECT_LE(needed.width(), label->width()) << name;
            EXPECT_TRUE(panel.rect().contains(QRect(label->mapTo(&panel, QPoint()), label->size()))) << name;
        }
        for (const QPushButton *button : panel.findChildren<QPushButton *>())
            EXPECT_GE(button->width(), button->sizeHint().width()) << name;
    }
}

}  // namespace
