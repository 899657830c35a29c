#pragma once

#include "EngineRelease.h"

#include <QDateTime>
#include <QStringList>

namespace kestrel {

/// The engines on this machine: the bundle's own and those that have come since, each in a folder of its own. One is in
/// use. A new one is on trial until it has worked; while it is, the one before stays, and a failure leads back to it
/// and rules the new one out for good.
class EngineStore {
public:
    /// `folder` is Kestrel's own; `bundled` is the engine that the program came with.
    EngineStore(QString folder, QString bundled);

    QString engine() const;   ///< absolute path of the one in use
    QString version() const;  ///< of it; null for the bundle's own
    bool isOnTrial() const;

    /// Puts the release's file, whole or not at all, into a folder of its own, not yet in use. Its path, or why not.
    foundation::Result<QString> install(const EngineRelease &release, const QByteArray &bytes) const;
    void adopt(const QString &version) const;    ///< it is in use from now on, on trial
    void ruleOut(const QString &version) const;  ///< it is removed, and never installed again
    bool isRuledOut(const QString &version) const;
    void prove() const;  ///< the one in use has worked: the others go
    /// What the one on trial gives way to; nothing where none is on trial.
    std::optional<QString> fallBack() const;

    /// Whether the publisher may be asked, which counts as asked: once in six hours.
    bool takeTurn(const QDateTime &now) const;

private:
    QString pathOf(const QString &version) const;

    QString m_folder;
    QString m_bundled;
};

}  // namespace kestrel
