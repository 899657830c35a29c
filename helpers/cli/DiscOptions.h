#pragma once

#include "ConvertOptions.h"
#include "modules/heron/DiscPlan.h"

#include <vector>

namespace kestrel::cli {

/// What `disc copy` and `disc rip` are told.
struct DiscChoice : ConvertRequest {
    DiscPlan disc;
    bool namesWay = false;
    QList<int> titles;  ///< empty for the main one
};

/// Of `disc copy`, and of `disc rip`: the converter's too. They apply to a DiscChoice.
std::vector<Option<ConvertRequest>> copyOptions();
std::vector<Option<ConvertRequest>> ripOptions();

}  // namespace kestrel::cli
