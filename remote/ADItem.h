#pragma once

#include "foundation/ui/StyledText.h"

#include <QJsonArray>
#include <QJsonObject>

#include <optional>

namespace kestrel {

/// One promotion. Texts that are missing, or no texts, are null; integers that are missing are 0.
class ADItem {
public:
    /// Nothing where there is no object.
    static std::optional<ADItem> itemWithDictionary(const std::optional<QJsonObject> &dictionary);
    static ADItem initWithDictionary(const QJsonObject &dictionary);

    /// The fragments of HTML as one text; nothing where they hold less than a character.
    static std::optional<foundation::StyledText> createAttributeStr(const QJsonArray &fragments);

    QString title() const { return m_title; }
    const std::optional<foundation::StyledText> &details() const { return m_details; }
    QString rightBtnTitle() const { return m_rightBtnTitle; }  ///< of the button that accepts
    QString rightBtnURL() const { return m_rightBtnURL; }      ///< the page that it opens
    QString leftBtnTitle() const { return m_leftBtnTitle; }    ///< of the button that declines
    qint64 rate() const { return m_rate; }                     ///< per cent of the launches that show it
    qint64 nextRate() const { return m_nextRate; }             ///< the same, once it has been declined
    qint64 maxCount() const { return m_maxCount; }             ///< of declines; no limit where 0 or less

private:
    ADItem() = default;

    QString m_title;
    std::optional<foundation::StyledText> m_details;
    QString m_rightBtnTitle;
    QString m_rightBtnURL;
    QString m_leftBtnTitle;
    qint64 m_rate = 0;
    qint64 m_nextRate = 0;
    qint64 m_maxCount = 0;
};

}  // namespace kestrel
