#pragma once

#include "AdParser.h"
#include "foundation/Fetch.h"
#include "tarnwell/AppWndTRButtonConfig.h"

#include <memory>

namespace kestrel {

/// The publisher's remote configuration, a JSON document. Immutable; made on a background thread and read on the main
/// one. What is missing or of another type is absent, and so is everything in a body that is no JSON object.
class AppRMConfig {
public:
    /// Fetches and reads it; blocks. Null where the fetch fails.
    static std::shared_ptr<const AppRMConfig> remoteConfigWithURL(const QString &url, const foundation::Fetch &fetch);
    static std::shared_ptr<const AppRMConfig> initWithURL(const QString &url, const foundation::Fetch &fetch);
    static std::shared_ptr<const AppRMConfig> initWithData(const QByteArray &json);

    const std::optional<AdParser> &adParser() const { return m_adParser; }
    const std::optional<tarnwell::AppWndTRButtonConfig> &topRightBtnConfig() const { return m_topRightBtnConfig; }
    const std::optional<tarnwell::AppWndTRButtonConfig> &topRightBtnConfig_full() const
    {
        return m_topRightBtnConfig_full;
    }

private:
    AppRMConfig() = default;

    std::optional<AdParser> m_adParser;
    std::optional<tarnwell::AppWndTRButtonConfig> m_topRightBtnConfig;
    std::optional<tarnwell::AppWndTRButtonConfig> m_topRightBtnConfig_full;
};

}  // namespace kestrel
