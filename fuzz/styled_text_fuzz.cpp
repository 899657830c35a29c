// Styled text out of HTML is short enough to lay out and holds nothing that a text document could stumble over.

#include "Require.h"
#include "foundation/ui/StyledHtml.h"

using namespace Qt::StringLiterals;
using namespace kestrel::foundation;

namespace {

bool isHarmless(QChar c)
{
    return c == u'\n' || c == u'\t' || (c.category() != QChar::Other_Control && !c.isNonCharacter());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const StyledText text = styledTextFromHtml(fuzzInput(data, size));
    require(text.size() <= 2'000);
    qsizetype unbroken = 0;
    for (const StyledRun &run : text) {
        require(!run.text.isEmpty() && run.text.isValidUtf16());
        require(run.style.indent <= 16 && run.style.pixelSize <= 39);
        require(run.style.link.isNull() || run.style.link.startsWith("http"_L1, Qt::CaseInsensitive) ||
                run.style.link.startsWith("mailto:"_L1, Qt::CaseInsensitive));
        for (const QChar c : run.text) {
            require(isHarmless(c));
            const bool wraps = c == u' ' || c == u'\t' || c == u'\n' || c == QChar(0x200B);
            unbroken = wraps ? 0 : unbroken + 1;
            require(unbroken <= 400);
        }
    }
    const QString plain = plainText(text);
    require(plain.size() <= 20'000 && !plain.startsWith(u'\n') && !plain.endsWith(u'\n'));
    return 0;
}
