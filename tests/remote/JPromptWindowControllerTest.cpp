#include "foundation/Bundle.h"
#include "foundation/UserDefaults.h"
#include "remote/ui/JPromptWindowController.h"
#include "support/XMLReaderNavigation2.h"
#include "tarnwell/ui/TitledWindow.h"
#include "tests/support/ProductFolder.h"
#include "tests/support/TestDesktop.h"
#include "tests/support/TestEnvironment.h"

#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace kestrel;

namespace {

class JPromptWindowControllerTest : public testing::Test {
protected:
    std::optional<XMLDictionary> promptFor(const QString &language, const QByteArray &file)
    {
        QFile promptFile(m_product.contentsPath(u"Resources/prompt-mlde.xml"_s));
        EXPECT_TRUE(promptFile.open(QIODevice::WriteOnly) && promptFile.write(file) == file.size());
        promptFile.close();
        const foundation::UserDefaults defaults(
            m_product.contentsPath(u"none.plist"_s),
            language.isNull() ? QVariantMap() : QVariantMap{{u"AppleLanguages"_s, QStringList{language, u"en"_s}}});
        return JPromptWindowController::GetCurrentLanSpecial(defaults);
    }

    /// A controller with these elements as its prompt.
    std::unique_ptr<JPromptWindowController> controllerWith(const QByteArray &elements)
    {
        auto controller = std::make_unique<JPromptWindowController>();
        controller->setMyPrompt(promptFor(u"en"_s, "<promptsale><en>" + elements + "</en></promptsale>"));
        return controller;
    }

