#pragma once

#include "foundation/Fetch.h"
#include "foundation/Result.h"
#include "foundation/ui/StyledText.h"
#include "remote/AppRMConfig.h"

#include <QObject>
#include <QVariantList>
#include <QVariantMap>

#include <functional>
#include <memory>

namespace kestrel {

/// What a descriptor is read with.
struct UpdateReading {
    QString language;      ///< the interface language, as the user's defaults have it ("zh-Hans")
    QString localVersion;  ///< of the running program
};

/// What a descriptor is fetched and read with.
struct UpdateContext {
    UpdateReading reading;
    foundation::Fetch fetch;
};

/// The remote configuration at an address; null where it cannot be had.
using RemoteConfigSource = std::function<std::shared_ptr<const AppRMConfig>(const QString &url)>;

/// The update descriptor: which version is the latest, what is new in it, where it is, and some more texts and links
/// from the publisher. Immutable once parsed; made on a background thread and read on the main one. A field that the
/// document lacks, or holds in another type, is null.
class UPParser : public QObject {
public:
    /// A descriptor, or why there is none: in English, for the log.
    using Parsed = foundation::Result<std::shared_ptr<const UPParser>>;

    /// Fetches the descriptor and the remote configuration that it names, and reads both; blocks.
    static Parsed initWithXMLURL(const QString &url, const UpdateContext &context);
    /// Reads the bytes of a descriptor: a property-list dictionary, of `maximumBytes` at most. `remoteConfig` is asked
    /// where it names a configuration; without one there is none.
    static Parsed initWithData(const QByteArray &bytes, const UpdateReading &reading,
                               const RemoteConfigSource &remoteConfig = {});
    static constexpr qint64 maximumBytes = 1 << 20;

    explicit UPParser(UpdateReading reading) : m_reading(std::move(reading)) {}
    void parseUpgradeConfig(const QVariantMap &root, const RemoteConfigSource &remoteConfig = {});

    /// Whether the server's version is above the running one, component by component; a component that one of them
    /// lacks counts as -1, below an explicit 0.
    bool foundNewVerion() const;
    /// The release notes, one numbered line an entry; a fixed text where there are none.
    foundation::StyledText updateLog() const;

    bool forceUpgrade() const { return m_forceUpgrade; }
    QString versionFromServer() const { return m_versionFromServer; }
    QString buildTimeFromServer() const { return m_buildTimeFromServer; }
    const QVariantList &upgradeLogFromServer() const { return m_upgradeLogFromServer; }
    QString productDownloadURLReg() const { return m_productDownloadURLReg; }
    QString promotionRegitsteredTitle() const { return m_promotionRegitsteredTitle; }
    QString promotionRegitsteredNotes() const { return m_promotionRegitsteredNotes; }
    QString promotionRegitsteredURL() const { return m_promotionRegitsteredURL; }
    QString dlSupportLinkTitleReg() const { return m_dlSupportLinkTitleReg; }
    QString dlSupportLinkURLReg() const { return m_dlSupportLinkURLReg; }
    QString dl300PlusTitleReg() const { return m_dl300PlusTitleReg; }
    QString dl300PlusURLReg() const { return m_dl300PlusURLReg; }
    const std::shared_ptr<const AppRMConfig> &rmtConfig() const { return m_rmtConfig; }

private:
    UpdateReading m_reading;
    bool m_forceUpgrade = false;
    QString m_versionFromServer;
    QString m_buildTimeFromServer;
    QVariantList m_upgradeLogFromServer;
    QString m_productDownloadURLReg;
    QString m_promotionRegitsteredTitle;
    QString m_promotionRegitsteredNotes;
    QString m_promotionRegitsteredURL;
    QString m_dlSupportLinkTitleReg;
    QString m_dlSupportLinkURLReg;
    QString m_dl300PlusTitleReg;
    QString m_dl300PlusURLReg;
    std::shared_ptr<const AppRMConfig> m_rmtConfig;
};

}  // namespace kestrel
