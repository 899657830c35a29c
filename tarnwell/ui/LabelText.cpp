#include "LabelText.h"

#include "foundation/ui/StyledTextBuilder.h"

#include <algorithm>

namespace kestrel::tarnwell {

namespace {

constexpr int longestWord = 24;
constexpr QChar wrapPlace(0x200B);

}  // namespace

QString wrappable(const QString &text, int longestRun)
{
    QString result;
    int run = 0;
    for (const QChar c : text) {
        run = c.isSpace() || c == wrapPlace ? 0 : run + 1;
        if (run > longestRun && !c.isLowSurrogate()) {
            result += wrapPlace;
            run = 1;
        }
        result += c;
    }
    return result;
}

QString labelText(const QString &text, qsizetype maximumLength)
{
    foundation::StyledTextBuilder harmless;
    harmless.append(QStringView(text).first(qMin(text.size(), maximumLength)), {});
    QString result = foundation::plainText(harmless.text());
    std::replace_if(
        result.begin(), result.end(), [](QChar c) { return c.isSpace(); }, u' ');
    result = wrappable(result, longestWord);
    return text.size() > maximumLength ? result + QChar(0x2026) : result;
}

}  // namespace kestrel::tarnwell
