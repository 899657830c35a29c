#include "AudioFilters.h"

#include "FilterText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

/// One filter takes half to twice the speed.
QStringList tempoFilters(double factor)
{
    QStringList filters;
    for (; factor > 2; factor /= 2)
        filters << u"atempo=2"_s;
    for (; factor < 0.5; factor *= 2)
        filters << u"atempo=0.5"_s;
    if (factor != 1)
        filters << u"atempo="_s + numberText(factor);
    return filters;
}

}  // namespace

QStringList soundFilters(const TranscodePlan &plan, const SoundTrackPlan &sound, std::optional<double> seconds)
{
    QStringList filters = tempoFilters(plan.speedFactor);
    if (plan.normalizes)
        filters << u"loudnorm=I=-16:TP=-1.5:LRA=11"_s;
    if (plan.volume != 0)
        filters << u"volume=%1dB"_s.arg(numberText(plan.volume));
    if (plan.volume > 0)
        filters << u"alimiter=limit=0.97"_s;
    if (plan.fadeIn > 0)
        filters << u"afade=t=in:d="_s + numberText(plan.fadeIn);
    if (plan.fadeOut > 0 && seconds)
        filters << u"afade=t=out:st=%1:d=%2"_s.arg(numberText(std::max(0.0, *seconds - plan.fadeOut)),
                                                   numberText(plan.fadeOut));
    if (!sound.layout.isNull())
        filters << u"aformat=channel_layouts="_s + sound.layout;
    return filters;
}

QStringList placedChannels(const MediaTrack &track)
{
    constexpr int mostGuessed = 8;
    if (track.channels <= mostGuessed || !track.channelLayout.isEmpty())
        return {};
    return {u"pan=7.1|c0=c0|c1=c1|c2=c2|c3=c3|c4=c4|c5=c5|c6=c6|c7=c7"_s};
}

QStringList soundArguments(const TranscodePlan &plan, const SoundTrackPlan &sound, int number)
{
    const auto option = [&](const QString &name) { return u"%1:a:%2"_s.arg(name).arg(number); };
    if (!sound.encoder)
        return {option(u"-c"_s), u"copy"_s};
    QStringList arguments{option(u"-c"_s), QString::fromLatin1(sound.encoder->encoder)};
    arguments += tableWords(sound.encoder->arguments);
    if (sound.bitRate > 0)
        arguments << option(u"-b"_s) << QString::number(sound.bitRate);
    else if (sound.encoder->usualQuality)
        arguments << option(u"-q"_s)
                  << QString::fromLatin1(plan.best ? sound.encoder->bestQuality : sound.encoder->usualQuality);
    if (sound.sampleRate > 0)
        arguments << option(u"-ar"_s) << QString::number(sound.sampleRate);
    return arguments;
}

}  // namespace kestrel
