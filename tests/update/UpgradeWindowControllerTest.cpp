#include "update/ui/UpgradeWindowController.h"

#include "foundation/PropertyList.h"
#include "foundation/Queues.h"
#include "tarnwell/ui/Palette.h"
#include "tarnwell/ui/StyledTextView.h"
#include "tarnwell/ui/TitledWindow.h"
#include "tests/support/ProductFolder.h"
#include "tests/support/TestDesktop.h"
#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSemaphore>
#include <QStackedWidget>
#include <QTest>

#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kestrel {

namespace {

const QVariantMap newVersion = {
    {u"LastestVersion"_s, u"6.10"_s},
    {u"DownloadURLReg"_s, u"https://k.example/get"_s},
    {u"UpdateLog"_s, QVariantList{QVariantMap{{u"content"_s, u"Faster"_s}}}},
};
const QVariantMap compulsory = [] {
    QVariantMap map = newVersion;
    map.insert(u"ForceAppUpgrade"_s, true);
    return map;
}();
const QVariantMap news = {{u"DownloadURLReg"_s, u"https://k.example/get"_s},
                          {u"NotificationContent"_s, QString(30'000, u'W')},
                          {u"NotificationURL"_s, u"https://k.example/news"_s}};

class UpgradeWindowControllerTest : public testing::Test {
protected:
    std::unique_ptr<UpgradeWindowController> make(std::chrono::milliseconds step = 1ms)
    {
        auto fetch = [this, inUse = m_inUse](const foundation::FetchRequest &) {
            ++m_fetches;
            m_answers.acquire();
            return foundation::FetchResult{m_body, u"no answer"_s};
        };
        return std::make_unique<UpgradeWindowController>(
            u"https://k.example/update"_s, UpdateContext{{u"en"_s, u"6.2.1"_s}, fetch}, [this] { ++m_terminations; },
            step);
    }
    void answer(const std::optional<QVariantMap> &root)
    {
        if (root)
            m_body = foundation::writePropertyList(*root, foundation::PropertyListFormat::Xml);
        m_answers.release();
    }
    void open(UpgradeWindowController &controller, const QVariantMap &root)
    {
        auto parser = std::make_shared<UPParser>(UpdateReading{u"en"_s, u"6.2.1"_s});
        parser->parseUpgradeConfig(root);
        controller.showUpgradeWindowNoProgress(parser);
    }
    template <class Widget>
    static Widget *find(const UpgradeWindowController &controller, const char *name)
    {
        return controller.window()->findChild<Widget *>(QLatin1StringView(name));
    }
    static QString viewOf(const UpgradeWindowController &controller)
    {
        return find<QStackedWidget>(controller, "upgradeContentView")->currentWidget()->objectName();
    }

    test::ProductFolder m_product{test::productInformation()};
    test::TestDesktop m_desktop;
    test::TagAsQuery m_links;
    std::atomic<int> m_fetches = 0;
    QSemaphore m_answers;
    const std::shared_ptr<int> m_inUse = std::make_shared<int>();
    std::optional<QByteArray> m_body;
    int m_terminations = 0;
};

}  // namespace

TEST_F(UpgradeWindowControllerTest, TheCheckEndsInWhatTheServerSays)
{
    const struct {
        const char *name;
        std::optional<QVariantMap> root;
        const char *view;
        int progress;
        double lowering;
        double height;
    } rows[] = {{"unreachable", {}, "progressView", 70, 0, 322},
                {"newer", newVersion, "upgradeAvailableView", 100, 110, 432},
                {"not newer", news, "noUpgradeFoundView", 100, 110, 432}};
    for (const auto &row : rows) {
        m_body = {};
        const auto controller = make();
        foundation::queue::asyncMain([&] {
            const foundation::Rect before = controller->window()->frame();
            const auto *bar = find<QProgressBar>(*controller, "progressIndicator");
            EXPECT_TRUE(test::waitUntil([&] { return m_fetches > 0 && bar->value() == 70; })) << row.name;
            answer(row.root);
            const auto *hint = find<QLabel>(*controller, "hintWaitField");
            const QColor red(tarnwell::palette::error);
            EXPECT_TRUE(test::waitUntil([&] {
                return hint->palette().color(QPalette::WindowText) == red || viewOf(*controller) != "progressView"_L1;
            })) << row.name;
            EXPECT_EQ(viewOf(*controller).toStdString(), row.view) << row.name;
            EXPECT_EQ(bar->value(), row.progress) << row.name;
            EXPECT_EQ(hint->text() == "Unable to connect to update server."_L1, !row.root) << row.name;
            EXPECT_EQ(controller->window()->frame(),
                      foundation::Rect(before.origin.x, before.origin.y - row.lowering, before.size.width, row.height))
                << row.name;
            QTest::keyClick(controller->window(), Qt::Key_Escape);
        });
        controller->showUpgradeWindow();
        EXPECT_EQ(m_fetches.exchange(0), 1) << row.name;
        EXPECT_EQ(controller->upgradeInfo() != nullptr, row.root.has_value()) << row.name;
    }
}

TEST_F(UpgradeWindowControllerTest, ACancelledCheckShowsNothingMore)
{
    auto controller = make(100ms);
    foundation::queue::asyncMain([&] { controller->cancelChecking(); });
    controller->showUpgradeWindow();
    const int value = find<QProgressBar>(*controller, "progressIndicator")->value();
    foundation::queue::finishGlobal();
    EXPECT_TRUE(m_fetches == 0 && find<QProgressBar>(*controller, "progressIndicator")->value() == value);

    for (const bool isGone : {false, true}) {
        controller = make();
        foundation::queue::asyncMain([&] {
            EXPECT_TRUE(test::waitUntil([&] { return m_fetches > 0; }));
            find<QPushButton>(*controller, "cancelProgressBtn")->click();
        });
        controller->showUpgradeWindow();
        const foundation::Rect frame = controller->window()->frame();
        if (isGone)
            controller.reset();
        answer(newVersion);
        foundation::queue::finishGlobal();
        EXPECT_EQ(m_fetches.exchange(0), 1);
        QCoreApplication::processEvents();
        EXPECT_TRUE(isGone || (!controller->upgradeInfo() && controller->window()->frame() == frame));
    }
}

TEST_F(UpgradeWindowControllerTest, WhatWasOnItsWayWhenTheUserCancelledIsNotShown)
{
    EXPECT_EQ(UpgradeWindowController::stepOfBar, 150ms);
    const auto controller = make();
    const long idleUses = m_inUse.use_count();
    foundation::queue::asyncMain([&] {
        EXPECT_TRUE(test::waitUntil([&] { return m_fetches > 0; }));
        answer(newVersion);
        while (m_inUse.use_count() > idleUses)  // until the check has come to its end; nothing is shown meanwhile
            std::this_thread::yield();
        controller->cancelChecking();
    });
    controller->showUpgradeWindow();
    foundation::queue::finishGlobal();
    QCoreApplication::processEvents();
    EXPECT_FALSE(controller->upgradeInfo());
    EXPECT_EQ(viewOf(*controller), u"progressView"_s);
}

TEST_F(UpgradeWindowControllerTest, ButtonsCloseOpenAndTerminate)
{
    const QList get{QUrl(u"https://k.example/get?from=upui"_s)};
    const struct {
        const char *name;
        QVariantMap root;
        const char *button;
        bool staysOpen;
        QList<QUrl> opened;
        int terminations;
    } rows[] = {
        {"download", newVersion, "downloadNowBtn", false, get, 0},
        {"do not download", newVersion, "cancelDownloadBtn", false, {}, 0},
        {"compulsory download", compulsory, "downloadNowBtn", true, get, 0},
        {"compulsory, declined", compulsory, "cancelDownloadBtn", false, {}, 1},
        {"compulsory, window closed", compulsory, nullptr, false, {}, 1},
        {"learn more", news, "learMoreBtn", false, {QUrl(u"https://k.example/news?from=upui"_s)}, 0},
        {"visit website", news, "visitSiteBtn", false, get, 0},
        {"learn more without link", {}, "learMoreBtn", false, {}, 0},
        {"no news wanted", news, "cancelNewsBtn", false, {}, 0},
    };
    for (const auto &row : rows) {
        m_desktop.opened.clear();
        m_terminations = 0;
        const auto controller = make();
        foundation::queue::asyncMain([&] {
            QTest::keyClick(controller->window(), Qt::Key_Return);  // there is no default button
            EXPECT_TRUE(controller->window()->isVisible()) << row.name;
            if (row.button)
                find<QPushButton>(*controller, row.button)->click();
            else
                controller->window()->performClose();
            EXPECT_EQ(controller->window()->isVisible(), row.staysOpen) << row.name;
            EXPECT_EQ(m_desktop.opened, row.opened) << row.name;
            EXPECT_EQ(m_terminations, row.terminations) << row.name;
            controller->window()->performClose();
        });
        open(*controller, row.root);
    }
}

TEST_F(UpgradeWindowControllerTest, TextsOfTheServerStayInTheWindow)
{
    const auto controller = make();
    foundation::queue::asyncMain([&] {
        const auto *view = find<tarnwell::StyledTextView>(*controller, "noNewVersionNewsContent");
        EXPECT_TRUE(test::waitUntil([&] { return view->height() > 100; }));
        EXPECT_TRUE(view->toPlainText().size() == 20'000 &&
                    !find<QLabel>(*controller, "noNewVersionNewsTitle")->isVisible());
        EXPECT_TRUE(
            controller->window()->rect().contains(QRect(view->mapTo(controller->window(), QPoint()), view->size())));
        controller->cancelLearnMore();
    });
    open(*controller, news);

    QVariantMap longVersion = newVersion;
    longVersion.insert(u"LastestVersion"_s, u"7.%@"_s + QString(1000, u'1'));
    foundation::queue::asyncMain([&] {
        auto *tip = find<QLabel>(*controller, "haveNewVersionTipLabel");
        EXPECT_TRUE(tip->text().startsWith("Kestrel Converter 4K 7.%@1"_L1));
        EXPECT_TRUE(tip->text().contains("you're running 6.2.1."_L1));
        EXPECT_EQ(find<tarnwell::StyledTextView>(*controller, "whatsNewFiled")->toPlainText(), u" 1. Faster"_s);
        EXPECT_LE(tip->minimumSizeHint().width(), tip->width());
        EXPECT_EQ(controller->window()->width(), 750);
        // Opened with what is known, it is lowered by 100 from the middle of the screen.
        const QRect screen = controller->window()->screen()->availableGeometry();
        EXPECT_EQ(controller->window()->geometry().bottom(), screen.center().y() + 322 / 2 + 100);
        controller->cancelUpgrade();
    });
    open(*controller, longVersion);
}

TEST_F(UpgradeWindowControllerTest, TheEndOfTheApplicationEndsIt)
{
    foundation::queue::asyncMain([this] {
        const auto controller = make();
        foundation::queue::asyncMain([] { QCoreApplication::exit(7); });
        open(*controller, compulsory);
        EXPECT_FALSE(controller->window()->isVisible());
    });
    EXPECT_EQ(QCoreApplication::exec(), 7);
    EXPECT_EQ(m_terminations, 0);
}

}  // namespace kestrel
