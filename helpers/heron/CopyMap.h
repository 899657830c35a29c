#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace kestrel::disc {

/// Sectors that follow each other.
struct SectorRange {
    qint64 first = 0;
    qint64 count = 0;

    bool operator==(const SectorRange &) const = default;
};

/// Appends a range, as part of the last one where it follows that.
void append(QList<SectorRange> &ranges, SectorRange range);
/// Removes what stands from `position` on.
void cutAt(QList<SectorRange> &ranges, qint64 position);
qint64 sectorsIn(const QList<SectorRange> &ranges);

/// How far the copy of a disc is; kept beside the copy so that a broken-off one goes on.
struct CopyMap {
    qint64 bytes = 0;            ///< of the whole disc
    QString fingerprint;         ///< of the disc
    qint64 position = 0;         ///< the first pass came to this sector
    QList<SectorRange> untried;  ///< what it left out because of errors, to be tried again sector by sector
    QList<SectorRange> bad;      ///< what cannot be read

    /// Nothing where there is no map, or nonsense in one.
    static std::optional<CopyMap> load(const QString &path);
    bool save(const QString &path) const;
};

}  // namespace kestrel::disc
