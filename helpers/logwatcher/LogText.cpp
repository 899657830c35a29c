#include "LogText.h"

#include <algorithm>

namespace kestrel {

namespace {

struct Character {
    char32_t code = 0;
    int length = 0;  ///< bytes; 0 for what is no UTF-8
};

struct SequenceKind {
    uchar mask, lead;
    int length;
    char32_t minimum;
};

constexpr SequenceKind sequenceKinds[] = {
    {0x80, 0x00, 1, 0}, {0xE0, 0xC0, 2, 0x80}, {0xF0, 0xE0, 3, 0x800}, {0xF8, 0xF0, 4, 0x10000}};

Character characterAt(QByteArrayView bytes, qsizetype index)
{
    const uchar lead = uchar(bytes[index]);
    for (const auto &[mask, kindLead, length, minimum] : sequenceKinds) {
        if ((lead & mask) != kindLead)
            continue;
        if (index + length > bytes.size())
            return {};
        char32_t code = char32_t(lead & ~mask);
        for (qsizetype i = index + 1; i < index + length; ++i) {
            if ((uchar(bytes[i]) & 0xC0) != 0x80)
                return {};
            code = (code << 6) | (uchar(bytes[i]) & 0x3F);
        }
        return code >= minimum && code <= 0x10FFFF && !QChar::isSurrogate(code) ? Character{code, length} : Character();
    }
    return {};
}

bool isShapeless(QChar character)
{
    const char16_t code = character.unicode();
    return (code < 0x20 && code != u'\t') || (code >= 0x7F && code < 0xA0) || code == 0x2028 || code == 0x2029;
}

}  // namespace

LogText LogText::of(QByteArrayView bytes)
{
    LogText result{QString(bytes.size(), Qt::Uninitialized), std::vector<quint32>(size_t(bytes.size()) + 1)};
    // No character takes more units than bytes.
    char16_t *const units = reinterpret_cast<char16_t *>(result.text.data());
    quint32 *const offsets = result.offsets.data();
    qsizetype count = 0;
    const auto append = [&](char16_t unit, qsizetype index) {
        units[count] = unit;
        offsets[count++] = quint32(index);
    };
    for (qsizetype i = 0; i < bytes.size();) {
        const auto [code, length] = characterAt(bytes, i);
        if (length == 0) {
            append(QChar::ReplacementCharacter, i);
        } else if (QChar::requiresSurrogates(code)) {
            append(QChar::highSurrogate(code), i);
            append(QChar::lowSurrogate(code), i);
        } else {
            append(char16_t(code), i);
        }
        i += std::max(length, 1);
    }
    result.text.truncate(count);
    offsets[count] = quint32(bytes.size());
    result.offsets.resize(size_t(count) + 1);
    return result;
}

int LogText::indexOf(qint64 offset) const
{
    const auto place = std::lower_bound(offsets.cbegin(), offsets.cend() - 1, offset);
    return int(place - offsets.cbegin());
}

QString displayText(QString text)
{
    std::replace_if(text.begin(), text.end(), isShapeless, QChar(u'·'));
    return text;
}

}  // namespace kestrel
