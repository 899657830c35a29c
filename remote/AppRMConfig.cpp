#include "AppRMConfig.h"

#include "tarnwell/Log.h"

#include <QJsonDocument>
#include <QStringConverter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr qint64 maximumConfigurationBytes = 1024 * 1024;
constexpr std::chrono::seconds fetchTime(5);  ///< the update check waits for it

/// JSON may come in any of Unicode's encodings, with or without a mark.
QJsonObject jsonObject(const QByteArray &bytes)
{
    // It begins with a brace or a blank, whose one byte that is not zero tells where the others are.
    const auto first = std::find_if(bytes.begin(), bytes.end(), [](char byte) { return byte != 0; });
    const char16_t character = first == bytes.end() ? u'{' : char16_t(uchar(*first));
    const auto encoding = QStringConverter::encodingForData(bytes, character).value_or(QStringConverter::Utf8);
    if (encoding == QStringConverter::Utf8)
        return QJsonDocument::fromJson(bytes).object();
    QStringDecoder decoder(encoding);
    const QString text = decoder(bytes);
    return decoder.hasError() ? QJsonObject() : QJsonDocument::fromJson(text.toUtf8()).object();
}

}  // namespace

std::shared_ptr<const AppRMConfig> AppRMConfig::remoteConfigWithURL(const QString &url, const foundation::Fetch &fetch)
{
    return initWithURL(url, fetch);
}

std::shared_ptr<const AppRMConfig> AppRMConfig::initWithURL(const QString &url, const foundation::Fetch &fetch)
{
    const foundation::FetchResult result =
        fetch({.address = url, .maximumBytes = maximumConfigurationBytes, .timeLimit = fetchTime});
    if (!result.body) {
        tarnwell::DNFootLog(u"The remote configuration could not be fetched: %1"_s, result.reason);
        return nullptr;
    }
    return initWithData(*result.body);
}

std::shared_ptr<const AppRMConfig> AppRMConfig::initWithData(const QByteArray &json)
{
    using tarnwell::AppWndTRButtonConfig;
    const QJsonObject root = jsonObject(json);
    AppRMConfig configuration;
    if (const QJsonValue promotions = root.value(u"ads"_s); promotions.isObject())
        configuration.m_adParser = AdParser::initWithDictionary(promotions.toObject());
    if (const QJsonValue button = root.value(u"top-right-button"_s); button.isObject())
        configuration.m_topRightBtnConfig = AppWndTRButtonConfig::initWithDictionary(button.toObject());
    if (const QJsonValue button = root.value(u"top-right-button-v2"_s).toObject().value(u"full"_s); button.isObject())
        configuration.m_topRightBtnConfig_full = AppWndTRButtonConfig::initWithDictionary(button.toObject());
    return std::make_shared<const AppRMConfig>(std::move(configuration));
}

}  // namespace kestrel
