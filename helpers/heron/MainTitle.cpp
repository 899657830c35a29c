#include "MainTitle.h"

#include <algorithm>
#include <set>
#include <tuple>
#include <utility>

namespace kestrel::disc {

namespace {

/// Titles are as good as equally long above this share of the longest.
constexpr double nearlyAsLong = 0.95;

double secondsOfDistinctCells(const TitleShape &title)
{
    std::set<std::pair<int, quint32>> seen;
    double seconds = 0;
    for (const TitleShape::Cell &cell : title.cells)
        if (seen.emplace(cell.titleSet, cell.firstSector).second)
            seconds += cell.seconds;
    return seconds;
}

int stepsBack(const TitleShape &title)
{
    int steps = 0;
    for (qsizetype i = 1; i < title.cells.size(); ++i)
        if (title.cells[i].titleSet == title.cells[i - 1].titleSet &&
            title.cells[i].firstSector <= title.cells[i - 1].firstSector)
            ++steps;
    return steps;
}

}  // namespace

MainTitleChoice chooseMainTitle(const QList<TitleShape> &titles)
{
    MainTitleChoice choice;
    QList<double> lengths;
    double longest = 0;
    for (qsizetype i = 0; i < titles.size(); ++i) {
        const auto same = std::find_if(titles.begin(), titles.begin() + i,
                                       [&](const TitleShape &other) { return other.cells == titles[i].cells; });
        const bool isDuplicate = same != titles.begin() + i && !titles[i].cells.isEmpty();
        choice.duplicateOf.append(isDuplicate ? static_cast<int>(same - titles.begin()) : -1);
        lengths.append(secondsOfDistinctCells(titles[i]));
        longest = std::max(longest, lengths.last());
    }
    const auto rank = [&](qsizetype i) {
        return std::tuple(stepsBack(titles[i]), -titles[i].tracks, -titles[i].chapters, -lengths[i]);
    };
    for (qsizetype i = 0; i < titles.size(); ++i) {
        if (choice.duplicateOf[i] >= 0 || lengths[i] < longest * nearlyAsLong)
            continue;
        if (choice.main < 0 || rank(i) < rank(choice.main))
            choice.main = static_cast<int>(i);
    }
    return choice;
}

}  // namespace kestrel::disc
