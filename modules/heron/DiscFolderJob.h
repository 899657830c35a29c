#pragma once

#include "WholeDiscJob.h"

namespace kestrel {

/// Copies a disc's files, menus included, into a folder with VIDEO_TS.
class DiscFolderJob final : public WholeDiscJob {
    Q_OBJECT
public:
    using WholeDiscJob::WholeDiscJob;

protected:
    void carryOut() override;
    void copyIsGood() override;
};

}  // namespace kestrel
