#include "AllRecipes.h"

#include "jobs/JobQueue.h"
#include "media/MediaProber.h"
#include "media/Preset.h"
#include "modules/heron/DiscTools.h"
#include "modules/marlin/Conversion.h"
#include "modules/petrel/Download.h"

#include <QThread>

namespace kestrel::cli {

namespace {

std::shared_ptr<JKestrelSettingDispatcher> settingsOf(ModuleSettingKind kind)
{
    return JKestrelSettingDispatcher::SettingDispatcherWithType(kind);
}

}  // namespace

DiscTools interruptibleDiscTools(const JKestrelSettingDispatcher &settings)
{
    DiscTools tools = discTools(settings, QThread::idealThreadCount());
    tools.keepsCancelledImages = true;
    return tools;
}

AllRecipes::AllRecipes(JobQueue &queue)
    : m_video(settingsOf(ModuleSettingVideo)),
      m_disc(settingsOf(ModuleSettingDVD)),
      m_download(settingsOf(ModuleSettingDownload)),
      m_record(settingsOf(ModuleSettingRecord)),
      m_transcodes([this] { return transcodeTools(*m_video, QThread::idealThreadCount()); }),
      m_discs([this] { return interruptibleDiscTools(*m_disc); }),
      m_downloads([this] { return downloadTools(*m_download, QThread::idealThreadCount()); }),
      m_recordings([this] {
          return RecordTools{.transcoder = m_record->getTranscoderPath(),
                             .prober = proberBeside(m_record->getTranscoderPath())};
      }),
      m_queue(queue),
      m_recipes{{marlinJobs.toString(), &m_transcodes},
                {heronJobs.toString(), &m_discs},
                {petrelJobs.toString(), &m_downloads},
                {ploverJobs.toString(), &m_recordings}}
{
    for (const auto &[module, recipe] : m_recipes)
        queue.setRecipe(module, recipe);
    const int processors = QThread::idealThreadCount();
    setLanes(queue, conversionPlan(*m_video, builtInPresets().first(), processors).threads, processors);
    queue.setLaneLimit(Lane::Net, downloadsAtOnce(*m_download));
}

AllRecipes::~AllRecipes()
{
    for (const auto &[module, recipe] : m_recipes)
        m_queue.setRecipe(module, nullptr);
}

bool AllRecipes::knows(const QString &module) const
{
    return m_recipes.contains(module);
}

}  // namespace kestrel::cli
