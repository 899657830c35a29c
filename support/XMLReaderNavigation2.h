#pragma once

#include "XMLDictionary.h"

namespace kestrel {

/// The value at the end of a path of keys with "." between them ("items.item.last.text"), or nothing. In an array a
/// component is an index from 0, or "last"; one that is no number is 0.
XMLValue retrieveForPath(const XMLDictionary &dictionary, QStringView path);

/// The same, with a dictionary as an array of one: a single child and several of them look alike.
XMLValue retrieveArrayForPath(const XMLDictionary &dictionary, QStringView path);

}  // namespace kestrel
