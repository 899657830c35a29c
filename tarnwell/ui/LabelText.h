#pragma once

#include <QString>

namespace kestrel::tarnwell {

/// A text from outside as a wrapping label can show it: one paragraph, without characters that turn its direction, with
/// places to wrap at in long words, and cut off with an ellipsis after `maximumLength` characters. An ordinary text
/// comes back as it is.
QString labelText(const QString &text, qsizetype maximumLength);

}  // namespace kestrel::tarnwell
