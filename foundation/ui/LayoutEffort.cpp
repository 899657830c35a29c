#include "LayoutEffort.h"

#include <QHash>

#include <algorithm>

namespace kestrel::foundation {

namespace {

constexpr char32_t beyondLatin = 0x250;
constexpr int latinLetter = 1;
constexpr int otherScript = 10;
constexpr int markOnLetter = 12;
constexpr int firstTime = 16;
constexpr int changeOfKind = 12;
constexpr int newFont = 700;
constexpr int newFontSearched = 1700;  ///< for a script that the font itself may not have

constexpr struct {
    QChar::Script script;
    int effort;
} scriptEfforts[] = {
    {QChar::Script_Latin, 2},    {QChar::Script_Greek, 2},    {QChar::Script_Cyrillic, 2},   {QChar::Script_Han, 3},
    {QChar::Script_Hiragana, 3}, {QChar::Script_Katakana, 3}, {QChar::Script_Hangul, 3},     {QChar::Script_Thai, 4},
    {QChar::Script_Arabic, 5},   {QChar::Script_Hebrew, 5},   {QChar::Script_Devanagari, 5},
};

int letterEffort(char32_t character, QChar::Script script)
{
    if (character < beyondLatin)
        return latinLetter;
    if (script == QChar::Script_Inherited)
        return markOnLetter;
    const auto known = std::find_if(std::begin(scriptEfforts), std::end(scriptEfforts),
                                    [script](const auto &row) { return row.script == script; });
    return known != std::end(scriptEfforts) ? known->effort : otherScript;
}

quint64 fontKey(const TextStyle &style, int script)
{
    return quint64(style.bold) | quint64(style.italic) << 1 | quint64(style.place != TextPlace::OnLine) << 2 |
           quint64(std::clamp(style.pixelSize, 0, 255)) << 3 | quint64(script) << 12 |
           quint64(quint32(qHash(style.fontFamily))) << 32;
}

int directionOf(char32_t character, int surroundings)
{
    const QChar::Direction direction = QChar::direction(character);
    const bool isStrong = direction == QChar::DirL || direction == QChar::DirR || direction == QChar::DirAL;
    return isStrong ? int(direction) : surroundings;
}

}  // namespace

int LayoutEffort::add(char32_t character, const TextStyle &style)
{
    const QChar::Script script = QChar::script(character);
    int effort = letterEffort(character, script);
    if (character >= beyondLatin && !m_characters.contains(character)) {
        m_characters.insert(character);
        effort += firstTime;
    }
    // Blanks and most signs go with what is around them.
    Kind kind = {script > QChar::Script_Common ? int(script) : m_kind.script, directionOf(character, m_kind.direction)};
    if (kind != m_kind || QChar::direction(character) == QChar::DirAN)
        effort += changeOfKind;
    m_kind = kind;
    if (const quint64 font = fontKey(style, kind.script); font != m_font) {
        m_font = font;
        if (!m_fonts.contains(font)) {
            m_fonts.insert(font);
            effort += character < beyondLatin ? newFont : newFontSearched;
        }
    }
    return effort;
}

}  // namespace kestrel::foundation
