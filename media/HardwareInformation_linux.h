#pragma once

#include "HardwareInformation.h"

/// The kernel's own tables, read apart from where they lie.
namespace kestrel {

/// Sets processor, cores and threads from the text of /proc/cpuinfo. Where it does not tell cores from threads, each
/// thread is a core.
void readProcessorTable(const QByteArray &table, HardwareInformation &hardware);

/// The graphics devices in a folder like /sys/class/drm, in the order of their numbers: "Intel 8086:9a49 (i915)".
QStringList graphicsDevicesIn(const QString &folder);

}  // namespace kestrel
