#pragma once

#include "modules/common/OverviewController.h"

namespace kestrel {

/// The download module. It has no engine yet that could be updated, so it does not ask for that message.
class PetrelController final : public OverviewController {
public:
    explicit PetrelController(const ModuleConfigure &configure);
};

}  // namespace kestrel
