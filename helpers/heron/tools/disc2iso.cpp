// disc2iso SOURCE TARGET: copies a disc sector for sector; called again, it goes on where it was broken off.

#include "SectorCopy.h"

#include <QFile>

#include <csignal>

using namespace kestrel::disc;

int main(int argumentCount, char **arguments)
{
    ToolRun run(ToolRun::Output::Lines);
    if (argumentCount != 3)
        return run.fail(DiscError::Usage);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        std::signal(signal, [](int) { stopSectorCopy(); });
    return SectorCopy(run, QFile::decodeName(arguments[1]), QFile::decodeName(arguments[2])).copy();
}
