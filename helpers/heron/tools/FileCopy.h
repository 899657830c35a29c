#pragma once

#include "DiscSource.h"
#include "ToolRun.h"

#include <QElapsedTimer>
#include <QList>

#include <optional>

namespace kestrel::disc {

/// Copies the film files of a disc, menus included, into TARGET/VIDEO_TS under their usual names. What cannot be read
/// is zeros in the copy and counted.
class FileCopy {
public:
    FileCopy(ToolRun &run, const DiscSource &source, const QString &sourcePath, const QString &target);

    /// The tool's exit status.
    int copy();

private:
    struct File {
        QString name;  ///< "VTS_01_1.VOB"
        QString path;  ///< that it is read from: the disc, or a file of a folder
        qint64 start = 0;
        qint64 bytes = 0;
    };
    QList<File> filesOfDisc() const;
    QList<File> filesOfFolder() const;
    std::optional<DiscError> copyFile(const File &file);
    std::optional<DiscError> copyPiece(int source, int target, qint64 from, qint64 to, qint64 bytes);
    void report();

    ToolRun &m_run;
    const DiscSource &m_source;
    QString m_sourcePath, m_targetPath;
    QByteArray m_buffer;
    qint64 m_wholeBytes = 0, m_copied = 0, m_badSectors = 0;
    int m_lostBlocks = 0;  ///< in a row, of the file of the moment
    QElapsedTimer m_clock, m_sinceReport;
};

}  // namespace kestrel::disc
