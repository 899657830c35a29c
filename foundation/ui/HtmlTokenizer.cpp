#include "HtmlTokenizer.h"

#include "HtmlCharacters.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

/// Elements that hold something other than text to show.
constexpr std::string_view passedOver[] = {"script", "style", "template", "title"};

constexpr bool isLetter(char16_t c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

int digitValue(char16_t c)
{
    if (c >= u'0' && c <= u'9')
        return c - u'0';
    const char16_t lower = c | 0x20;
    return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : 16;
}

struct CharacterReference {
    char32_t character = 0;
    qsizetype length = 0;  ///< in the text; 0 where there is no reference
};

CharacterReference numericReference(QStringView text)
{
    const int base = text.size() > 2 && (text[2].unicode() | 0x20) == u'x' ? 16 : 10;
    const qsizetype start = base == 16 ? 3 : 2;
    qsizetype at = start;
    char32_t value = 0;
    for (; at < text.size() && digitValue(text[at].unicode()) < base; ++at)
        value = std::min<char32_t>(value * base + digitValue(text[at].unicode()), QChar::LastValidCodePoint + 1);
    if (at == start)
        return {};
    const bool isCharacter = value > 0 && value <= QChar::LastValidCodePoint && !QChar::isSurrogate(value);
    const bool isClosed = at < text.size() && text[at] == u';';
    return {isCharacter ? value : char32_t(QChar::ReplacementCharacter), at + (isClosed ? 1 : 0)};
}

/// The reference that a text beginning with "&" begins with.
CharacterReference characterReference(QStringView text)
{
    if (text.size() > 1 && text[1] == u'#')
        return numericReference(text);
    const qsizetype end = text.left(longestHtmlCharacterName + 2).indexOf(u';');
    if (end < 0)
        return {};
    const char16_t character = htmlCharacterNamed(text.sliced(1, end - 1));
    return character ? CharacterReference{character, end + 1} : CharacterReference{};
}

}  // namespace

char16_t HtmlTokenizer::peek(qsizetype ahead) const
{
    return m_at + ahead < m_html.size() ? m_html[m_at + ahead].unicode() : u'\0';
}

HtmlTokenizer::Token HtmlTokenizer::next()
{
    while (m_at < m_html.size()) {
        if (peek(0) == u'&')
            return takeReference();
        if (peek(0) != u'<')
            return takeText(m_at);
        const char16_t following = peek(1);
        if (following == u'/' ? isLetter(peek(2)) : isLetter(following)) {
            const Token token = takeTag(following == u'/');
            if (token == Token::StartTag &&
                std::find(std::begin(passedOver), std::end(passedOver), name()) != std::end(passedOver)) {
                skipContent();
                continue;
            }
            return token;
        }
        if (following != u'/' && following != u'!' && following != u'?')
            return takeText(m_at + 1);
        skipMarkup();
    }
    return Token::End;
}

/// Everything up to the next markup; `from` is behind what is text in any case.
HtmlTokenizer::Token HtmlTokenizer::takeText(qsizetype from)
{
    const auto end = std::find_if(m_html.begin() + from, m_html.end(), [](QChar c) { return c == u'<' || c == u'&'; });
    m_text = QStringView(m_html.begin() + m_at, end);
    m_at += m_text.size();
    return Token::Text;
}

HtmlTokenizer::Token HtmlTokenizer::takeReference()
{
    const auto [character, length] = characterReference(m_html.sliced(m_at));
    if (length == 0)
        return takeText(m_at + 1);
    m_at += length;
    const auto units = QChar::fromUcs4(character);
    std::copy(units.begin(), units.end(), m_resolved.begin());
    m_text = QStringView(m_resolved.data(), units.end() - units.begin());
    return Token::Text;
}

QString HtmlTokenizer::resolved(QStringView value)
{
    QString result;
    while (!value.isEmpty()) {
        const auto [character, length] = value[0] == u'&' ? characterReference(value) : CharacterReference{};
        if (length > 0) {
            result += QChar::fromUcs4(character);
            value = value.sliced(length);
            continue;
        }
        const qsizetype next = value.indexOf(u'&', 1);
        const qsizetype plain = next < 0 ? value.size() : next;
        result += value.first(plain);
        value = value.sliced(plain);
    }
    return result;
}

