#include "EngineRelease.h"

#include "EngineSignature.h"

#include "foundation/Bundle.h"

#include <QCryptographicHash>
#include <QHash>
#include <QLibrary>
#include <QUrl>
#include <QVersionNumber>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr char firstLine[] = "Kestrel download engine 1";
constexpr char signatureMark[] = "signature: ";
constexpr qsizetype keySize = 32;
constexpr qsizetype signatureSize = 64;
constexpr qsizetype hashSize = 32;

QByteArray fromBase64(const QByteArray &text)
{
    const auto result = QByteArray::fromBase64Encoding(text, QByteArray::AbortOnBase64DecodingErrors);
    return result ? *result : QByteArray();
}

QVersionNumber versionOf(const QString &text)
{
    qsizetype end = 0;
    const QVersionNumber version = QVersionNumber::fromString(text, &end);
    return end == text.size() && text.size() < 50 ? version.normalized() : QVersionNumber();
}

}  // namespace

foundation::Result<EngineRelease> EngineRelease::fromDocument(const QByteArray &document, const QByteArray &publicKey,
                                                              const Verify &verify)
{
    // The signature is the last line; it is over every byte before it.
    const qsizetype end = document.lastIndexOf(signatureMark);
    if (document.size() > maximumDocument || end < 1 || document[end - 1] != '\n')
        return foundation::Failure{u"it is not signed"_s};
    const QByteArray signature = fromBase64(document.sliced(end + qsizetype(qstrlen(signatureMark))).trimmed());
    const QByteArray key = fromBase64(publicKey);
    const QByteArray message = document.first(end);
    if (key.size() != keySize || signature.size() != signatureSize || !verify(key, signature, message))
        return foundation::Failure{u"its signature is not the publisher's"_s};

    QHash<QByteArray, QByteArray> fields;
    const QList<QByteArray> lines = message.split('\n');
    for (const QByteArray &line : lines) {
        if (const qsizetype colon = line.indexOf(": "); colon > 0)
            fields.insert(line.first(colon), line.sliced(colon + 2).trimmed());
    }
    EngineRelease release{.version = QString::fromLatin1(fields["version"]),
                          .file = QString::fromLatin1(fields["file"]),
                          .length = fields["length"].toLongLong(),
                          .sha256 = QByteArray::fromHex(fields["sha256"])};
    const QString scheme = QUrl(release.file).scheme();
    const bool makesSense = lines.first() == firstLine && !versionOf(release.version).isNull() &&
                            (scheme == "https"_L1 || scheme == "http"_L1) && release.length > 0 &&
                            release.length <= maximumLength && release.sha256.size() == hashSize;
    if (!makesSense)
        return foundation::Failure{u"it makes no sense"_s};
    return release;
}

QString EngineRelease::obstacle(const QByteArray &bytes) const
{
    if (bytes.size() != length)
        return u"it has %1 bytes instead of %2"_s.arg(bytes.size()).arg(length);
    if (QCryptographicHash::hash(bytes, QCryptographicHash::Sha256) != sha256)
        return u"it is another file than was announced"_s;
    return {};
}

int compareEngineVersions(const QString &left, const QString &right)
{
    return QVersionNumber::compare(versionOf(left), versionOf(right));
}

EngineRelease::Verify bundleVerifier()
{
    return [](const QByteArray &key, const QByteArray &signature, const QByteArray &message) {
        QLibrary library(foundation::Bundle::main().contentsPath(u"Frameworks/libEngineSignature.dylib"_s));
        const auto isGood = reinterpret_cast<EngineSignatureFunction *>(library.resolve(engineSignatureSymbol));
        const auto bytes = [](const QByteArray &text) {
            return reinterpret_cast<const unsigned char *>(text.constData());
        };
        return isGood && isGood(bytes(key), bytes(signature), bytes(message), size_t(message.size()));
    };
}

}  // namespace kestrel
