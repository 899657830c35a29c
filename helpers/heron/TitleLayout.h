#pragma once

#include <QList>

namespace kestrel::disc {

/// One cell of a title as it is played.
struct TitleCell {
    quint32 firstSector = 0;  ///< in the film of its title set
    quint32 lastSector = 0;
    double seconds = 0;
    int chapter = 0;             ///< from 1
    int vob = 0, number = 0;     ///< as its units name it; 0 where the tables do not tell
    bool isInterleaved = false;  ///< other angles' units stand between its own
    bool hasOwnClock = false;    ///< its clock begins anew
    int stillSeconds = 0;        ///< its last picture stands that long; 255 until somebody presses a button
    int angles = 1;              ///< cells that could be played in its place

    /// How long it holds its last picture by itself.
    int standingSeconds() const { return stillSeconds == 255 ? 0 : stillSeconds; }
};

/// The order in which a title's film is played.
struct TitleLayout {
    int titleSet = 0;
    QList<QList<TitleCell>> cells;  ///< in play order; each as its angles, one where there is no choice

    /// Those of an angle, from 1; cells without a choice are in all of them. Of the chapters first to last only.
    QList<TitleCell> played(int angle, int firstChapter, int lastChapter) const
    {
        QList<TitleCell> result;
        for (const QList<TitleCell> &choice : cells) {
            const TitleCell &cell = choice[qMin<qsizetype>(angle, choice.size()) - 1];
            if (cell.chapter >= firstChapter && cell.chapter <= lastChapter)
                result.append(cell);
        }
        return result;
    }
};

}  // namespace kestrel::disc
