#include "WholeDiscJob.h"

#include "DiscCheck.h"

#include <QJsonArray>
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
        lookAtPictures(copy);
    });
}

void WholeDiscJob::lookAtPictures(const QString &copy)
{
    runDiscTool(discPictureCheckCommand(request().tools, copy), 0.01, [this](const ToolEnding &ending) {
        if (!ending.isGood() && contents().mainTitle())
            addProblem("No picture of the copy could be decoded."_key);
        for (const QJsonValue &seconds : lines().result["missing"_L1].toArray())
            addProblem({"Nothing could be decoded at %1 s."_key, {QString::number(seconds.toDouble(), 'f', 1)}});
        copyIsGood();
    });
}

}  // namespace kestrel
