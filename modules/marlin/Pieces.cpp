#include "Pieces.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using Piece = TranscodePlan::Piece;

constexpr double shortestPiece = 0.02;  // seconds; less than a picture

}  // namespace

QString timeText(double seconds)
{
    const qint64 milliseconds = std::llround(std::max(0.0, seconds) * 1000);
    const qint64 whole = milliseconds / 1000;
    QString text =
        u"%1:%2:%3"_s.arg(whole / 3600).arg(whole / 60 % 60, 2, 10, QChar(u'0')).arg(whole % 60, 2, 10, QChar(u'0'));
    if (milliseconds % 1000 == 0)
        return text;
    text += u".%1"_s.arg(milliseconds % 1000, 3, 10, QChar(u'0'));
    while (text.endsWith(u'0'))
        text.chop(1);
    return text;
}

std::optional<double> secondsOfTime(const QString &text)
{
    const QStringList parts = QString(text).replace(u',', u'.').trimmed().split(u':');
    if (parts.size() > 3)
        return std::nullopt;
    double seconds = 0;
    for (qsizetype i = 0; i < parts.size(); ++i) {
        bool isNumber = false;
        const double number = parts.at(i).toDouble(&isNumber);
        const bool isLast = i + 1 == parts.size();
        if (!isNumber || !std::isfinite(number) || number < 0 || (!isLast && number != std::floor(number)))
            return std::nullopt;
        seconds = seconds * 60 + number;
    }
    return seconds;
}

QList<Piece> soundPieces(const QList<Piece> &pieces, double duration)
{
    QList<Piece> sound;
    for (Piece piece : pieces) {
        piece.start = std::max(0.0, piece.start);
        piece.end = std::min(duration, piece.end);
        if (piece.end - piece.start >= shortestPiece)
            sound.append(piece);
    }
    // One that is the whole film is no cut.
    if (sound.size() == 1 && sound.first().start < shortestPiece && sound.first().end > duration - shortestPiece)
        sound.clear();
    return sound;
}

QList<Piece> otherPieces(QList<Piece> pieces, double duration)
{
    std::sort(pieces.begin(), pieces.end(), [](const Piece &a, const Piece &b) { return a.start < b.start; });
    QList<Piece> others;
    double end = 0;
    for (const Piece &piece : std::as_const(pieces)) {
        others.append({end, piece.start});
        end = std::max(end, piece.end);
    }
    others.append({end, duration});
    return soundPieces(others, duration);
}

}  // namespace kestrel
