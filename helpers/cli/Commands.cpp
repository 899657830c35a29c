#include "Command.h"
#include "ConvertCommand.h"
#include "DiscCommand.h"
#include "JobsCommand.h"
#include "PresetsCommand.h"

namespace kestrel::cli {

namespace {

constexpr Command commandTable[] = {
    {"convert", "[--preset ID] [--to FOLDER] [OPTION…] FILE…", "converts files, or folders of them", runConvert},
    {"disc", "info|copy|rip [OPTION…] SOURCE", "tells what a film disc holds, copies it, or makes files of its titles",
     runDisc},
    {"presets", "[--all]", "lists what files can be converted to", runPresets},
    {"jobs", "", "lists the jobs of all modules, also of the window", runJobsCommand},
};

}  // namespace

std::span<const Command> commands()
{
    return commandTable;
}

}  // namespace kestrel::cli
