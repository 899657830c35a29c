#include "TextEncoding.h"

#include <QString>

#include <unicode/ucnv.h>
#include <unicode/ucsdet.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <memory>
#include <string>

using namespace Qt::StringLiterals;

namespace kestrel::foundation {

namespace {

constexpr const char *usualEncoding = "windows-1252";

/// What letters can be guessed from: lines that have others than those of ASCII, as many as the guess heeds.
QByteArray tellingLines(const QByteArray &text)
{
    constexpr qsizetype enough = 8000;
    QByteArray lines;
    for (qsizetype start = 0; start < text.size() && lines.size() < enough;) {
        const qsizetype end = text.indexOf('\n', start);
        const QByteArrayView line = QByteArrayView(text).sliced(start, (end < 0 ? text.size() : end + 1) - start);
        if (std::any_of(line.begin(), line.end(), [](char byte) { return byte & 0x80; }))
            lines += line.first(std::min(line.size(), enough));
        start += line.size();
    }
    return lines;
}

std::string guessedEncoding(const QByteArray &text)
{
    // 10 is what anything may be.
    constexpr int leastConfidence = 11;
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<UCharsetDetector, decltype(&ucsdet_close)> detector(ucsdet_open(&status), &ucsdet_close);
    const QByteArray lines = tellingLines(text);
    ucsdet_setText(detector.get(), lines.constData(), int32_t(lines.size()), &status);
    const UCharsetMatch *match = ucsdet_detect(detector.get(), &status);
    if (U_FAILURE(status) || !match || ucsdet_getConfidence(match, &status) < leastConfidence)
        return usualEncoding;
    const char *guessed = ucsdet_getName(match, &status);
    const std::string name = guessed ? guessed : usualEncoding;
    // What is not valid is none, and the usual encoding has all letters of the other.
    return U_FAILURE(status) || name.starts_with("UTF-") || name == "ISO-8859-1" ? usualEncoding : name;
}

}  // namespace

QByteArray utf8Text(const QByteArray &text)
{
    UErrorCode status = U_ZERO_ERROR;
    int32_t mark = 0;
    const char *marked = ucnv_detectUnicodeSignature(text.constData(), int32_t(text.size()), &mark, &status);
    if (text.isValidUtf8() && (!marked || QLatin1StringView(marked) == "UTF-8"_L1))
        return text;
    const std::string encoding = marked ? marked : guessedEncoding(text);
    std::string utf8;
    icu::UnicodeString(text.constData() + mark, int32_t(text.size()) - mark, encoding.c_str()).toUTF8String(utf8);
    return QByteArray::fromStdString(utf8);
}

}  // namespace kestrel::foundation
