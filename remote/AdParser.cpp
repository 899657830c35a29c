#include "AdParser.h"

#include <QUrl>

using namespace Qt::StringLiterals;

namespace kestrel {

AdParser AdParser::initWithDictionary(const QJsonObject &dictionary)
{
    AdParser parser;
    const QString picture = dictionary.value(u"picture"_s).toString();
    const QUrl url(picture, QUrl::StrictMode);
    if (url.isValid() && !url.isEmpty())
        parser.m_pictureURL = picture;
    const QJsonValue full = dictionary.value(u"full"_s);
    parser.m_full = ADItem::itemWithDictionary(full.isObject() ? std::optional(full.toObject()) : std::nullopt);
    return parser;
}

}  // namespace kestrel
