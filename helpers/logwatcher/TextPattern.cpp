#include "TextPattern.h"

#include "LogText.h"

#include <algorithm>

namespace kestrel {

namespace {

constexpr std::array<uchar, 256> lowerCaseTable = [] {
    std::array<uchar, 256> table = {};
    for (size_t i = 0; i < table.size(); ++i)
        table[i] = uchar(i >= 'A' && i <= 'Z' ? i + ('a' - 'A') : i);
    return table;
}();

uchar lowerCaseByte(char byte)
{
    return lowerCaseTable[uchar(byte)];
}

}  // namespace

TextPattern::TextPattern(const QString &text) : m_text(text)
{
    if (!std::all_of(text.cbegin(), text.cend(), [](QChar character) { return character.unicode() < 0x80; }))
        return;
    m_lowerCase = text.toLower().toLatin1();
    m_skips.fill(m_lowerCase.size());
    for (qsizetype i = 0; i + 1 < m_lowerCase.size(); ++i)
        m_skips[uchar(m_lowerCase[i])] = m_lowerCase.size() - 1 - i;
    for (size_t upper = 'A'; upper <= 'Z'; ++upper)
        m_skips[upper] = m_skips[upper + ('a' - 'A')];
}

void TextPattern::forEachIn(QByteArrayView bytes, const Visitor &visit) const
{
    if (isEmpty())
        return;
    if (m_lowerCase.isEmpty())
        forEachOfText(bytes, visit);
    else
        forEachOfBytes(bytes, visit);
}

/// Horspool's search: it looks at the last byte of each place first and mostly skips the whole length.
void TextPattern::forEachOfBytes(QByteArrayView bytes, const Visitor &visit) const
{
    const qsizetype length = m_lowerCase.size();
    const uchar last = uchar(m_lowerCase.back());
    for (qsizetype i = 0; i + length <= bytes.size();) {
        const char end = bytes[i + length - 1];
        const bool isMatch = lowerCaseByte(end) == last &&
                             std::equal(m_lowerCase.cbegin(), m_lowerCase.cend() - 1, bytes.cbegin() + i,
                                        [](char mine, char other) { return uchar(mine) == lowerCaseByte(other); });
        if (isMatch && !visit({i, length}))
            return;
        i += isMatch ? length : m_skips[uchar(end)];
    }
}

void TextPattern::forEachOfText(QByteArrayView bytes, const Visitor &visit) const
{
    const LogText decoded = LogText::of(bytes);
    for (qsizetype i = 0; (i = decoded.text.indexOf(m_text, i, Qt::CaseInsensitive)) >= 0; i += m_text.size()) {
        const qint64 begin = decoded.offsets[size_t(i)];
        if (!visit({begin, qint64(decoded.offsets[size_t(i + m_text.size())]) - begin}))
            return;
    }
}

}  // namespace kestrel
