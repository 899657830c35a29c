#pragma once

#include "LayoutEffort.h"

namespace kestrel::foundation {

/// Collects styled text out of texts from outside, and keeps it harmless to lay out: control characters, those that
/// turn the direction of the text or mean something to a text document, and half surrogate pairs never get in; a tab
/// outside of lists becomes a blank, for thousands of them take seconds; a
/// stretch without a blank gets a place to wrap at after every `maximumUnbroken` characters; and what is beyond
/// `maximumLength` (UTF-16 units, all runs together), or would take longer than `maximumLayoutTime` to lay out, is cut
/// off. From `maximumRuns` on the looks no longer change.
class StyledTextBuilder {
public:
    static constexpr qsizetype maximumLength = 20'000;
    static constexpr int maximumUnbroken = 200;
    static constexpr qsizetype maximumRuns = 2'000;
    static constexpr int maximumLayoutTime = 30'000;  ///< as LayoutEffort has it

    /// Whether anything of it would get in.
    static bool isVisible(QStringView text);
    void append(QStringView text, const TextStyle &style);
    void endLine(int times = 1);  ///< adds "\n" to the last run; nothing where there is none

    bool isEmpty() const { return m_text.isEmpty(); }
    bool isFull() const { return m_isFull; }
    const StyledText &text() const { return m_text; }

private:
    StyledText m_text;
    qsizetype m_length = 0;
    int m_unbroken = 0;  ///< characters since the last place to wrap at
    LayoutEffort m_effort;
    int m_layoutTime = 0;
    bool m_isFull = false;
};

}  // namespace kestrel::foundation
