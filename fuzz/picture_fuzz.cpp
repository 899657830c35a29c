// Whatever a server sends as a picture, there is none or one of a size to be shown, at once and in little memory.

#include "Require.h"
#include "foundation/ui/OutsidePicture.h"

#include <ctime>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const std::clock_t start = std::clock();
    const QImage image = kestrel::foundation::pictureFromOutside(fuzzInput(data, size));
    require(image.width() <= 1280 && image.height() <= 1280);
    require(std::clock() - start < CLOCKS_PER_SEC);  // slowed down by sanitizers
    return 0;
}
