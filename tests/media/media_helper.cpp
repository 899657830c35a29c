// Converts one file as a job and prints how it ended as a line of JSON, or prints the ids of the presets:
// media_helper --presets
// media_helper FFMPEG FFPROBE PRESET FOLDER [--safe] [--encode] SOURCE…
#include "media/TranscodeJob.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace kestrel;

namespace {

const char *wordFor(JobState state)
{
    return state == JobState::Done               ? "done"
           : state == JobState::DoneWithProblems ? "done-with-problems"
           : state == JobState::Failed           ? "failed"
                                                 : "other";
}

void print(const JobOutcome &outcome)
{
    const QJsonObject line{{u"state"_s, QString::fromLatin1(wordFor(outcome.state))},
                           {u"sentence"_s, outcome.sentence.english()},
                           {u"details"_s, outcome.details.left(2000)},
                           {u"facts"_s, outcome.facts},
                           {u"outputs"_s, QJsonArray::fromStringList(outcome.outputs)}};
    std::puts(QJsonDocument(line).toJson(QJsonDocument::Compact).constData());
}

}  // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QStringList words = QCoreApplication::arguments().mid(1);
    if (words == QStringList(u"--presets"_s)) {
        for (const Preset &preset : allPresets())
            std::puts(preset.id.toUtf8().constData());
        return 0;
    }
    const Preset *preset = presetOfId(words.value(2));
    if (words.size() < 5 || !preset) {
        std::fputs("usage: media_helper FFMPEG FFPROBE PRESET FOLDER [OPTION…] SOURCE…\n", stderr);
        return 2;
    }
    TranscodeRequest request;
    request.tools = {.transcoder = words[0], .prober = words[1], .machine = {.processors = 2}};
    request.folder = words[3];
    request.plan.preset = *preset;
    request.plan.speed = 2;
    request.plan.safeMode = words.removeAll(u"--safe"_s) > 0;
    request.plan.copies = words.removeAll(u"--encode"_s) == 0;
    request.plan.sources = words.mid(4);
    TranscodeJob job(request);
    QObject::connect(&job, &Job::finished, &application, [](const JobOutcome &outcome) {
        print(outcome);
        QCoreApplication::quit();
    });
    job.start();
    return QCoreApplication::exec();
}
