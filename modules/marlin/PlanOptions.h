#pragma once

#include "media/TranscodePlan.h"

#include "tarnwell/TextKey.h"

#include <span>

namespace kestrel {

enum class OptionPage { Video, Picture, Cut, Sound, Subtitles, Output };

/// A value that a list offers for an option.
struct OptionChoice {
    tarnwell::TextKey text;
    double value;
};

/// One option of a plan as a row of a page: what it is called and how its value gets into the plan and out of it. All
/// values are numbers; switches are 0 or 1.
struct PlanOption {
    enum class Kind { Switch, Choice, Number };

    const char *id;  ///< of its control
    OptionPage page;
    tarnwell::TextKey label;
    Kind kind;
    double (*get)(const TranscodePlan &);
    void (*set)(TranscodePlan &, double);
    std::span<const OptionChoice> choices = {};
    double least = 0, most = 0, step = 1;
    int decimals = 0;
    tarnwell::TextKey unit = {};                       ///< "%1 MB"
    tarnwell::TextKey atLeast = {};                    ///< in place of the least value: "All"
    bool (*applies)(const TranscodePlan &) = nullptr;  ///< whether it has an effect as the plan is; null for always
};

std::span<const PlanOption> planOptions();
const PlanOption *planOption(QLatin1StringView id);  ///< null where there is none

}  // namespace kestrel
