#pragma once

#include <QList>
#include <QRgb>
#include <QString>

#include <optional>

namespace kestrel::foundation {

enum class TextPlace { OnLine, Raised, Lowered };

/// How a run of text looks. What is left unset is the view's own.
struct TextStyle {
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeOut = false;
    TextPlace place = TextPlace::OnLine;
    std::optional<QRgb> color;
    QString fontFamily;
    int pixelSize = 0;      ///< points; 0 where unset
    QString link;           ///< http, https or mailto address that it leads to; null elsewhere
    int indent = 0;         ///< depth in nested lists; the same for all runs of one line
    bool centered = false;  ///< of the line that begins with it
    bool operator==(const TextStyle &) const = default;
};

struct StyledRun {
    QString text;  ///< "\n" ends a line; in a list item the marker stands before a "\t"
    TextStyle style;
    bool operator==(const StyledRun &) const = default;
};

/// Text with its looks, as a value that any thread may make and hand on.
using StyledText = QList<StyledRun>;

QString plainText(const StyledText &text);

}  // namespace kestrel::foundation
