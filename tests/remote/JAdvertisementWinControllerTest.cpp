#include "remote/ui/JAdvertisementWinController.h"

#include "foundation/Queues.h"
#include "foundation/UserDefaults.h"
#include "remote/Promotion.h"
#include "tarnwell/ui/Frames.h"
#include "tarnwell/ui/StyledTextView.h"
#include "tarnwell/ui/TitledWindow.h"
#include "tests/support/ProductFolder.h"
#include "tests/support/TestDesktop.h"
#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QBuffer>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QtEndian>

#include <ctime>

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

/// A chunk of a PNG with 7.9 MB of blanks.
QByteArray compressedText()
{
    QImage image(1, 1, QImage::Format_RGB32);
    image.setText(u"k"_s, QString(7'900'000, u' '));
    QBuffer buffer;
    image.save(&buffer, "PNG");
    const qsizetype start = buffer.data().indexOf("zTXt") - 4;
    return buffer.data().mid(start, qFromBigEndian<quint32>(buffer.data().constData() + start) + 12);
}

/// Its codes of 12 bits stand for longer and longer runs of one pixel: many thousand times as much as it shows.
QByteArray slowGif()
{
    QByteArray codes;
    quint32 bits = 0;
    int held = 0, next = 258;
    for (int i = 0; i < 1'000'000; ++i) {
        const int code = i == 0 ? 256 : i == 1 ? 0 : std::min(next++, 4095);
        const int width = next <= 512 ? 9 : next <= 1024 ? 10 : next <= 2048 ? 11 : 12;
        bits |= quint32(code) << held;
        for (held += width; held >= 8; held -= 8, bits >>= 8)
            codes += char(bits);
    }
    QByteArray gif = QByteArray::fromHex("4749463839612c01c800f70000") + QByteArray(768, '\0') +
                     QByteArray::fromHex("2c000000002c01c8000008");
    for (qsizetype at = 0; at + 255 <= codes.size(); at += 255)
        gif += '\xFF' + codes.mid(at, 255);
    return gif;
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
    test::TagAsQuery m_links;
    foundation::UserDefaults m_defaults{m_product.contentsPath(u"defaults.plist"_s)};
};

}  // namespace

TEST_F(JAdvertisementWinControllerTest, ButtonsKeepTheirPlaces)
{
    for (const qsizetype length : {0, 5, 40, 3000}) {
        JAdvertisementWinController controller(m_defaults);
        const QString title(length, u'M');
        controller.setMyItem(
            ADItem::initWithDictionary({{u"button"_s, title}, {u"label"_s, u"R&D"_s}, {u"title"_s, u"Spring"_s}}));
        tarnwell::TitledWindow *window = controller.window();
        const auto *left = window->findChild<QPushButton *>(u"myLeftButton"_s);
        const auto *right = window->findChild<QPushButton *>(u"myRightButton"_s);
        const foundation::Rect leftFrame = tarnwell::viewFrame(left);
        EXPECT_TRUE(leftFrame.origin == foundation::Point({55, 20}) && left->text() == "R&&D"_L1);
        EXPECT_EQ(left->width(), left->sizeHint().width());
        EXPECT_EQ(window->size(), QSize(640, 480));
        EXPECT_EQ(window->windowTitle(), u"Kestrel Converter 4K"_s);
        EXPECT_EQ(window->findChild<QLabel *>(u"myTitleLabel"_s)->text(), u"Spring"_s);
        const foundation::Rect frame = tarnwell::viewFrame(right);
        EXPECT_EQ(frame.origin.x + frame.size.width, window->width() - 45) << length;
        EXPECT_EQ(frame.origin.y, 20) << length;
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
        {"close", [](QWidget *w) { static_cast<tarnwell::TitledWindow *>(w)->performClose(); }, page, 1, false},
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
        EXPECT_EQ(m_desktop.opened, row.opens ? QList{QUrl(page + u"?from=adui"_s)} : QList<QUrl>()) << row.name;
    }
}

TEST_F(JAdvertisementWinControllerTest, WhatIsNoPictureBecomesTheIcon)
{
    const QSize icon(128, 128), own(300, 200);
    const QByteArray png = encoded(own, "PNG"), jpeg = encoded(own, "JPEG");
    const auto withTexts = [&png, text = compressedText()](int count) {
        return png.first(33) + text.repeated(count) + png.mid(33);
    };
    // A scan that says nothing new is a header and a run of empty blocks.
    const QByteArray scan = QByteArray::fromHex("ffda0008010100010500") + QByteArray(20, '\0');
    const QByteArray zeros(15, '\0');
    const QByteArray frame = QByteArray::fromHex("ffd8ffdb004300") + QByteArray(64, '\1') +
                             QByteArray::fromHex("ffc2000b081000100001011100ffc400140001") + zeros +
                             QByteArray::fromHex("00ffc400141001") + zeros +
                             QByteArray::fromHex("e0ffda0008010100000000");
    const struct {
        const char *name;
        QByteArray data;
        QSize size;
    } rows[] = {
        {"PNG", png, own},
        {"JPEG", jpeg, own},
        {"JPEG with a comment", jpeg.first(2) + QByteArray::fromHex("fffe0004ffda") + jpeg.mid(2), own},
        {"cut off", png.first(60), icon},
        {"none", {}, icon},
        {"another format", encoded(own, "PPM"), icon},
        {"large", encoded({2000, 3000}, "JPEG"), {853, 1280}},
        {"wide", encoded({16'384, 1}, "PNG"), {1280, 1}},
        {"too wide", encoded({16'385, 1}, "PNG"), icon},
        {"too many pixels", encoded({16'384, 1025}, "PNG"), icon},
        {"60 texts of 7.9 MB", withTexts(60), own},
        {"900 texts of 7.9 MB", withTexts(900), own},
        {"4,000 scans", frame + scan.repeated(4000), icon},
        {"slow to unpack", slowGif(), icon},
    };
    for (const auto &row : rows) {
        const std::clock_t start = std::clock();
        const QImage image = JAdvertisementWinController::imageFromData(row.data);
        EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC / 2) << row.name;
        EXPECT_EQ(image.size(), row.size) << row.name;
        EXPECT_EQ(image.pixelColor(image.rect().center()).green() > 200, row.size != icon) << row.name;
    }
    const QByteArray pixelsBeforeTheFile = "Qk0qAQAAAQB/AAAABAQEOvr8CxjYAAEAAQAAAAAAEREDCxjYERAR/+E=";
    EXPECT_FALSE(JAdvertisementWinController::imageFromData(QByteArray::fromBase64(pixelsBeforeTheFile)).isNull());
}

}  // namespace kestrel
