#pragma once

#include "TranscodePlan.h"

namespace kestrel {

/// What the output of the plan is called, without its extension: the name of the first source, or the plan's pattern in
/// which {name}, {preset}, {folder} (of the source) and {date} (2024-12-31) are filled in.
QString outputBaseName(const TranscodePlan &plan, const QDate &today);

/// Where it goes: `folder`, or beside the first source.
QString outputFolder(const TranscodePlan &plan, const QString &folder);

}  // namespace kestrel
