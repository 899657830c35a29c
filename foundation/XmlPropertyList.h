#pragma once

#include "PropertyList.h"

namespace kestrel::foundation {

/// The XML form, for PropertyList.cpp; the contract is there.
PropertyListResult readXmlPropertyList(const QByteArray &bytes, const PropertyListLimits &limits,
                                       PropertyListManner manner);
QByteArray writeXmlPropertyList(const QVariant &value, const PropertyListLimits &limits);

/// How XML spells a reference: a dictionary with one number not below 0 under this key.
inline constexpr QLatin1StringView xmlUidKey("CF$UID");
std::optional<PropertyListUid> uidFromDictionary(const QVariantMap &dictionary);

}  // namespace kestrel::foundation
