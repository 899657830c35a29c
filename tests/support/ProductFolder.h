#pragma once

#include "foundation/Bundle.h"
#include "tarnwell/Installed.h"

#include <QTemporaryDir>
#include <QVariantMap>

#include <memory>

namespace kestrel::test {

/// A bundle folder of the test's own with this Info.plist, which the product constants are read from for the life of
/// the object.
class ProductFolder {
public:
    explicit ProductFolder(const QVariantMap &information = {});

    /// A path below "Contents", with the folders above it made.
    QString contentsPath(const QString &relativePath) const;

private:
    QTemporaryDir m_folder;
    std::unique_ptr<const foundation::Bundle> m_bundle;
    std::unique_ptr<tarnwell::Installed<const foundation::Bundle>> m_installed;
};

/// An Info.plist as the product has it, with `changes` on top; a null value takes an entry out.
QVariantMap productInformation(const QVariantMap &changes = {});

}  // namespace kestrel::test
