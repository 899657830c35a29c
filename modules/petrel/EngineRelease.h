#pragma once

#include "foundation/Result.h"

#include <QByteArray>
#include <QString>

#include <functional>

namespace kestrel {

/// What the publisher says of the newest download engine; only ever made of a document whose signature is good.
struct EngineRelease {
    QString version;  ///< "2023.11.16"
    QString file;     ///< address, https or http
    qint64 length = 0;
    QByteArray sha256;  ///< 32 bytes

    static constexpr qint64 maximumDocument = 16 * 1024;
    static constexpr qint64 maximumLength = 64 * 1024 * 1024;

    /// Whether `signature` over `message` is the publisher's.
    using Verify = std::function<bool(const QByteArray &key, const QByteArray &signature, const QByteArray &message)>;

    /// Reads the document; `publicKey` is Base64. The reason is for the log.
    static foundation::Result<EngineRelease> fromDocument(const QByteArray &document, const QByteArray &publicKey,
                                                          const Verify &verify);

    /// Why these bytes are not what was announced; null where they are.
    QString obstacle(const QByteArray &bytes) const;
};

/// Above 0 where `left` is the newer of two versions, whose parts are numbers between points; a text that is none is
/// older than all.
int compareEngineVersions(const QString &left, const QString &right);

/// The bundle's library for Ed25519, loaded when first asked.
EngineRelease::Verify bundleVerifier();

}  // namespace kestrel
