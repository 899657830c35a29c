#include "tarnwell/ui/Images.h"
#include "tests/support/ProductFolder.h"

#include <QPainter>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace kestrel::tarnwell;

namespace {

// Columns of alternating colours, so that a pixel off its place shows as a mixture.
TEST(Images, AreDrawnOnWholePixelsOfTheirScale)
{
    const kestrel::test::ProductFolder product;
    for (const auto &[size, suffix] : {std::pair(10, u""_s), std::pair(15, u"@1.5x"_s), std::pair(20, u"@2x"_s)}) {
        QImage image(size, size, QImage::Format_RGB32);
        image.fill(Qt::white);
        for (int x = 0; x < size; x += 2)
            QPainter(&image).fillRect(x, 0, 1, size, Qt::black);
        image.save(product.contentsPath(u"Resources/images/stripes%1.png"_s.arg(suffix)));
    }
    EXPECT_TRUE(namedImage(u"stripes"_s, 1.25).width() == 15 && namedImage(u"stripes"_s, 3).width() == 20);
    for (const qreal scale : {1.0, 1.5, 2.0}) {
        QImage canvas(int(40 * scale), int(40 * scale), QImage::Format_RGB32);
        canvas.setDevicePixelRatio(scale);
        canvas.fill(Qt::white);
        QPainter painter(&canvas);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        drawCrisp(painter, {7, 7.4}, namedImage(u"stripes"_s, scale));
        painter.end();
        int counts[256] = {};
        for (int i = 0; i < canvas.width() * canvas.height(); ++i)
            ++counts[qGray(canvas.pixel(i % canvas.width(), i / canvas.width()))];
        const int pixels = int(10 * scale);
        EXPECT_EQ(counts[0], (pixels + 1) / 2 * pixels) << scale;
        EXPECT_EQ(counts[0] + counts[255], canvas.width() * canvas.height()) << scale;
    }
}

}  // namespace
