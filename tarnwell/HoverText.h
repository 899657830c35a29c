#pragma once

#include <QString>

namespace kestrel::tarnwell {

/// What to give to a tooltip so that it shows `text` as it stands, blanks included: a tooltip guesses by itself whether
/// it was given markup. Null for an empty text.
inline QString hoverTextShowing(const QString &text)
{
    if (text.isEmpty())
        return {};
    return QStringLiteral("<qt><div style='white-space: pre-wrap'>%1</div></qt>").arg(text.toHtmlEscaped());
}

}  // namespace kestrel::tarnwell
