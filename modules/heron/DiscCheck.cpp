#include "DiscCheck.h"

#include <algorithm>
#include <cmath>

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

QStringList tracksOf(const disc::DiscTitle &title)
{
    QStringList tracks;
    for (const disc::DiscAudio &track : title.audio)
        tracks.append(track.codec + QLatin1Char(' ') + track.language);
    for (const disc::DiscSubtitle &track : title.subtitles)
        tracks.append(track.language);
    return tracks;
}

}  // namespace

bool isSameLength(double seconds, double expected)
{
    return std::abs(seconds - expected) <= std::max(1.0, expected / 100);
}

Sentence titleMismatch(const disc::DiscTitle &wanted, const disc::DiscTitle &found)
{
    const QString number = QString::number(found.number);
    if (!isSameLength(found.seconds, wanted.seconds))
        return {"Title %1 of the copy is %2 s long instead of %3 s."_key,
                {number, QString::number(found.seconds, 'f', 1), QString::number(wanted.seconds, 'f', 1)}};
    if (found.chapters.size() != wanted.chapters.size())
        return {"Title %1 of the copy has %2 chapters instead of %3."_key,
                {number, QString::number(found.chapters.size()), QString::number(wanted.chapters.size())}};
    if (tracksOf(found) != tracksOf(wanted))
        return {"Title %1 of the copy has other tracks than the disc."_key, {number}};
    return {};
}

Sentence discMismatch(const disc::DiscContents &wanted, const disc::DiscContents &found)
{
    if (found.titles.size() != wanted.titles.size())
        return {"The copy has %1 titles instead of %2."_key,
                {QString::number(found.titles.size()), QString::number(wanted.titles.size())}};
    for (qsizetype index = 0; index < wanted.titles.size(); ++index) {
        if (const Sentence mismatch = titleMismatch(wanted.titles[index], found.titles[index]); !mismatch.isEmpty())
            return mismatch;
    }
    return {};
}

}  // namespace kestrel
