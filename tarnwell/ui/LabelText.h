#pragma once

#include <QString>

namespace kestrel::tarnwell {

/// `text` with a place to wrap at in every run of `longestRun` characters without a blank, such as a path.
QString wrappable(const QString &text, int longestRun);

/// A text from outside as a wrapping label can show it: one paragraph, without characters that turn its direction, with
/// places to wrap at in long words, and cut off with an ellipsis after `maximumLength` characters. An ordinary text
/// comes back as it is.
QString labelText(const QString &text, qsizetype maximumLength);

}  // namespace kestrel::tarnwell
