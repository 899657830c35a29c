#include "StyledTextBuilder.h"

namespace kestrel::foundation {

namespace {

constexpr char16_t zeroWidthSpace = 0x200B;

bool isUnwanted(char32_t c)
{
    if (c < 0x20)
        return c != U'\t' && c != U'\n';
    if (c < 0x7F)
        return false;
    return c <= 0x9F || (c >= 0x2028 && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069) || c == 0xFEFF || c == 0xFFFC ||
           QChar::isNonCharacter(c);
}

bool isWrapPlace(char32_t c)
{
    return c == U' ' || c == U'\t' || c == U'\n' || c == zeroWidthSpace;
}

/// The code point at `at`, which moves behind it.
char32_t takeCodePoint(QStringView text, qsizetype &at)
{
    const QChar first = text[at++];
    if (!first.isSurrogate())
        return first.unicode();
    if (first.isHighSurrogate() && at < text.size() && text[at].isLowSurrogate())
        return QChar::surrogateToUcs4(first, text[at++]);
    return QChar::ReplacementCharacter;
}

}  // namespace

bool StyledTextBuilder::isVisible(QStringView text)
{
    for (qsizetype at = 0; at < text.size();) {
        if (!isUnwanted(takeCodePoint(text, at)))
            return true;
    }
    return false;
}

void StyledTextBuilder::append(QStringView text, const TextStyle &style)
{
    QString kept;
    for (qsizetype at = 0; at < text.size() && !m_isFull;) {
        char32_t c = takeCodePoint(text, at);
        if (isUnwanted(c))
            continue;
        if (c == U'\t' && style.indent == 0)
            c = U' ';
        const bool wraps = isWrapPlace(c);
        const bool needsWrap = !wraps && m_unbroken == maximumUnbroken;
        const qsizetype length = (QChar::requiresSurrogates(c) ? 2 : 1) + (needsWrap ? 1 : 0);
        m_layoutTime += m_effort.add(c, style);
        m_isFull = m_length + length > maximumLength || m_layoutTime > maximumLayoutTime;
        if (m_isFull)
            break;
        if (needsWrap)
            kept += QChar(zeroWidthSpace);
        kept += QChar::fromUcs4(c);
        m_length += length;
        m_unbroken = wraps ? 0 : needsWrap ? 1 : m_unbroken + 1;
    }
    if (kept.isEmpty())
        return;
    if (!m_text.isEmpty() && (m_text.last().style == style || m_text.size() == maximumRuns))
        m_text.last().text += kept;
    else
        m_text.append({kept, style});
}

void StyledTextBuilder::endLine(int times)
{
    if (m_text.isEmpty())
        return;
    const qsizetype room = maximumLength - m_length;
    m_isFull = m_isFull || times > room;
    const qsizetype added = qMin<qsizetype>(times, room);
    m_text.last().text += QString(added, u'\n');
    m_length += added;
    m_unbroken = 0;
}

}  // namespace kestrel::foundation
