#include "HomeTexts.h"

#include <QtGlobal>

namespace kestrel {

const std::array<HomeHoverText, 4> homeHoverTexts = {{
    {QT_TRANSLATE_NOOP("TarnwellPublic", "Convert & Process Video"),
     QT_TRANSLATE_NOOP(
         "TarnwellPublic",
         "Change video & audio formats, resize video files, edit 4K, 5K, 8K videos, like cut, merge, split, "
         "rotate, subtitle, watermark, etc. Experience No.1 fast hardware-accelerated processing.")},
    {QT_TRANSLATE_NOOP("TarnwellPublic", "Convert & Backup DVD"),
     QT_TRANSLATE_NOOP("TarnwellPublic",
                       "Backup DVDs in 6 modes, rip a full DVD to 180+ formats to play on Mac & mobiles, store on hard "
                       "drive, or enjoy on TV, etc. Rip a full DVD in 5 minutes!")},
    {QT_TRANSLATE_NOOP("TarnwellPublic", "Download Video"),
     QT_TRANSLATE_NOOP("TarnwellPublic",
                       "Download ultra-high quality online streaming videos and music from YouTube Facebook and 1000+ "
                       "sites. Convert downloaded files to MP4, MP3, etc.")},
    {QT_TRANSLATE_NOOP("TarnwellPublic", "Record Video"),
     QT_TRANSLATE_NOOP(
         "TarnwellPublic",
         "Record screen/webcam/iPhone videos. Capture live streams, games, desktop, and anything in MOV for "
         "YouTube. Support recording screen and webcam at the same time.")},
}};

const char *const homeRestingDescription = QT_TRANSLATE_NOOP(
    "TarnwellPublic",
    "The strongest video processing software to convert videos, audios and DVDs; edit, transcode, compress and adjust "
    "video files; download online media content; record screen and webcam.");

}  // namespace kestrel
