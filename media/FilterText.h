#pragma once

#include <QString>

namespace kestrel {

/// A value of a filter's option as it stands in a filter graph, whatever letters it has: `subtitles=filename=` +
/// filterValue(path).
QString filterValue(const QString &text);

/// A number as ffmpeg reads it, with no more places than it needs.
QString numberText(double number);
/// Pictures a second, as a fraction where it is one of the broadcasters': "30000/1001".
QString rateText(double rate);
/// The number of a rate from a table: 29.97… for "30000/1001".
double rateNumber(const QString &text);

}  // namespace kestrel
