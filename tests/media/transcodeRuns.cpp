// Tells what the transcoder would be run with: a line of JSON in, a line of JSON out. For catalogue.py.
#include "media/CoverTag.h"
#include "media/FramePreview.h"
#include "media/Preset.h"
#include "media/TranscodeCommand.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <iostream>
#include <string>

using namespace Qt::StringLiterals;
using namespace kestrel;

namespace {

QJsonObject stepsJson(const TranscodeSteps &steps)
{
    constexpr const char *kinds[] = {"video", "cover", "audio", "subtitle", "attachment", "data"};
    QJsonArray runs, covers, tracks, leftOut;
    for (const TranscodeRun &run : steps.runs) {
        runs.append(QJsonArray::fromStringList(run.arguments));
        const CoverTag cover = run.coverTag.value_or(CoverTag());
        covers.append(QJsonArray{cover.picturePath, cover.tagPath, cover.mimeType, cover.width, cover.height});
    }
    for (const OutputExpectation::Track &track : steps.expected.tracks)
        tracks.append(QJsonArray{QString::fromLatin1(kinds[int(track.kind)]), track.codec});
    for (const tarnwell::Sentence &sentence : steps.leftOut)
        leftOut.append(sentence.english());
    QJsonObject files;
    for (auto file = steps.files.begin(); file != steps.files.end(); ++file)
        files.insert(file.key(), QString::fromUtf8(file.value()));
    return {{u"runs"_s, runs},
            {u"covers"_s, covers},
            {u"files"_s, files},
            {u"tracks"_s, tracks},
            {u"seconds"_s, steps.expected.seconds ? QJsonValue(*steps.expected.seconds) : QJsonValue::Null},
            {u"mayBeLonger"_s, steps.expected.mayBeLonger},
            {u"rotation"_s, steps.expected.rotation},
            {u"chapters"_s, steps.expected.chapters},
            {u"decodesAll"_s, steps.expected.decodesAll},
            {u"work"_s, int(steps.work)},
            {u"leftOut"_s, leftOut}};
}

QJsonValue presetsJson()
{
    QJsonArray json;
    for (const Preset &preset : allPresets())
        json.append(preset.toJson());
    return json;
}

QJsonObject answer(const QJsonObject &question)
{
    if (question.contains(u"presets"_s))
        return {{u"presets"_s, presetsJson()}};
    if (const QJsonArray cover = question[u"cover"_s].toArray(); !cover.isEmpty())
        return {{u"written"_s, writeCoverTag({.picturePath = cover[0].toString(),
                                              .tagPath = cover[1].toString(),
                                              .mimeType = cover[2].toString(),
                                              .width = cover[3].toInt(),
                                              .height = cover[4].toInt()})
                                   .value_or(false)}};
    const auto plan = TranscodePlan::fromJson(question[u"plan"_s].toObject());
    if (!plan)
        return {{u"refused"_s, u"no plan"_s}};
    QList<MediaInformation> sources;
    for (const QJsonValue &report : question[u"reports"_s].toArray()) {
        auto source = parseMediaInformation(report.toString().toUtf8());
        if (!source)
            return {{u"refused"_s, u"no report"_s}};
        addPictureData(question[u"pictureData"_s].toString().toUtf8(), *source);
        sources.append(*source);
    }
    if (question.contains(u"preview"_s)) {
        const QJsonArray preview = question[u"preview"_s].toArray();
        const auto picture = preview.at(3).toBool() ? PreviewPicture::Result : PreviewPicture::Source;
        const auto place = preview.at(4).toBool() ? PreviewPlace::Exact : PreviewPlace::KeyPicture;
        return {{u"arguments"_s, QJsonArray::fromStringList(previewArguments(
                                     *plan, sources.first(), preview.at(0).toDouble(),
                                     {preview.at(1).toInt(), preview.at(2).toInt()}, picture, place))}};
    }
    const auto steps = transcodeSteps(
        *plan, sources, {},
        {.output = question[u"output"_s].toString(), .workFolder = question[u"workFolder"_s].toString()});
    return steps ? stepsJson(*steps) : QJsonObject{{u"refused"_s, steps.reason().english()}};
}

}  // namespace

int main()
{
    for (std::string line; std::getline(std::cin, line);) {
        const QJsonObject question = QJsonDocument::fromJson(QByteArray::fromStdString(line)).object();
        std::cout << QJsonDocument(answer(question)).toJson(QJsonDocument::Compact).toStdString() << std::endl;
    }
    return 0;
}
