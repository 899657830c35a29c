#include "tarnwell/ui/PixelFile.h"

#include "tarnwell/ui/PixelFileFormat.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <cstring>
#include <functional>

using namespace Qt::StringLiterals;

namespace kestrel::tarnwell {

namespace {

struct Layout {
    pixelfile::Header header = {pixelfile::magic, 2};
    pixelfile::Entry entries[2] = {{"glass", 2, 1, 1, 128}, {"wall", 1, 2, 0, 192}};
    qsizetype size = 200;  ///< just behind the last pixel
};

constexpr quint32 halfRed = 0x80800000, blue = 0x000000FF, green = 0x0000FF00;

QByteArray written(const Layout &layout)
{
    QByteArray bytes(200, '\0');
    std::memcpy(bytes.data(), &layout.header, sizeof layout.header);
    std::memcpy(bytes.data() + sizeof layout.header, layout.entries, sizeof layout.entries);
    const quint32 glass[] = {halfRed, 0}, wall[] = {blue, green};
    std::memcpy(bytes.data() + 128, glass, sizeof glass);
    std::memcpy(bytes.data() + 192, wall, sizeof wall);
    return bytes.left(layout.size);
}

}  // namespace

TEST(PixelFileTest, HasThePicturesThatAreWholeAndNoOthers)
{
    const struct {
        const char *name;
        std::function<void(Layout &)> damage;
        bool hasGlass, hasWall;
    } rows[] = {
        {"whole", [](Layout &) {}, true, true},
        {"empty", [](Layout &file) { file.size = 0; }, false, false},
        {"a piece of a header", [](Layout &file) { file.size = 7; }, false, false},
        {"another kind of file", [](Layout &file) { file.header.magic = 0x474E5089; }, false, false},
        {"more entries than bytes", [](Layout &file) { file.header.count = 0xFFFFFFFF; }, false, false},
        {"fewer entries", [](Layout &file) { file.header.count = 1; }, true, false},
        {"cut off by a byte", [](Layout &file) { file.size = 199; }, true, false},
        {"larger than the file", [](Layout &file) { file.entries[1].height = 3; }, true, false},
        {"a size that runs over", [](Layout &file) { file.entries[1].width = file.entries[1].height = 1u << 31; }, true,
         false},
        {"longer than any picture",
         [](Layout &file) {
             file.entries[1].width = 0;
             file.entries[1].height = 16'385;
         },
         true, false},
        {"behind the end", [](Layout &file) { file.entries[1].offset = 0xFFFFFFC0; }, true, false},
        {"between two pixels", [](Layout &file) { file.entries[1].offset = 190; }, true, false},
        {"a name without an end", [](Layout &file) { std::memset(file.entries[1].name, 'w', 40); }, true, false},
    };
    const QTemporaryDir folder;
    for (const auto &[name, damage, hasGlass, hasWall] : rows) {
        SCOPED_TRACE(name);
        Layout layout;
        damage(layout);
        QFile output(folder.filePath(QString::fromLatin1(name)));
        ASSERT_TRUE(output.open(QIODevice::WriteOnly) && output.write(written(layout)) == layout.size);
        output.close();
        const PixelFile file(output.fileName());
        const QImage glass = file.image(u"glass"_s), wall = file.image(u"wall"_s);
        EXPECT_EQ(!glass.isNull(), hasGlass);
        EXPECT_EQ(!wall.isNull(), hasWall);
        if (hasGlass) {
            EXPECT_EQ(glass.size(), QSize(2, 1));
            EXPECT_EQ(reinterpret_cast<const quint32 *>(glass.constBits())[0], halfRed);
            EXPECT_EQ(glass.pixel(1, 0), 0u);
        }
        if (hasWall) {
            EXPECT_EQ(wall.size(), QSize(1, 2));
            EXPECT_TRUE(wall.pixel(0, 0) == qRgb(0, 0, 255) && wall.pixel(0, 1) == qRgb(0, 255, 0));
        }
        EXPECT_TRUE(file.image(u"glas"_s).isNull() && file.image({}).isNull());
    }
    EXPECT_TRUE(PixelFile(folder.filePath(u"none"_s)).image(u"glass"_s).isNull());
}

}  // namespace kestrel::tarnwell
