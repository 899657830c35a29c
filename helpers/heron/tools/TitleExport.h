#pragma once

#include "DiscTables.h"
#include "TitleReading.h"
#include "ToolRun.h"
#include "helpers/heron/TitleClock.h"

#include <QElapsedTimer>

#include <map>
#include <memory>
#include <optional>
#include <set>

namespace kestrel::disc {

class SubtitleFiles;

/// What of a title is wanted.
struct TitleWish {
    int title = 0;  ///< 0 for the main one
    int firstChapter = 1, lastChapter = 999;
    int angle = 1;
    QString subtitlePrefix;        ///< where its subtitles go as files; empty for nowhere
    bool keepsNavigation = false;  ///< whether the disc's own navigation packs stay in the stream
    /// The streams of sound and subtitles that are wanted, and under which numbers; nothing for all, as they are.
    std::optional<std::map<int, int>> streams;
};

/// Writes the program stream of a title's cells in play order, on one clock that goes through.
class TitleExport {
public:
    TitleExport(ToolRun &run, const DiscTitle &title, QList<TitleCell> cells, const TitleWish &wish, FilmFile film);
    ~TitleExport();

    /// The tool's exit status.
    int write();

private:
    void findLead();
    bool take(Sector sector, const TitleCell &cell, bool afterLoss);
    bool takeFilm(Sector sector);
    bool isSoundOfBefore(const Packets &packets);
    bool isWanted(const Packet &packet) const;
    bool append(Sector sector);
    bool flush();
    bool giveUp(DiscError error);
    void report();
    QJsonObject result() const;

    ToolRun &m_run;
    DiscTitle m_title;
    QList<TitleCell> m_cells;
    TitleWish m_wish;
    TitleReading m_reading;
    TitleClock m_clock;
    std::unique_ptr<SubtitleFiles> m_subtitles;
    QByteArray m_buffer;
    QElapsedTimer m_sinceReport;
    std::map<int, qint64> m_soundTimes;  ///< the latest of each track
    std::set<int> m_streams;             ///< that came, but for the picture
    QList<double> m_chapters;
    std::optional<qint64> m_packClock;  ///< of the last pack
    std::optional<DiscError> m_error;
    qint64 m_lead = 0;  ///< when its first picture is shown
    qint64 m_zero = 0;  ///< when its first picture or sound is played
    qint64 m_sectors = 0, m_sectorsRead = 0, m_written = 0;
    qint64 m_emptySectors = 0;
    bool m_isAfterLoss = false;  ///< since the last unit began
    int m_chapter = 0, m_scrambled = 0, m_repeated = 0;
};

}  // namespace kestrel::disc
