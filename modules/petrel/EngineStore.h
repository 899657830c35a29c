#pragma once

#include "EngineRelease.h"

#include <QDateTime>
#include <QStringList>

namespace kestrel {

/// The engines on this machine: the bundle's own and those that have come since, each in a folder of its own. One is in
/// use. A new one is on trial until it has worked; while it is, the one before stays and takes over where it fails.
/// What it then does better rules the new one out for good; where it fails in the same way, the new one is not to
/// blame. Where the bundle's own was replaced, that one is in use again.
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
    /// It has worked, `insteadOf` another one that could not do the same; null for none. Tells something only of the
    /// one in use.
    void prove(const QString &engine, const QString &insteadOf = {}) const;
    /// It has failed: what to try instead; nothing where there is nothing better. What is broken altogether gives way
    /// also where it is not on trial, to the bundle's own.
    enum class Damage { OneAddress, Broken };
    std::optional<QString> fallBack(const QString &engine, Damage damage) const;
    /// Removes those that nobody uses any more; for the start of a program.
    void sweep() const;

    /// Whether the publisher may be asked, which counts as asked: once in six hours.
    bool takeTurn(const QDateTime &now) const;

private:
    QString pathOf(const QString &version) const;

    QString m_folder;
    QString m_bundled;
};

}  // namespace kestrel
