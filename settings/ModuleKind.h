#pragma once

#include <QString>

namespace kestrel {

/// Which module: the one numbering of them, everywhere. The number is the dispatcher's type and the place on the home
/// screen, from the left.
enum ModuleSettingKind : qint32 {
    ModuleSettingVideo = 0,
    ModuleSettingDVD = 1,
    ModuleSettingDownload = 2,
    ModuleSettingRecord = 3,
};

/// What a module is called in the settings: in their archive, in key paths ("video.videoOutputPath") and as the mode
/// that is on screen.
inline QString moduleKey(ModuleSettingKind kind)
{
    static constexpr QStringView keys[] = {u"video", u"dvd", u"downloader", u"recorder"};
    return keys[kind].toString();
}

}  // namespace kestrel
