#pragma once

#include "PropertyList.h"

namespace kestrel::foundation {

/// The binary form, for PropertyList.cpp; the contract is there.
PropertyListResult readBinaryPropertyList(const QByteArray &bytes, const PropertyListLimits &limits,
                                          PropertyListManner manner);
QByteArray writeBinaryPropertyList(const QVariant &value, const PropertyListLimits &limits);

}  // namespace kestrel::foundation
