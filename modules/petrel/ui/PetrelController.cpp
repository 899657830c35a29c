#include "PetrelController.h"

#include <QtGlobal>

namespace kestrel {

namespace {

constexpr ModuleOverview petrelOverview = {
    .kind = ModuleSettingDownload,
    .image = "petrel_module",
    .headline = QT_TRANSLATE_NOOP("TarnwellPublic", "Videos from the web, on your disk"),
    .plans = {QT_TRANSLATE_NOOP("TarnwellPublic", "It will save videos and music from addresses that you paste."),
              QT_TRANSLATE_NOOP("TarnwellPublic",
                                "It will fetch several at a time, in the resolution that you prefer."),
              QT_TRANSLATE_NOOP("TarnwellPublic", "It will go through your proxy where you have one.")},
};

}  // namespace

PetrelController::PetrelController(const ModuleConfigure &configure) : OverviewController(petrelOverview, configure) {}

}  // namespace kestrel
