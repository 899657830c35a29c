#pragma once

#include "modules/common/OverviewController.h"

namespace kestrel {

/// The recording module. It has no recorder yet that could begin a session, so it does not ask for that message.
class PloversController final : public OverviewController {
public:
    explicit PloversController(const ModuleConfigure &configure);
};

}  // namespace kestrel
