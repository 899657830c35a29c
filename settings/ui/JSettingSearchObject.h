#pragma once

#include "tarnwell/ui/JSuggestionsSearchField.h"

namespace kestrel {

/// A setting that can be searched for by its English name, in every interface language.
class JSettingSearchObject final : public tarnwell::SuggestionItem {
public:
    static std::shared_ptr<JSettingSearchObject> object(const QString &keyString, qint64 section, double position);

    QString contents() const override { return m_keyString; }

    QString keyString() const { return m_keyString; }
    void setKeyString(const QString &keyString) { m_keyString = keyString; }
    /// The upper edge of the setting's row, in points from the page's lower edge.
    double position() const { return m_position; }
    void setPosition(double position) { m_position = position; }
    /// The section: 1 common, 2 video, 3 DVD, 4 download.
    qint64 userdata() const { return m_userdata; }
    void setUserdata(qint64 section) { m_userdata = section; }

private:
    QString m_keyString;
    double m_position = 0;
    qint64 m_userdata = 0;
};

/// Every setting that can be searched for, in the order in which they are offered.
tarnwell::SuggestionItems settingSearchObjects();

}  // namespace kestrel
