#pragma once

#include "RecordPlan.h"

#include "jobs/JobRecord.h"

#include <QList>
#include <QStringList>

namespace kestrel {

/// What is written down of a recording as it grows, so that one whose program was killed is found again: a file in a
/// folder of Kestrel's whose name tells the process. Any thread.
struct UnfinishedRecording {
    RecordPlan plan = {};
    QString folder = {};         ///< where the finished file goes
    QStringList stretches = {};  ///< absolute paths, in their order
    QString note = {};           ///< the path of what is written down

    /// Writes it down, under a new name where it has none. False where that cannot be done.
    bool write();
    /// Forgets it; the stretches stay.
    void forget();

    /// Those whose programs have ended and of which something is there; what has nothing left is forgotten.
    static QList<UnfinishedRecording> findAll();
    static std::optional<UnfinishedRecording> read(const QString &note);
};

}  // namespace kestrel
