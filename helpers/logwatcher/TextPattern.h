#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <functional>

namespace kestrel {

/// A text to look for in UTF-8, in any case of its letters.
class TextPattern {
public:
    struct Match {
        qint64 begin = 0;  ///< in bytes
        qint64 length = 0;
    };
    using Visitor = std::function<bool(const Match &)>;

    TextPattern() : TextPattern(QString()) {}
    explicit TextPattern(const QString &text);

    QString text() const { return m_text; }
    bool isEmpty() const { return m_text.isEmpty(); }

    /// The most bytes that a match can take: what blocks that are looked through one by one have to overlap.
    qint64 maximumLength() const { return maximumUnitLength * m_text.size(); }

    /// Shows `visit` the matches, which do not overlap, from the first until it answers false.
    void forEachIn(QByteArrayView bytes, const Visitor &visit) const;

private:
    static constexpr qint64 maximumUnitLength = 3;

    void forEachOfBytes(QByteArrayView bytes, const Visitor &visit) const;
    void forEachOfText(QByteArrayView bytes, const Visitor &visit) const;

    QString m_text;
    QByteArray m_lowerCase;  ///< empty where the text is not plain ASCII
    std::array<qsizetype, 256> m_skips = {};
};

}  // namespace kestrel
