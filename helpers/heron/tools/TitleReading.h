#pragma once

#include "DiscSource.h"
#include "helpers/heron/TitleLayout.h"

#include <functional>
#include <vector>

namespace kestrel::disc {

/// Reads a title's film cell by cell, each sector once and in play order.
class TitleReading {
public:
    /// False ends the reading. `afterLoss`: sectors before this one could not be read.
    using Visit = std::function<bool(Sector sector, bool afterLoss)>;

    explicit TitleReading(FilmFile film) : m_film(std::move(film)) {}

    /// False where the visitor ended it, or the film is gone.
    bool read(const TitleCell &cell, const Visit &visit);

    FilmFile &film() { return m_film; }
    qint64 lostSectors() const { return m_lost; }

private:
    bool readRun(qint64 first, qint64 last, const Visit &visit);
    bool readInterleaved(const TitleCell &cell, const Visit &visit);

    FilmFile m_film;
    std::vector<uchar> m_buffer;
    qint64 m_lost = 0;
    bool m_afterLoss = false;
};

}  // namespace kestrel::disc
