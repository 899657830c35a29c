#pragma once

#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <cstddef>

namespace kestrel::tarnwell {

/// A text of the catalogues, to be localised when it is shown. Only a literal marked with _key makes one, so that no
/// other text is ever taken for a key.
class TextKey {
public:
    constexpr TextKey() = default;  ///< none

    constexpr bool isEmpty() const { return !m_source; }
    constexpr const char *source() const { return m_source; }  ///< the English text; null for none
    QString localized() const;                                 ///< null for none

    friend consteval TextKey operator""_key(const char *source, std::size_t);

private:
    explicit constexpr TextKey(const char *source) : m_source(source) {}

    const char *m_source = nullptr;
};

consteval TextKey operator""_key(const char *source, std::size_t)
{
    return TextKey(source);
}

/// A sentence for the user: a text of the catalogues and what stands in its places (%1, %2 …). It stays a key until it
/// is shown, so that one that was stored yesterday is read in today's language.
class Sentence {
public:
    Sentence() = default;  ///< none
    Sentence(TextKey key, QStringList arguments = {});

    bool isEmpty() const { return m_key.isEmpty(); }
    QString localized() const;
    /// As it is written, in English: for logs and for programs that read results.
    QString english() const;

    QJsonValue toJson() const;  ///< null for none
    /// What `toJson` made; none for everything else.
    static Sentence fromJson(const QJsonValue &json);

    bool operator==(const Sentence &) const = default;

private:
    QString m_key;
    QStringList m_arguments;
};

}  // namespace kestrel::tarnwell
