// discfolder SOURCE TARGET: copies the files of a film disc, menus included, into TARGET/VIDEO_TS.

#include "FileCopy.h"

#include <QFile>

using namespace kestrel::disc;

int main(int argumentCount, char **arguments)
{
    ToolRun run(ToolRun::Output::Lines);
    if (argumentCount != 3)
        return run.fail(DiscError::Usage);
    const QString path = QFile::decodeName(arguments[1]);
    const auto source = DiscSource::open(path);
    if (!source)
        return run.fail(source.reason());
    return FileCopy(run, *source, path, QFile::decodeName(arguments[2])).copy();
}