HtmlTokenizer::Token HtmlTokenizer::takeTag(bool isEnd)
{
    m_at += isEnd ? 2 : 1;
    takeName();
    m_attributes = {};
    while (takeAttribute()) {
    }
    // A tag that never ends is none.
    if (m_at >= m_html.size())
        return Token::End;
    ++m_at;
    return isEnd ? Token::EndTag : Token::StartTag;
}

void HtmlTokenizer::takeName()
{
    const qsizetype start = m_at;
    for (char16_t c; (c = peek(0)) && !isBlank(c) && c != u'/' && c != u'>'; ++m_at) {
        const qsizetype index = m_at - start;
        if (index < qsizetype(m_name.size()))
            m_name[index] = c < 0x80 ? char(isLetter(c) ? c | 0x20 : c) : '\x7F';
    }
    m_nameLength = m_at - start <= qsizetype(m_name.size()) ? std::size_t(m_at - start) : 0;
}

/// False at the tag's ">" and at the end.
bool HtmlTokenizer::takeAttribute()
{
    static constexpr struct {
        QLatin1StringView name;
        QStringView Attributes::*value;
    } known[] = {{"color"_L1, &Attributes::color},
                 {"href"_L1, &Attributes::href},
                 {"size"_L1, &Attributes::size},
                 {"style"_L1, &Attributes::style}};
    while (m_at < m_html.size() && (isBlank(peek(0)) || peek(0) == u'/'))
        ++m_at;
    if (m_at >= m_html.size() || peek(0) == u'>')
        return false;
    const qsizetype start = m_at++;
    while (m_at < m_html.size() && !isBlank(peek(0)) && peek(0) != u'/' && peek(0) != u'>' && peek(0) != u'=')
        ++m_at;
    const QStringView name = m_html.sliced(start, m_at - start);
    const QStringView value = takeAttributeValue();
    for (const auto &row : known) {
        if (m_attributes.*row.value == nullptr && name.compare(row.name, Qt::CaseInsensitive) == 0)
            m_attributes.*row.value = value;
    }
    return true;
}

QStringView HtmlTokenizer::takeAttributeValue()
{
    const auto skipBlanks = [this] {
        while (isBlank(peek(0)))
            ++m_at;
    };
    skipBlanks();
    if (peek(0) != u'=')
        return {};
    ++m_at;
    skipBlanks();
    const char16_t quote = peek(0);
    qsizetype start = m_at;
    if (quote == u'"' || quote == u'\'') {
        const qsizetype end = m_html.indexOf(QChar(quote), ++start);
        m_at = end < 0 ? m_html.size() : end + 1;
        return m_html.sliced(start, (end < 0 ? m_html.size() : end) - start);
    }
    while (m_at < m_html.size() && !isBlank(peek(0)) && peek(0) != u'>')
        ++m_at;
    return m_html.sliced(start, m_at - start);
}

/// A comment, declaration, processing instruction or end tag without a name.
void HtmlTokenizer::skipMarkup()
{
    const bool isComment = m_html.sliced(m_at).startsWith("<!--"_L1);
    // "<!-->" is a whole comment.
    const qsizetype end = isComment ? m_html.indexOf("-->"_L1, m_at + 2) : m_html.indexOf(u'>', m_at);
    m_at = end < 0 ? m_html.size() : end + (isComment ? 3 : 1);
}

/// Up to the end tag of the element that has just begun; what is between is no markup.
void HtmlTokenizer::skipContent()
{
    const QLatin1StringView name(m_name.data(), qsizetype(m_nameLength));
    for (; m_at < m_html.size(); m_at += 2) {
        m_at = m_html.indexOf("</"_L1, m_at);
        if (m_at < 0)
            m_at = m_html.size();
        else if (m_html.sliced(m_at + 2).startsWith(name, Qt::CaseInsensitive))
            return;
    }
    m_at = m_html.size();
}

}  // namespace kestrel::foundation