    test::ProductFolder m_product{test::productInformation()};
    test::TestDesktop m_desktop;
};

TEST_F(JPromptWindowControllerTest, OnlyTheFirstLanguageCounts)
{
    const QByteArray texts = "<promptsale><en><bodyTitle>T</bodyTitle></en><fr/></promptsale>";
    const struct {
        const char *name;
        QString language;
        QByteArray file;
        bool isFound;
    } rows[] = {
        {"present", u"en"_s, texts, true},
        {"missing", u"de"_s, texts, false},
        {"no language known", {}, texts, false},
        {"an attribute", u"en"_s, "<promptsale en='T'/>", false},
        {"twice", u"en"_s, "<promptsale><en/><en/></promptsale>", false},
        {"other root", u"en"_s, "<prompts><en/></prompts>", false},
        {"empty file", u"en"_s, "", false},
        {"cut off", u"en"_s, texts.chopped(3), false},
        {"no UTF-8", u"en"_s, QByteArray(texts).replace("T", "\xFC"), false},
        {"10 MB", u"en"_s, texts + QByteArray(10'000'000, ' '), false},
    };
    for (const auto &row : rows)
        EXPECT_EQ(promptFor(row.language, row.file).has_value(), row.isFound) << row.name;
    QFile::remove(m_product.contentsPath(u"Resources/prompt-mlde.xml"_s));
    const foundation::UserDefaults defaults({}, {{u"AppleLanguages"_s, QStringList(u"en"_s)}});
    EXPECT_FALSE(JPromptWindowController::GetCurrentLanSpecial(defaults));
}

TEST_F(JPromptWindowControllerTest, TheProductHasEveryTextInEveryLanguage)
{
    QFile file(QStringLiteral(KESTREL_PROMPT_FILE));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    for (const char *language : {"en", "ja", "de", "fr", "es", "it", "ko", "zh-Hans", "zh-Hant"}) {
        const auto prompt = promptFor(QLatin1StringView(language), text);
        ASSERT_TRUE(prompt) << language;
        for (const auto &element : {u"headerTitle"_s, u"headerSubTitle"_s, u"headerLinkTitle"_s, u"headerLink"_s,
                                    u"bodyTitle"_s, u"bodyDetail"_s, u"learnMoreLink"_s}) {
            const XMLValue value = retrieveForPath(*prompt, element + u".text"_s);
            const auto *found = std::get_if<QString>(&value);
            EXPECT_TRUE(found && !found->isEmpty()) << language << qPrintable(element);
        }
    }
}

TEST_F(JPromptWindowControllerTest, TextsAreShownAsTheyStand)
{
    const auto controller = controllerWith(
        "<headerTitle>&lt;b&gt;1&lt;/b&gt;</headerTitle><headerLinkTitle> Cut &amp; crop </headerLinkTitle>"
        "<bodyDetail>\n one\\ntwo\nthree\\\\n\n</bodyDetail><learnMoreLink><a/></learnMoreLink>");
    const auto *title = controller->window()->findChild<QLabel *>(u"headerLabel"_s);
    EXPECT_TRUE(title->text() == "<b>1</b>"_L1 && title->textFormat() == Qt::PlainText);
    EXPECT_EQ(controller->window()->findChild<QPushButton *>(u"headerButton"_s)->text(), u"Cut && crop"_s);
    const auto *detail = controller->window()->findChild<QLabel *>(u"introDetailLabel"_s);
    EXPECT_EQ(detail->text(), u"one\ntwo\nthree\\\n"_s);
    EXPECT_TRUE(controller->headerLink().isEmpty() && controller->learnMoreLink().isEmpty());
}

TEST_F(JPromptWindowControllerTest, LongTextsCanBeReadToTheirEnd)
{
    const QByteArray sentences = QByteArray("A sentence that goes on. ").repeated(200);
    const auto controller =
        controllerWith("<headerTitle>" + sentences + "</headerTitle><headerLinkTitle>" + sentences +
                       "</headerLinkTitle><bodyDetail>" + QByteArray(300, 'w') + sentences + "</bodyDetail>");
    tarnwell::TitledWindow *window = controller->window();
    window->show();
    EXPECT_LT(window->height(), 700);
    const auto *area = window->findChild<QScrollArea *>();
    const QLabel *detail = window->findChild<QLabel *>(u"introDetailLabel"_s);
    EXPECT_TRUE(test::waitUntil([&] { return detail->height() >= detail->heightForWidth(detail->width()); }));
    const QPoint end = detail->mapTo(area->widget(), detail->rect().bottomRight());
    EXPECT_LE(end.y(), area->verticalScrollBar()->maximum() + area->viewport()->height());
    EXPECT_LE(end.x(), area->horizontalScrollBar()->maximum() + area->viewport()->width());
    const auto *link = window->findChild<QPushButton *>(u"headerButton"_s);
    EXPECT_LE(link->width(), 360);
    EXPECT_TRUE(link->toolTip().contains(u"goes on."_s));
}

TEST_F(JPromptWindowControllerTest, LinksOpenAndTheWindowClosesInItsTime)
{
    const auto controller = controllerWith(
        "<headerLinkTitle>Home</headerLinkTitle><headerLink>https://h.example/"
        "</headerLink><learnMoreLink>https://l.example/</learnMoreLink>");
    tarnwell::TitledWindow *window = controller->window();
    const auto click = [&](const QString &name) { window->findChild<QPushButton *>(name)->click(); };
    const test::TagAsQuery links;
    const QUrl header(u"https://h.example/?from=adui"_s);
    const struct {
        const char *name;
        std::function<void()> close;
        QList<QUrl> opened;
    } rows[] = {
        {"Learn More", [&] { click(u"learnMoreButton"_s); }, {header, header, QUrl(u"https://l.example/?from=adui"_s)}},
        {"Cancel", [&] { click(u"cancelButton"_s); }, {header, header}},
        {"Escape", [&] { QTest::keyClick(window, Qt::Key_Escape); }, {header, header}},
        {"close button", [&] { window->performClose(); }, {header, header}},
    };
    for (const auto &row : rows) {
        m_desktop.opened.clear();
        bool wasOpen = false;
        QTimer::singleShot(0, window, [&] {
            QTest::keyClick(window, Qt::Key_Return);  // there is no default button
            click(u"headerButton"_s);
            click(u"headerButton"_s);
            wasOpen = window->isVisible() && window->isModal() &&
                      !window->testAttribute(Qt::WA_ShowWithoutActivating);  // it takes the keyboard
            row.close();
        });
        controller->showPrompt();
        EXPECT_TRUE(wasOpen && !window->isVisible()) << row.name;
        EXPECT_EQ(m_desktop.opened, row.opened) << row.name;
    }
}

}  // namespace
