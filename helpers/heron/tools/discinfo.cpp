// discinfo SOURCE: prints what a disc holds as one object.

#include "DiscTables.h"
#include "Protection.h"
#include "ToolRun.h"

#include <QFile>

using namespace kestrel::disc;

int main(int argumentCount, char **arguments)
{
    ToolRun run(ToolRun::Output::Lines);
    if (argumentCount != 2)
        return run.fail(DiscError::Usage);
    constexpr qint64 memory = qint64(1) << 30;
    // A drive may take half a minute to spin up, which costs no processor time.
    run.limit({.seconds = 120, .processorSeconds = 15, .memory = memory});
    const auto source = DiscSource::open(QFile::decodeName(arguments[1]));
    if (!source)
        return run.fail(source.reason());
    if (source->kind() != DiscSource::Kind::Drive)
        run.limit({.seconds = 18});
    auto tables = readTables(*source);
    if (!tables)
        return run.fail(tables.reason());
    const FilmState film = lookAtFilm(*source, *tables);
    tables->contents.isProtected = film.isProtected;
    tables->contents.isTruncated = film.isTruncated;
    run.line(toJson(tables->contents));
    return 0;
}
