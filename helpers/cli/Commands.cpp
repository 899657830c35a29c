#include "Command.h"
#include "ConvertCommand.h"
#include "DiscCommand.h"
#include "DownloadCommand.h"
#include "EngineCommand.h"
#include "JobsCommand.h"
#include "PresetsCommand.h"
#include "RecordCommand.h"

namespace kestrel::cli {

namespace {

constexpr Command commandTable[] = {
    {"convert", "[--preset ID] [--to FOLDER] [OPTION…] FILE…", "converts files, or folders of them", runConvert},
    {"disc", "info|copy|rip [OPTION…] SOURCE", "tells what a film disc holds, copies it, or makes files of its titles",
     runDisc},
    {"download", "[--to FOLDER] [--resolution 720P] [--format NAME] [OPTION…] ADDRESS…",
     "downloads films or their sound", runDownload},
    {"engine", "[--update]", "tells the version of the download engine, or looks for a newer one", runEngine},
    {"presets", "[--all]", "lists what files can be converted to", runPresets},
    {"record", "[--seconds N] [--screen NAME|--window ID|--area X,Y,W,H] [OPTION…]",
     "records the screen until it is interrupted", runRecord},
    {"jobs", "[retry|clear [ID…]]", "lists the jobs of all modules, also of the window; runs or removes them",
     runJobsCommand},
};

}  // namespace

std::span<const Command> commands()
{
    return commandTable;
}

}  // namespace kestrel::cli
