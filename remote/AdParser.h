#pragma once

#include "ADItem.h"

namespace kestrel {

/// The promotion section of the remote configuration.
class AdParser {
public:
    static AdParser initWithDictionary(const QJsonObject &dictionary);

    QString pictureURL() const { return m_pictureURL; }  ///< null where missing or no valid address
    const std::optional<ADItem> &full() const { return m_full; }

private:
    AdParser() = default;

    QString m_pictureURL;
    std::optional<ADItem> m_full;
};

}  // namespace kestrel
