#pragma once

#include "ToolRun.h"
#include "foundation/Result.h"
#include "helpers/heron/CopyMap.h"

#include <QElapsedTimer>

#include <cstdlib>
#include <memory>

namespace kestrel::disc {

/// Copies a drive or an image sector for sector. TARGET.map beside the target says how far it is, TARGET.bad lists in
/// the end what could not be read and is zeros in the copy.
class SectorCopy {
public:
    SectorCopy(ToolRun &run, const QString &source, const QString &target);
    ~SectorCopy();

    /// The tool's exit status.
    int copy();

private:
    struct Free {
        void operator()(uchar *memory) const { std::free(memory); }
    };

    std::optional<DiscError> openSource();
    std::optional<DiscError> openTarget();
    QString fingerprint();
    std::optional<DiscError> copyForward();
    std::optional<DiscError> copyAround(SectorRange range);
    std::optional<DiscError> tryAgain();
    std::optional<DiscError> tryAgainSlowly(SectorRange range);
    /// Sectors that came, from the first on; 0 where the first cannot be read.
    qint64 read(SectorRange range);
    bool write(qint64 firstSector, qint64 sectors);
    /// Ends the copy where it was asked to, or where the source is gone, with its map saved.
    std::optional<DiscError> pause();
    bool isOver() const;
    bool saveMap();
    bool writeList() const;
    void report();

    ToolRun &m_run;
    QString m_sourcePath, m_targetPath;
    int m_source = -1, m_target = -1;
    std::unique_ptr<uchar, Free> m_buffer;
    CopyMap m_map;
    qint64 m_sectors = 0;
    bool m_isGone = false;  ///< the source
    qint64 m_copied = 0;    ///< bytes in this run
    QElapsedTimer m_clock, m_sinceReport, m_sinceSave;
};

/// Ends a copy under way, with its map saved. May be called from a signal handler.
void stopSectorCopy();

}  // namespace kestrel::disc
