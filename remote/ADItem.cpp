#include "ADItem.h"

#include "foundation/Numbers.h"
#include "foundation/ui/StyledHtml.h"

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr qsizetype shortestBody = 2;

}  // namespace

std::optional<ADItem> ADItem::itemWithDictionary(const std::optional<QJsonObject> &dictionary)
{
    return dictionary ? std::optional(initWithDictionary(*dictionary)) : std::nullopt;
}

ADItem ADItem::initWithDictionary(const QJsonObject &dictionary)
{
    const auto integer = [&](const QString &key) {
        const QJsonValue value = dictionary.value(key);
        // Others would only be copied, which an array is layer by layer.
        return value.isArray() || value.isObject() ? 0 : foundation::integerValue(value.toVariant());
    };
    ADItem item;
    item.m_title = dictionary.value(u"title"_s).toString();
    item.m_details = createAttributeStr(dictionary.value(u"details"_s).toArray());
    item.m_rightBtnTitle = dictionary.value(u"button"_s).toString();
    item.m_rightBtnURL = dictionary.value(u"url"_s).toString();
    item.m_leftBtnTitle = dictionary.value(u"label"_s).toString();
    item.m_rate = integer(u"rate"_s);
    item.m_nextRate = integer(u"next_rate"_s);
    item.m_maxCount = integer(u"max_count"_s);
    return item;
}

std::optional<foundation::StyledText> ADItem::createAttributeStr(const QJsonArray &fragments)
{
    QString html;
    for (const QJsonValue fragment : fragments) {
        if (fragment.isString())
            html += fragment.toString() + u'\n';
    }
    if (html.size() < shortestBody)
        return {};
    return foundation::styledTextFromHtml(html.toUtf8());
}

}  // namespace kestrel
