#include "ProxyRule.h"

#include <unicode/regex.h>

namespace kestrel {

namespace {

constexpr char16_t addressWithScheme[] = uR"(\b[a-zA-z]+://[^\s]*)";
constexpr char16_t numericAddressWithScheme[] =
    uR"(\b[a-zA-Z|(socks5)]+://((?:(?:25[0-5]|2[0-4]\d|((1\d{2})|([1-9]?\d)))\.){3}(?:25[0-5]|2[0-4]\d|((1\d{2})|([1-9]?\d)))))";
constexpr char16_t portNumber[] = uR"(\b\d{1,5})";

constexpr int32_t maximumMilliseconds = 200;
constexpr int32_t maximumStackBytes = 1024 * 1024;

bool holdsMatch(const QString &text, const char16_t *pattern)
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::UnicodeString subject(false, reinterpret_cast<const char16_t *>(text.utf16()), int32_t(text.size()));
    icu::RegexMatcher matcher(icu::UnicodeString(true, pattern, -1), 0, status);
    if (U_FAILURE(status))
        return false;
    matcher.setTimeLimit(maximumMilliseconds, status);
    matcher.setStackLimit(maximumStackBytes, status);
    matcher.reset(subject);
    const bool isFound = matcher.find(status);
    return U_SUCCESS(status) && isFound;
}

}  // namespace

bool validateTheProxy(const QString &url, const QString &port)
{
    const bool isUrlValid = holdsMatch(url, addressWithScheme) || holdsMatch(url, numericAddressWithScheme);
    // A port that is none is the user's to see: it does not turn the proxy off.
    [[maybe_unused]] const bool isPortValid = holdsMatch(port, portNumber);
    return isUrlValid;
}

}  // namespace kestrel
