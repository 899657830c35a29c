#include "WholeDiscJob.h"

#include "DiscCheck.h"

#include "jobs/OutputFile.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

void WholeDiscJob::checkCopy(const QString &copy, const disc::DiscContents &wanted)
{
    tellStage("Checking the copy…"_key);
    run(discInfoCommand(request().tools, copy), [this, copy, wanted](const ToolEnding &ending) {
        const auto found = disc::discContentsFromJson(QJsonDocument::fromJson(ending.output).object());
        if (!ending.isGood() || !found)
            return fail("The copy could not be read back."_key, ending.lastWords);
        if (const Sentence mismatch = discMismatch(wanted, *found); !mismatch.isEmpty()) {
            // Of a disc that could not be read as a whole, what there is stays.
            if (problems().isEmpty())
                return fail(mismatch);
            addProblem(mismatch);
        }
        if (const disc::DiscTitle *main = found->mainTitle()) {
            setFact(u"seconds"_s, main->seconds);
            if (const disc::DiscTitle *original = wanted.mainTitle())
                setFact(u"wantedSeconds"_s, original->seconds);
        }
        lookAtPicture(copy);
    });
}

void WholeDiscJob::lookAtPicture(const QString &copy)
{
    m_workFolder = std::make_unique<OutputFile>(request().folder, outputName(), QString(), OutputFile::Kind::Folder);
    if (!m_workFolder->isValid())
        return fail(m_workFolder->reason());
    run(discCoverCommand(request().tools, copy, 0, m_workFolder->partPath() + u"/picture.jpg"_s),
        [this](const ToolEnding &ending) {
            if (!ending.isGood() && contents().mainTitle())
                addProblem("No picture of the copy could be decoded."_key);
            copyIsGood();
        });
}

}  // namespace kestrel
