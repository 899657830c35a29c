#include "ModuleRow.h"

#include <algorithm>

namespace kestrel {

using tarnwell::operator""_key;

namespace {

constexpr ModuleRow rows[] = {
    {.kind = ModuleSettingVideo,
     .jobs = u"marlin",
     .title = "Video Converter"_key,
     .homeControls = u"convert",
     .homeImage = u"kestrel_convert",
     .headline = "Convert & Process Video"_key,
     .description = "Change video & audio formats, resize video files, edit 4K, 5K, 8K videos, like cut, merge, split, "
                    "rotate, subtitle, watermark, etc. Experience No.1 fast hardware-accelerated processing."_key},
    {.kind = ModuleSettingDVD,
     .jobs = u"heron",
     .title = "DVD Ripper"_key,
     .homeControls = u"rip",
     .homeImage = u"kestrel_dvd",
     .headline = "Convert & Backup DVD"_key,
     .description = "Backup DVDs in 6 modes, rip a full DVD to 180+ formats to play on Mac & mobiles, store on hard "
                    "drive, or enjoy on TV, etc. Rip a full DVD in 5 minutes!"_key},
    {.kind = ModuleSettingDownload,
     .jobs = u"petrel",
     .title = "Downloader"_key,
     .homeControls = u"download",
     .homeImage = u"kestrel_download",
     .headline = "Download Video"_key,
     .description = "Download ultra-high quality online streaming videos and music from YouTube Facebook and 1000+ "
                    "sites. Convert downloaded files to MP4, MP3, etc."_key},
    {.kind = ModuleSettingRecord,
     .jobs = u"plover",
     .title = "Recorder"_key,
     .homeControls = u"record",
     .homeImage = u"kestrel_record",
     .headline = "Record Video"_key,
     .description = "Record screen/webcam/iPhone videos. Capture live streams, games, desktop, and anything in MOV for "
                    "YouTube. Support recording screen and webcam at the same time."_key},
};

}  // namespace

std::span<const ModuleRow> moduleRows()
{
    return rows;
}

const ModuleRow *moduleRowOfJobs(QStringView jobs)
{
    const auto found =
        std::find_if(std::begin(rows), std::end(rows), [jobs](const ModuleRow &row) { return row.jobs == jobs; });
    return found == std::end(rows) ? nullptr : found;
}

}  // namespace kestrel
