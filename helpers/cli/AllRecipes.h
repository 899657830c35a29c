#pragma once

#include "media/TranscodeRecipe.h"
#include "modules/heron/DiscRecipe.h"
#include "modules/petrel/DownloadRecipe.h"
#include "modules/plover/RecordRecipe.h"
#include "settings/JKestrelSettingDispatcher.h"

#include <memory>

namespace kestrel::cli {

/// Here a signal cancels, and a long copy of a disc is not lost by it.
DiscTools interruptibleDiscTools(const JKestrelSettingDispatcher &settings);

/// How the jobs of every module are run, by the settings of each; for commands that go on with whatever there is. In
/// the queue while it lives.
class AllRecipes {
public:
    explicit AllRecipes(JobQueue &queue);
    ~AllRecipes();
    AllRecipes(const AllRecipes &) = delete;
    AllRecipes &operator=(const AllRecipes &) = delete;

    bool knows(const QString &module) const;

private:
    std::shared_ptr<JKestrelSettingDispatcher> m_video, m_disc, m_download, m_record;
    TranscodeRecipe m_transcodes;
    DiscRecipe m_discs;
    DownloadRecipe m_downloads;
    RecordRecipe m_recordings;
    JobQueue &m_queue;
    const std::map<QString, JobRecipe *> m_recipes;
};

}  // namespace kestrel::cli
