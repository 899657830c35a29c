#pragma once

#include "StyledText.h"

#include <QByteArray>

namespace kestrel::foundation {

/// HTML in UTF-8 as styled text. Understood are b, strong, i, em, u, ins, s, del, strike, sup, sub, small, big, font
/// (colour, size), what HtmlStyle has of the style attribute, p, div, center, headings, br, lists and a (http, https,
/// mailto); of everything else the text is left, and of scripts, style sheets and titles nothing. Nothing is ever
/// loaded, and the time is in proportion to the length. Text beyond what StyledTextBuilder has room for is cut off;
/// runs without a blank get places to wrap at; elements nested deeper than 16 add no more looks.
StyledText styledTextFromHtml(const QByteArray &html);

}  // namespace kestrel::foundation
