#pragma once

#include "StyledText.h"

#include <QSet>

namespace kestrel::foundation {

/// What it takes to lay a text out, estimated in microseconds of a middling machine: letters of this or that script,
/// each of them for the first time, every change of script or direction, every font and script that is new together.
/// Without it 20,000 characters may take twenty times as long as 20,000 others.
class LayoutEffort {
public:
    /// Of this character behind those before it.
    int add(char32_t character, const TextStyle &style);

private:
    struct Kind {
        int script = 0;
        int direction = 0;
        bool operator==(const Kind &) const = default;
    };

    Kind m_kind;
    QSet<char32_t> m_characters;  ///< those beyond Latin so far
    QSet<quint64> m_fonts;
    quint64 m_font = 0;
};

}  // namespace kestrel::foundation
