#include "StyledText.h"

namespace kestrel::foundation {

QString plainText(const StyledText &text)
{
    QString result;
    for (const StyledRun &run : text)
        result += run.text;
    return result;
}

}  // namespace kestrel::foundation
