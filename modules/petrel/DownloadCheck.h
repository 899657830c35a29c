#pragma once

#include "DownloadPlan.h"
#include "EngineAnswer.h"

#include "media/OutputCheck.h"

namespace kestrel {

/// What is told of a useless one that holds neither picture nor sound.
extern const tarnwell::TextKey notAFilm;

/// What is to be done with a file that has come.
struct DownloadCheck {
    enum class Finding {
        Good,
        NeedsConversion,  ///< it is whole, but not in the form that was asked for
        Incomplete,       ///< it can be kept, with what `sentence` says
        Useless,
    };
    Finding finding = Finding::Good;
    tarnwell::Sentence sentence = {};
    QString presetId = {};  ///< of the conversion
};

/// By what the file holds and what the site promised. `packets` is what its header says of packets, track by track, 0
/// where it does not.
DownloadCheck checkDownload(const DownloadPlan &plan, const EngineAnswer &answer, const FoundOutput &found,
                            const QList<qint64> &packets, const QString &extension, const QString &toolWords);

/// Packets of each track as the header of the file tells them, from the same report.
QList<qint64> toldPackets(const QByteArray &report);

}  // namespace kestrel
