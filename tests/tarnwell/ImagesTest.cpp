#include "ImageLayer.h"
#include "Images.h"
#include "Installed.h"
#include "Log.h"
#include "Motion.h"
#include "ProductFolder.h"
#include "TestEnvironment.h"

#include <QPainter>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace kestrel::tarnwell;

namespace {

/// A bundle with one image of 10 × 10 points: columns of alternating colours, so that a pixel off its place shows as a
/// mixture.
class Images : public testing::Test {
protected:
    Images()
    {
        for (const auto &[size, suffix] : {std::pair(10, u""_s), std::pair(15, u"@1.5x"_s), std::pair(20, u"@2x"_s)}) {
            QImage image(size, size, QImage::Format_RGB32);
            image.fill(Qt::white);
            for (int x = 0; x < size; x += 2)
                QPainter(&image).fillRect(x, 0, 1, size, Qt::black);
            image.save(m_product.contentsPath(u"Resources/images/stripes%1.png"_s.arg(suffix)));
        }
    }

    kestrel::test::ProductFolder m_product;
};

TEST_F(Images, RenderingFollowsTheScale)
{
    const struct {
        qreal scale;
        int pixels;
    } rows[] = {{1, 10}, {1.25, 15}, {1.5, 15}, {1.75, 20}, {2, 20}, {3, 20}};
    for (const auto &[scale, pixels] : rows) {
        const QPixmap image = ImageNamed(u"stripes"_s, scale);
        EXPECT_EQ(image.width(), pixels) << scale;
        EXPECT_EQ(image.deviceIndependentSize(), QSizeF(10, 10)) << scale;
    }
}

TEST_F(Images, IconsHaveTheScreensPixels)
{
    const QIcon icon = IconNamed(u"stripes"_s);
    for (const auto &[scale, pixels] : {std::pair(1.0, 10), std::pair(1.5, 15), std::pair(2.0, 20)}) {
        const QPixmap pixmap = icon.pixmap(QSize(10, 10), scale);
        EXPECT_EQ(pixmap.width(), pixels);
        EXPECT_EQ(pixmap.toImage().pixelColor(0, 0), QColor(Qt::black)) << scale;
    }
    EXPECT_EQ(icon.pixmap(QSize(5, 8), 1.0).size(), QSize(5, 5));
    EXPECT_LE(icon.pixmap(QSize(100, 100), 1.0).width(), 20);
    EXPECT_LT(icon.pixmap(QSize(10, 10), 1.0, QIcon::Disabled).toImage().pixelColor(0, 0).alpha(), 255);
    EXPECT_TRUE(IconNamed(u"missing"_s).isNull());
}

TEST_F(Images, AreDrawnOnWholePixels)
{
    for (const qreal scale : {1.0, 1.5, 2.0}) {
        QImage canvas(int(40 * scale), int(40 * scale), QImage::Format_RGB32);
        canvas.setDevicePixelRatio(scale);
        canvas.fill(Qt::white);
        QPainter painter(&canvas);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.translate(3, 3);
        drawCrisp(painter, {4, 4.4}, ImageNamed(u"stripes"_s, scale));
        painter.end();
        int blackPixels = 0;
        for (int y = 0; y < canvas.height(); ++y)
            for (int x = 0; x < canvas.width(); ++x) {
                const QColor color = canvas.pixelColor(x, y);
                ASSERT_TRUE(color == QColor(Qt::white) || color == QColor(Qt::black)) << scale;
                blackPixels += color == QColor(Qt::black);
            }
        const int pixels = int(10 * scale);
        EXPECT_EQ(blackPixels, (pixels + 1) / 2 * pixels) << scale;
    }
}

TEST_F(Images, MissingOnesAreLoggedOnce)
{
    const QTemporaryDir folder;
    Log log(folder.path());
    const Installed<Log> installed(log);
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(ImageNamed(u"missing"_s, 1).isNull());
    EXPECT_TRUE(ImageNamed({}, 1).isNull());
    QFile file(log.path());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().count('\n'), 1);
}

/// A desktop setting file of the test's own, taken away at the end.
class DesktopSetting {
public:
    DesktopSetting(const QString &name, const QByteArray &text)
        : m_file(qEnvironmentVariable("XDG_CONFIG_HOME") + u'/' + name)
    {
        QDir().mkpath(QFileInfo(m_file).path());
        if (m_file.open(QIODevice::WriteOnly))
            m_file.write(text);
        m_file.close();
    }
    ~DesktopSetting() { m_file.remove(); }

private:
    QFile m_file;
};

TEST(Motion, FollowsTheDesktopsSettings)
{
    EXPECT_FALSE(reducedMotion());
    const struct {
        const char *file;
        const char *text;
        bool isReduced;
    } rows[] = {{"gtk-3.0/settings.ini", "[Settings]\ngtk-theme-name=x\ngtk-enable-animations=0\n", true},
                {"gtk-4.0/settings.ini", "[Settings]\r\ngtk-enable-animations = False", true},
                {"gtk-3.0/settings.ini", "[Settings]\ngtk-enable-animations=1\n", false},
                {"gtk-3.0/settings.ini", "[Other]\ngtk-enable-animations=0\n", false},
                {"kdeglobals", "[General]\nx=1\n[KDE]\nAnimationDurationFactor=0.0\n", true},
                {"kdeglobals", "[KDE]\nAnimationDurationFactor=0.5\n", false},
                {"kdeglobals", "[KDE]\nAnimationDurationFactor=\n", false}};
    for (const auto &[file, text, isReduced] : rows) {
        const DesktopSetting setting(QString::fromLatin1(file), text);
        EXPECT_EQ(reducedMotion(), isReduced) << text;
    }
}

TEST_F(Images, LayersMoveOnScreenAndJumpElsewhere)
{
    using kestrel::foundation::Rect;
    QWidget window;
    window.resize(200, 100);
    ImageLayer layer(u"stripes"_s, &window);
    layer.setFrame({10, 20, 30, 40});
    EXPECT_EQ(layer.geometry(), QRect(10, 40, 30, 40));  // not on screen: at once

    window.show();
    const Rect target(50, 0, 100, 100);
    layer.setFrame(target);
    EXPECT_EQ(layer.frame(), target);
    EXPECT_EQ(layer.geometry(), QRect(10, 40, 30, 40));
    int steps = 0;
    EXPECT_TRUE(kestrel::test::waitUntil([&] {
        steps += layer.x() > 10 && layer.x() < 50;
        return layer.geometry() == QRect(50, 0, 100, 100);
    }));
    EXPECT_GT(steps, 0);

    layer.setFrame({0, 0, 10, 10});
    layer.setFrame(target);  // turned back at once
    const DesktopSetting setting(u"gtk-3.0/settings.ini"_s, "[Settings]\ngtk-enable-animations=0\n");
    layer.setFrame({5, 5, 10, 10});
    EXPECT_EQ(layer.geometry(), QRect(5, 85, 10, 10));
}

}  // namespace
