#pragma once

#include <QString>

#include <array>
#include <string_view>

namespace kestrel::foundation {

/// Splits HTML into tags and text, as forgivingly as a browser: there are no errors, and a tag or comment that never
/// ends takes the rest with it. Comments, declarations, processing instructions, scripts, style sheets and titles are
/// passed over; character references are resolved. The time is in proportion to the length.
class HtmlTokenizer {
public:
    enum class Token { Text, StartTag, EndTag, End };

    /// Values as they stand in a start tag, of those attributes that anybody asks for; null where absent.
    struct Attributes {
        QStringView color;
        QStringView href;
        QStringView size;
        QStringView style;
    };

    /// `html` must outlive the tokenizer.
    explicit HtmlTokenizer(QStringView html) : m_html(html) {}

    Token next();

    /// Of a text: a piece of it, blanks as they stand.
    QStringView text() const { return m_text; }
    /// Of a tag: in lower case, and empty where it is long.
    std::string_view name() const { return {m_name.data(), m_nameLength}; }
    /// Of a start tag.
    const Attributes &attributes() const { return m_attributes; }

    /// Whether HTML makes one blank of it and its like.
    static constexpr bool isBlank(QChar c) { return c == u' ' || c == u'\n' || c == u'\t' || c == u'\r' || c == u'\f'; }
    /// An attribute's value with its character references resolved.
    static QString resolved(QStringView value);

private:
    char16_t peek(qsizetype ahead) const;
    Token takeText(qsizetype from);
    Token takeReference();
    Token takeTag(bool isEnd);
    void takeName();
    bool takeAttribute();
    QStringView takeAttributeValue();
    void skipMarkup();
    void skipContent();

    QStringView m_html;
    qsizetype m_at = 0;
    QStringView m_text;
    std::array<QChar, 2> m_resolved;
    std::array<char, 10> m_name = {};
    std::size_t m_nameLength = 0;
    Attributes m_attributes;
};

}  // namespace kestrel::foundation
