#include "tarnwell/Installed.h"
#include "tarnwell/ui/AlertPanel.h"
#include "tarnwell/ui/DesktopAlertPresenter.h"

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

TEST(Alerts, AreAnswered)
{
    EXPECT_EQ(runAlert(question), AlertAnswer::Alternate);  // nobody to ask
    DesktopAlertPresenter presenter;
    const Installed<AlertPresenter> installed(presenter);
    const auto click = [](const QString &name) {
        return [name](QWidget *panel) { panel->findChild<QPushButton *>(name)->click(); };
    };
    Alert harmfulAlternate = question;
    harmfulAlternate.answerToEscape = AlertAnswer::Default;
    const auto press = [](Qt::Key key) { return [key](QWidget *panel) { QTest::keyClick(panel, key); }; };
    const Alert message = {u"Done"_s, u"OK"_s, {}, {}, AlertStyle::Informational};
    const struct {
        const char *name;
        Alert alert;
        std::function<void(QWidget *panel)> act;
        AlertAnswer answer;
    } rows[] = {
        {"Return", question, press(Qt::Key_Return), AlertAnswer::Default},
        {"Escape", question, press(Qt::Key_Escape), AlertAnswer::Alternate},
        {"Escape where that does harm", harmfulAlternate, press(Qt::Key_Escape), AlertAnswer::Default},
        {"one button", message, press(Qt::Key_Escape), AlertAnswer::Default},
        {"first button", question, click(u"defaultButton"_s), AlertAnswer::Default},
        {"second button", question, click(u"alternateButton"_s), AlertAnswer::Alternate},
        {"closed", question, [](QWidget *panel) { panel->close(); }, AlertAnswer::None},
        {"one button, closed", message, [](QWidget *panel) { panel->close(); }, AlertAnswer::Default},
    };
    for (const auto &row : rows) {
        QTimer::singleShot(0, qApp, [&row] { row.act(QApplication::activeModalWidget()); });
        EXPECT_EQ(runAlert(row.alert), row.answer) << row.name;
    }
    // The end of the application is no answer.
    std::optional<AlertAnswer> answer;
    QTimer::singleShot(0, qApp, [&] {
        QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(); });
        answer = runAlert(question);
    });
    QTimer::singleShot(5000, qApp, [] { QCoreApplication::exit(1); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_EQ(answer, AlertAnswer::None);
}

TEST(Alerts, TextsAreShownWholeAndAsTheyAre)
{
    AlertPanel panel(question);
    panel.show();
    auto *label = panel.findChild<QLabel *>(u"informativeLabel"_s);
    const QImage shown = label->grab().toImage();
    label->setTextFormat(Qt::PlainText);
    EXPECT_EQ(shown, label->grab().toImage());
    label->setTextFormat(Qt::RichText);
    EXPECT_NE(shown, label->grab().toImage());
    const QString sentences = QString(u"A sentence that goes on. "_s).repeated(12);
    for (const QString &text : {sentences, QString(300, u'w'), u"a\nb\nc"_s}) {
        AlertPanel other({u"Zurücksetzen?"_s, QString(60, u'b'), u"Abbrechen"_s, text, AlertStyle::Critical});
        other.show();
        for (const QLabel *each : other.findChildren<QLabel *>()) {
            const QRect space(0, 0, each->width(), 10000);
            const QRect needed = each->fontMetrics().boundingRect(space, Qt::TextWordWrap, each->text());
            EXPECT_TRUE(needed.height() <= each->height() && needed.width() <= each->width()) << qPrintable(text);
        }
        for (const QPushButton *button : other.findChildren<QPushButton *>())
            EXPECT_GE(button->width(), button->sizeHint().width()) << qPrintable(text);
    }
}

}  // namespace
