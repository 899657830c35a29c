#include "DiscFolderJob.h"

#include "jobs/OutputFile.h"

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::operator""_key;

void DiscFolderJob::carryOut()
{
    m_output = std::make_shared<OutputFile>(request().folder, outputName(), QString(), OutputFile::Kind::Folder);
    if (!m_output->isValid())
        return fail(m_output->reason());
    tellStage({});
    const ToolCommand command{.program = request().tools.toFolder,
                              .arguments = {request().plan.source, m_output->partPath()}};
    runDiscTool(command, 0.97, [this](const ToolEnding &ending) {
        if (!isGoodStep(ending))
            return;
        const qint64 lost = lines().result["badSectors"_L1].toInteger();
        setFact(u"bytes"_s, lines().result["bytes"_L1]);
        setFact(u"faults"_s, lost);
        if (lost > 0)
            addProblem(
                {"%1 sectors of the disc could not be read and are empty in the copy."_key, {QString::number(lost)}});
        checkCopy(m_output->partPath(), contents());
    });
}

void DiscFolderJob::copyIsGood()
{
    place(std::exchange(m_output, nullptr));
}

}  // namespace kestrel
