#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace kestrel {

struct TranscoderCodecs;

/// What the machine has for video work. What the system does not tell is null, empty or 0.
struct HardwareInformation {
    QString processor;
    int cores = 0;    ///< physical ones
    int threads = 0;  ///< that run at the same time on all cores
    qint64 memoryBytes = 0;
    QStringList graphicsDevices;
};

/// Reads a few small files of the system's; any thread.
HardwareInformation hardwareInformation();

/// One line of what is shown, in the interface language.
struct HardwareRow {
    QString label;
    QString value;
    bool operator==(const HardwareRow &) const = default;
};

QList<HardwareRow> hardwareRows(const HardwareInformation &hardware, const TranscoderCodecs &codecs);

/// The rows as text, one a line, for the clipboard.
QString hardwareText(const QList<HardwareRow> &rows);

}  // namespace kestrel
