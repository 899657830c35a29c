#include "foundation/ui/OutsidePicture.h"

#include <gtest/gtest.h>

#include <QBuffer>

namespace kestrel::foundation {

TEST(OutsidePictureTest, StandsUprightAsItsExifSays)
{
    QBuffer jpeg;
    jpeg.open(QIODevice::WriteOnly);
    ASSERT_TRUE(QImage(40, 20, QImage::Format_RGB32).save(&jpeg, "jpeg"));
    QByteArray bytes = jpeg.data();
    // A quarter turn clockwise, as cameras write it.
    bytes.insert(2, QByteArray::fromHex("ffe10022457869660000"
                                        "4d4d002a00000008"
                                        "0001"
                                        "011200030000000100060000"
                                        "00000000"));
    EXPECT_EQ(pictureFromOutside(bytes).size(), QSize(20, 40));
}

}  // namespace kestrel::foundation
