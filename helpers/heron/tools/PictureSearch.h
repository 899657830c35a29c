#pragma once

#include "DiscSource.h"
#include "helpers/heron/TitleLayout.h"

#include <QByteArray>
#include <QList>

namespace kestrel::disc {

/// How the pictures of a film are stored.
struct PictureFlags {
    int pictures = 0;
    int repeating = 0;    ///< with a field that is to be shown twice
    int progressive = 0;  ///< whole pictures, no fields of different moments

    void count(const QByteArray &video);
    /// Film of 24 pictures a second, shown as 30 by repeated fields.
    bool isPulledDown() const { return pictures >= 24 && repeating * 3 > pictures; }
    bool isProgressive() const { return pictures >= 24 && progressive * 10 > pictures * 9; }
};

/// The video of `count` sectors from the first on, without what is around it.
QByteArray videoAt(FilmFile &film, quint32 first, int count);

/// The first whole picture behind a sector, as a stream of its own that a decoder takes. Empty where there is none.
QByteArray pictureAt(FilmFile &film, quint32 sector);

/// The sector from which the last unit before a share of a title's length is found: at its begin and at its end too.
quint32 placeBefore(const QList<TitleCell> &cells, double share);

/// The sectors at the given shares of a title's length, in play order.
QList<quint32> placesIn(const QList<TitleCell> &cells, const QList<double> &shares);

}  // namespace kestrel::disc
