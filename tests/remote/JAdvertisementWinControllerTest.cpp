#include "JAdvertisementWinController.h"

#include "Frames.h"
#include "JTitledWindow.h"
#include "ProductFolder.h"
#include "Promotion.h"
#include "Queues.h"
#include "StyledTextView.h"
#include "TestDesktop.h"
#include "TestEnvironment.h"
#include "UserDefaults.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QBuffer>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

QByteArray encoded(const QSize &size, const char *format)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::green);
    QBuffer buffer;
    image.save(&buffer, format);
    return buffer.data();
}

class JAdvertisementWinControllerTest : public testing::Test {
protected:
    JAdvertisementWinControllerTest()
    {
        QImage icon(512, 512, QImage::Format_RGB32);
        icon.fill(Qt::red);
        icon.save(m_product.contentsPath(u"Resources/icons/hicolor/512x512/apps/kestrel.png"_s));
    }

    test::ProductFolder m_product{test::productInformation()};
    test::TestDesktop m_desktop;
    foundation::UserDefaults m_defaults{m_product.contentsPath(u"defaults.plist"_s)};
};

}  // namespace

TEST_F(JAdvertisementWinControllerTest, ButtonsKeepTheirPlaces)
{
    for (const qsizetype length : {0, 5, 40, 3000}) {
        JAdvertisementWinController controller(m_defaults);
        const QString title(length, u'M');
        controller.setMyItem(ADItem::initWithDictionary({{u"button"_s, title}, {u"label"_s, u"R&D"_s}}));
        tarnwell::JTitledWindow *window = controller.window();
        const auto *left = window->findChild<QPushButton *>(u"myLeftButton"_s);
        const auto *right = window->findChild<QPushButton *>(u"myRightButton"_s);
        const foundation::Rect leftFrame = tarnwell::viewFrame(left);
        EXPECT_TRUE(leftFrame.origin == foundation::Point({55, 20}) && left->text() == "R&&D"_L1);
        EXPECT_EQ(left->width(), left->sizeHint().width());
        const foundation::Rect frame = tarnwell::viewFrame(right);
        EXPECT_EQ(frame.origin.x + frame.size.width, window->width() - 45) << length;
        EXPECT_GE(frame.origin.x, 55 + leftFrame.size.width + 16) << length;
        EXPECT_TRUE(right->width() >= right->sizeHint().width()) << length;
        EXPECT_EQ(right->toolTip().isEmpty(), length < 3000) << length;
        EXPECT_EQ(right->text() == title, length < 3000) << length;
    }
}

TEST_F(JAdvertisementWinControllerTest, OnlyADeclineIsRemembered)
{
    const QString page = u"https://p.example/"_s;
    const struct {
        const char *name;
        std::function<void(QWidget *)> close;
        QString url;
        qint64 declines;
        bool opens;
    } rows[] = {
        {"accept", [](QWidget *w) { w->findChild<QPushButton *>(u"myRightButton"_s)->click(); }, page, 1, true},
        {"no page", [](QWidget *w) { w->findChild<QPushButton *>(u"myRightButton"_s)->click(); }, {}, 1, false},
        {"decline", [](QWidget *w) { w->findChild<QPushButton *>(u"myLeftButton"_s)->click(); }, page, 2, false},
        {"close", [](QWidget *w) { static_cast<tarnwell::JTitledWindow *>(w)->performClose(); }, page, 1, false},
        {"Escape", [](QWidget *w) { QTest::keyClick(w, Qt::Key_Escape); }, page, 1, false},
        {"beyond the limit", {}, page, 9, false},
    };
    for (const auto &row : rows) {
        m_desktop.opened.clear();
        m_defaults.removeObjectForKey(advertisementRateKey.toString());
        m_defaults.setObject(row.close ? 1 : 9, advertisementRefuseKey.toString());
        QJsonObject dictionary{{u"max_count"_s, 1}, {u"next_rate"_s, 25}, {u"details"_s, QJsonArray{u"<b>Text</b>"_s}}};
        if (!row.url.isNull())
            dictionary.insert(u"url"_s, row.url);
        int shown = 0;
        if (row.close) {
            foundation::queue::asyncMain([&] {
                QWidget *window = QApplication::activeModalWidget();
                const auto *details = window->findChild<tarnwell::StyledTextView *>(u"myDetailLabel"_s);
                shown = details->toPlainText() == "Text"_L1 ? 1 : -1;
                EXPECT_TRUE(test::waitUntil([&] { return window->isActiveWindow(); }));
                row.close(window);
            });
        }
        JAdvertisementWinController::ShowAdvertisement(ADItem::initWithDictionary(dictionary), {}, m_defaults);
        EXPECT_EQ(shown, row.close ? 1 : 0) << row.name;
        EXPECT_EQ(m_defaults.integerForKey(advertisementRefuseKey.toString()), row.declines) << row.name;
        EXPECT_EQ(m_defaults.integerForKey(advertisementRateKey.toString()), row.declines == 2 ? 25 : 0) << row.name;
        EXPECT_EQ(m_desktop.opened.size(), row.opens ? 1 : 0) << row.name;
    }
}

TEST_F(JAdvertisementWinControllerTest, WhatIsNoPictureBecomesTheIcon)
{
    const QByteArray png = encoded({300, 200}, "PNG");
    const struct {
        const char *name;
        QByteArray data;
        bool isPicture;
    } rows[] = {
        {"PNG", png, true},
        {"JPEG", encoded({300, 200}, "JPEG"), true},
        {"cut off", png.first(60), false},
        {"none", {}, false},
        {"another format", encoded({300, 200}, "PPM"), false},
        {"too wide", encoded({4097, 1}, "PNG"), false},
    };
    for (const auto &row : rows) {
        const QImage image = JAdvertisementWinController::imageFromData(row.data);
        EXPECT_EQ(image.size(), row.isPicture ? QSize(300, 200) : QSize(128, 128)) << row.name;
        EXPECT_EQ(image.pixelColor(20, 20).green() > 200, row.isPicture) << row.name;
    }
}

}  // namespace kestrel
