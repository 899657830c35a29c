#include "PloversController.h"

#include <QtGlobal>

namespace kestrel {

namespace {

constexpr ModuleOverview ploverOverview = {
    .kind = ModuleSettingRecord,
    .image = "plover_module",
    .headline = QT_TRANSLATE_NOOP("TarnwellPublic", "Your screen, as a video"),
    .plans = {QT_TRANSLATE_NOOP("TarnwellPublic", "It will record the whole screen, a window or a part of it."),
              QT_TRANSLATE_NOOP("TarnwellPublic", "It will record the sound of the computer and of a microphone."),
              QT_TRANSLATE_NOOP("TarnwellPublic", "It will show mouse clicks where you want them seen.")},
};

}  // namespace

PloversController::PloversController(const ModuleConfigure &configure) : OverviewController(ploverOverview, configure)
{
}

}  // namespace kestrel
