#pragma once

#include <QList>

namespace kestrel::disc {

/// What tells the film from the other titles.
struct TitleShape {
    struct Cell {
        int titleSet = 0;
        quint32 firstSector = 0;
        double seconds = 0;

        bool operator==(const Cell &) const = default;
    };
    QList<Cell> cells;  ///< in play order
    int chapters = 0;
    int tracks = 0;  ///< sound and subtitles
};

struct MainTitleChoice {
    int main = -1;           ///< index; -1 where there are no titles
    QList<int> duplicateOf;  ///< for each title the index of an earlier one with the same cells, or -1
};

/// The longest is not always it: a cell counts once however often it is played, duplicates stand behind the first of
/// them, and of titles of nearly the same length the one that plays the disc forwards comes first.
MainTitleChoice chooseMainTitle(const QList<TitleShape> &titles);

}  // namespace kestrel::disc
