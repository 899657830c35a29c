#pragma once

#include "settings/ModuleKind.h"
#include "tarnwell/TextKey.h"

#include <span>

namespace kestrel {

/// What the shell knows of a module beside its controller, whose factory comes from outside.
struct ModuleRow {
    ModuleSettingKind kind;
    QStringView jobs;  ///< what its jobs are stored under
    tarnwell::TextKey title;
    QStringView homeControls;  ///< on the home screen: "convert" stands for its "convertButton" and "convertLabel"
    QStringView homeImage;
    // While the pointer is over its button
    tarnwell::TextKey headline;
    tarnwell::TextKey description;
};

/// All modules, in the order of their kinds.
std::span<const ModuleRow> moduleRows();
/// Null where no module has such jobs.
const ModuleRow *moduleRowOfJobs(QStringView jobs);

}  // namespace kestrel
