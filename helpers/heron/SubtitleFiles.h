#pragma once

#include "DiscContents.h"
#include "Pack.h"

#include <QFile>

#include <map>

namespace kestrel::disc {

/// Writes a title's subtitles beside its film, as a pair of PREFIX.sub (their packs) and PREFIX.idx (languages, size,
/// colours, times), so that an encoder has what the program stream does not carry.
class SubtitleFiles {
public:
    /// `zero`: the time of the film, in ticks, from which the index counts.
    SubtitleFiles(const QString &prefix, const DiscTitle &title, qint64 zero);

    bool open();
    /// A sector with a packet of subtitles, its clocks already moved. False where it could not be written.
    bool add(Sector sector, const Packet &packet);
    /// Writes the index. False where something could not be written.
    bool close();

    int count() const;

private:
    struct Track {
        QByteArray entries;
        int count = 0;
        qint64 bytesLeft = 0;  ///< of the subtitle that is under way
    };
    DiscTitle m_title;
    qint64 m_zero;
    QFile m_pictures, m_index;
    std::map<int, Track> m_tracks;
};

}  // namespace kestrel::disc
