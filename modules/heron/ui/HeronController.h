#pragma once

#include "modules/common/OverviewController.h"

namespace kestrel {

/// The DVD module. Its engine is still to come, so it takes part in nothing but being shown.
class HeronController final : public OverviewController {
public:
    explicit HeronController(const ModuleConfigure &configure);
};

}  // namespace kestrel
