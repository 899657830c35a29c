#pragma once

#include <QByteArray>

namespace kestrel::foundation {

/// A text of any encoding as UTF-8: what begins with a mark is what the mark says, what is valid UTF-8 stays as it is,
/// and the rest is guessed from its letters, Western European where they tell too little. Bytes that are no text become
/// U+FFFD.
QByteArray utf8Text(const QByteArray &text);

}  // namespace kestrel::foundation
