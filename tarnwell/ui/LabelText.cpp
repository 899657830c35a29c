#include "LabelText.h"

#include "StyledTextBuilder.h"

namespace kestrel::tarnwell {

namespace {

constexpr int longestWord = 24;
constexpr QChar wrapPlace(0x200B);

}  // namespace

QString labelText(const QString &text, qsizetype maximumLength)
{
    foundation::StyledTextBuilder harmless;
    harmless.append(QStringView(text).first(qMin(text.size(), maximumLength)), {});
    QString result;
    int word = 0;
    for (const QChar c : foundation::plainText(harmless.text())) {
        word = c.isSpace() || c == wrapPlace ? 0 : word + 1;
        if (word > longestWord && !c.isLowSurrogate()) {
            result += wrapPlace;
            word = 1;
        }
        result += c.isSpace() ? QChar(u' ') : c;
    }
    return text.size() > maximumLength ? result + QChar(0x2026) : result;
}

}  // namespace kestrel::tarnwell
