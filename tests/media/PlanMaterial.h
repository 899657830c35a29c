#pragma once

#include "media/TranscodeCommand.h"

/// Films as values and what is planned for them, without a file.
namespace kestrel::test {

using namespace Qt::StringLiterals;

using Plan = TranscodePlan;
using Kind = MediaTrack::Kind;

inline MediaTrack track(int index, Kind kind, const QString &codec, const QString &language = {})
{
    MediaTrack made;
    made.index = index;
    made.kind = kind;
    made.codec = codec;
    made.language = language;
    return made;
}

inline MediaTrack changed(MediaTrack made, const std::function<void(MediaTrack &)> &change)
{
    change(made);
    return made;
}

inline MediaTrack video(const QString &codec = u"h264"_s)
{
    return changed(track(0, Kind::Video, codec), [](MediaTrack &made) {
        made.isDefault = true;
        made.width = 1920;
        made.height = 1080;
        made.frameRate = 25;
        made.pixelFormat = u"yuv420p"_s;
    });
}

inline MediaTrack sound(int index, const QString &language = u"eng"_s, const QString &codec = u"aac"_s)
{
    return changed(track(index, Kind::Audio, codec, language), [](MediaTrack &made) {
        made.bitRate = 128'000;
        made.channels = 2;
        made.channelLayout = u"stereo"_s;
        made.sampleRate = 48000;
    });
}

inline MediaTrack subtitle(int index, const QString &codec, bool isBitmap = false)
{
    return changed(track(index, Kind::Subtitle, codec, u"fre"_s), [&](MediaTrack &made) { made.isBitmap = isBitmap; });
}

inline MediaInformation film(QList<MediaTrack> tracks = {video(), sound(1)})
{
    MediaInformation made;
    made.format = u"mov,mp4,m4a,3gp,3g2,mj2"_s;
    made.duration = 60;
    made.bytes = 10'000'000;
    made.tracks = std::move(tracks);
    return made;
}

inline Plan planFor(const QString &preset, const std::function<void(Plan &)> &change = {})
{
    Plan plan;
    plan.sources = {u"/films/a.mp4"_s};
    plan.preset = *presetOfId(preset);
    if (change)
        change(plan);
    return plan;
}

inline const TranscodePaths paths{.output = u"/out/.part"_s, .workFolder = u"/work"_s};

inline foundation::Result<TranscodeSteps, tarnwell::Sentence> stepsFor(const Plan &plan,
                                                                       const MediaInformation &source = film(),
                                                                       const TranscodeMachine &machine = {})
{
    return transcodeSteps(plan, {source}, machine, paths);
}

inline std::string lineOf(const TranscodeSteps &steps, qsizetype run = -1)
{
    return steps.runs.at(run < 0 ? steps.runs.size() - 1 : run).arguments.join(u' ').toStdString();
}

/// The last run's arguments; the reason where there is none.
inline std::string lineFor(const Plan &plan, const MediaInformation &source = film(),
                           const TranscodeMachine &machine = {})
{
    const auto steps = stepsFor(plan, source, machine);
    return steps ? lineOf(*steps) : "refused: " + steps.reason().english().toStdString();
}

}  // namespace kestrel::test
