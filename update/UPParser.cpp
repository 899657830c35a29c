#include "UPParser.h"

#include "VersionOrder.h"
#include "foundation/Numbers.h"
#include "foundation/PropertyList.h"
#include "foundation/ui/Color.h"
#include "foundation/ui/StyledTextBuilder.h"

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr foundation::PropertyListLimits descriptorLimits{
    .bytes = UPParser::maximumBytes, .depth = 500, .items = 200'000};
constexpr qsizetype shortestConfigurationAddress = 2;

QString textIn(const QVariantMap &dictionary, const QString &key)
{
    const QVariant value = dictionary.value(key);
    return value.typeId() == QMetaType::QString ? value.toString() : QString();
}

/// Of "DownloaderUISupportURLTop" and its like: the link for the language, or the English one.
QVariantMap linkIn(const QVariantMap &root, const QString &key, const QString &language)
{
    const QVariantMap links = root.value(key).toMap();
    const QVariant link = links.value(language);
    return (link.typeId() == QMetaType::QVariantMap ? link : links.value(u"en"_s)).toMap();
}

}  // namespace

UPParser::Parsed UPParser::initWithXMLURL(const QString &url, const UpdateContext &context)
{
    const foundation::FetchResult result =
        context.fetch({.address = url, .maximumBytes = maximumBytes, .schemes = foundation::FetchSchemes::WebAndFile});
    if (!result.body)
        return foundation::Failure{result.reason};
    return initWithData(*result.body, context.reading, [&context](const QString &configuration) {
        return AppRMConfig::remoteConfigWithURL(configuration, context.fetch);
    });
}

UPParser::Parsed UPParser::initWithData(const QByteArray &bytes, const UpdateReading &reading,
                                        const RemoteConfigSource &remoteConfig)
{
    const foundation::PropertyListResult list =
        foundation::readPropertyList(bytes, descriptorLimits, foundation::PropertyListManner::Forgiving);
    if (!list.value)
        return foundation::Failure{list.error.toString()};
    if (list.value->typeId() != QMetaType::QVariantMap)
        return foundation::Failure{u"the property list is no dictionary"_s};
    auto parser = std::make_shared<UPParser>(reading);
    parser->parseUpgradeConfig(list.value->toMap(), remoteConfig);
    return std::shared_ptr<const UPParser>(std::move(parser));
}

void UPParser::parseUpgradeConfig(const QVariantMap &root, const RemoteConfigSource &remoteConfig)
{
    m_forceUpgrade = foundation::booleanValue(root.value(u"ForceAppUpgrade"_s));
    m_versionFromServer = textIn(root, u"LastestVersion"_s);
    m_buildTimeFromServer = textIn(root, u"BuildDate"_s);

    const QVariant ofLanguage = root.value(m_reading.language);
    const QVariantMap section = ofLanguage.typeId() == QMetaType::QVariantMap ? ofLanguage.toMap() : root;
    // A text would read as a list of its characters.
    const QVariant log = section.value(u"UpdateLog"_s);
    m_upgradeLogFromServer = log.typeId() == QMetaType::QVariantList ? log.toList() : QVariantList();
    m_productDownloadURLReg = textIn(section, u"DownloadURLReg"_s);
    m_promotionRegitsteredTitle = textIn(section, u"NotificationTitle"_s);
    m_promotionRegitsteredNotes = textIn(section, u"NotificationContent"_s);
    m_promotionRegitsteredURL = textIn(section, u"NotificationURL"_s);

    const QVariantMap top = linkIn(root, u"DownloaderUISupportURLTop"_s, m_reading.language);
    m_dlSupportLinkTitleReg = textIn(top, u"Title"_s);
    m_dlSupportLinkURLReg = textIn(top, u"URL"_s);
    const QVariantMap bottom = linkIn(root, u"DownloaderUISupportURLBottom"_s, m_reading.language);
    m_dl300PlusTitleReg = textIn(bottom, u"Title"_s);
    m_dl300PlusURLReg = textIn(bottom, u"URL"_s);

    const QString configuration = textIn(section, u"ADConfigURL"_s);
    if (remoteConfig && configuration.size() >= shortestConfigurationAddress)
        m_rmtConfig = remoteConfig(configuration);
}

bool UPParser::foundNewVerion() const
{
    return !m_versionFromServer.isNull() && compareVersions(m_versionFromServer, m_reading.localVersion) > 0;
}

foundation::StyledText UPParser::updateLog() const
{
    foundation::StyledTextBuilder builder;
    foundation::TextStyle style;
    if (m_upgradeLogFromServer.isEmpty()) {
        style.color = foundation::ColorWithHexString(u"696969"_s).rgb();
        builder.append(u" 1. Add the support more media format.\n 2. minor bug improvements.", style);
        return builder.text();
    }
    style.fontFamily = u"Arial"_s;
    style.pixelSize = 13;
    for (qsizetype i = 0; i < m_upgradeLogFromServer.size() && !builder.isFull(); ++i) {
        const QVariantMap entry = m_upgradeLogFromServer[i].toMap();
        const QColor color = foundation::ColorWithHexString(textIn(entry, u"color"_s));
        style.color = color.isValid() ? color.rgb() : qRgb(0, 0, 0);
        builder.append(u" %1. "_s.arg(i + 1) + textIn(entry, u"content"_s) + u'\n', style);
    }
    return builder.text();
}

}  // namespace kestrel
