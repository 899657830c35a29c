#include "HeronController.h"

#include <QtGlobal>

namespace kestrel {

namespace {

constexpr ModuleOverview heronOverview = {
    .kind = ModuleSettingDVD,
    .image = "heron_module",
    .headline = QT_TRANSLATE_NOOP("TarnwellPublic", "Your DVDs, as files"),
    .plans = {QT_TRANSLATE_NOOP("TarnwellPublic", "It will copy a DVD to a disc image or a folder."),
              QT_TRANSLATE_NOOP("TarnwellPublic", "It will convert titles to videos for every device."),
              QT_TRANSLATE_NOOP("TarnwellPublic", "It will keep the sound track in the language that you prefer.")},
};

}  // namespace

HeronController::HeronController(const ModuleConfigure &configure) : OverviewController(heronOverview, configure) {}

}  // namespace kestrel
