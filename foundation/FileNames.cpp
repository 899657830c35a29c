#include "FileNames.h"

#include <QDir>

#include <sys/stat.h>
#include <unistd.h>
#include <climits>

namespace kestrel::foundation {

namespace {

constexpr char16_t firstStandIn = 0xDC80;
constexpr char16_t lastStandIn = 0xDCFF;

/// The length of the character that begins there, 0 where the bytes are none: too long forms, surrogates and what lies
/// beyond Unicode are refused, so that no two names share a text.
qsizetype characterLength(QByteArrayView bytes)
{
    const auto first = uchar(bytes.front());
    if (first < 0x80)
        return 1;
    const qsizetype length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || bytes.size() < length)
        return 0;
    for (qsizetype index = 1; index < length; ++index) {
        if ((uchar(bytes[index]) & 0xC0) != 0x80)
            return 0;
    }
    const auto second = uchar(bytes[1]);
    const bool isRefused = (first == 0xE0 && second < 0xA0) || (first == 0xED && second > 0x9F) ||
                           (first == 0xF0 && second < 0x90) || (first == 0xF4 && second > 0x8F);
    return isRefused ? 0 : length;
}

bool isStandIn(const QString &name, qsizetype index)
{
    const char16_t unit = name.at(index).unicode();
    return unit >= firstStandIn && unit <= lastStandIn && (index == 0 || !name.at(index - 1).isHighSurrogate());
}

}  // namespace

QString decodedFileName(QByteArrayView bytes)
{
    QString name;
    name.reserve(bytes.size());
    while (!bytes.isEmpty()) {
        const qsizetype length = characterLength(bytes);
        if (bytes.startsWith("\xef\xbb\xbf"))  // which fromUtf8 takes for a mark of the encoding, and drops
            name += QChar(QChar::ByteOrderMark);
        else if (length > 0)
            name += QString::fromUtf8(bytes.first(length));
        else
            name += QChar(char16_t(0xDC00 + uchar(bytes.front())));
        bytes = bytes.sliced(std::max<qsizetype>(length, 1));
    }
    return name;
}

QByteArray encodedFileName(const QString &name)
{
    QByteArray bytes;
    qsizetype start = 0;
    for (qsizetype index = 0; index < name.size(); ++index) {
        if (!isStandIn(name, index))
            continue;
        bytes += QStringView(name).sliced(start, index - start).toUtf8();
        bytes += char(name.at(index).unicode() - 0xDC00);
        start = index + 1;
    }
    return bytes + QStringView(name).sliced(start).toUtf8();
}

QStringList decodedArguments(int argc, char **argv)
{
    QStringList words;
    for (int index = 0; index < argc; ++index)
        words.append(decodedFileName(argv[index]));
    return words;
}

QString absoluteFileName(const QString &name)
{
    char folder[PATH_MAX];
    const bool isAbsolute = name.startsWith(u'/') || !getcwd(folder, sizeof folder);
    return QDir::cleanPath(isAbsolute ? name : decodedFileName(folder) + u'/' + name);
}

bool isPlainFileName(const QString &name)
{
    for (qsizetype index = 0; index < name.size(); ++index) {
        if (isStandIn(name, index))
            return false;
    }
    return true;
}

QString readableFileName(const QString &name)
{
    QString readable = name;
    for (qsizetype index = 0; index < name.size(); ++index) {
        if (isStandIn(name, index))
            readable[index] = QChar::ReplacementCharacter;
    }
    return readable;
}

QString pathOfUrl(const QUrl &url)
{
    if (!url.isLocalFile())
        return {};
    // Of the encoded form: QUrl takes bytes that are no UTF-8 for the character U+FFFD.
    const QByteArray path = QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toUtf8());
    return path.contains('\0') ? QString() : decodedFileName(path);
}

FileFacts fileFacts(const QString &path)
{
    const QByteArray bytes = encodedFileName(path);
    struct stat status = {};
    if (path.isEmpty() || bytes.contains('\0') || stat(bytes.constData(), &status) != 0)
        return {};
    const FileKind kind = S_ISREG(status.st_mode)   ? FileKind::File
                          : S_ISDIR(status.st_mode) ? FileKind::Folder
                                                    : FileKind::Other;
    return {.kind = kind,
            .bytes = qint64(status.st_size),
            .isReadable = access(bytes.constData(), R_OK) == 0,
            .modified = QDateTime::fromMSecsSinceEpoch(qint64(status.st_mtim.tv_sec) * 1000 +
                                                       status.st_mtim.tv_nsec / 1'000'000)};
}

}  // namespace kestrel::foundation
