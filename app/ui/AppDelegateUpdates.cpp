#include "AppDelegate.h"

#include "app/InterfaceLanguage.h"
#include "foundation/NotificationCenter.h"
#include "foundation/Queues.h"
#include "foundation/UserDefaults.h"
#include "remote/Promotion.h"
#include "remote/PromotionPicture.h"
#include "remote/ui/JAdvertisementWinController.h"
#include "tarnwell/Log.h"
#include "tarnwell/Notifications.h"
#include "tarnwell/ProductInformation.h"
#include "tarnwell/ui/TitledWindow.h"
#include "update/LaunchDecision.h"
#include "update/UPParser.h"
#include "update/ui/UpgradeWindowController.h"

#include <QPointer>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr QStringView advertisementDateKey = u"_AdvertisementDateString";
constexpr qint64 maximumPictureBytes = 16 * 1024 * 1024;

/// Null where the product names no address, or none that could be one.
QString descriptorURL()
{
    const QString link = tarnwell::AppUpdateXMLLink();
    return QUrl(link, QUrl::StrictMode).isValid() ? link : QString();
}

PromotionMemory promotionMemory(const foundation::UserDefaults &defaults)
{
    PromotionMemory memory{defaults.stringForKey(advertisementDateKey.toString()), {}};
    const QString rateKey = advertisementRateKey.toString();
    if (defaults.objectForKey(rateKey).isValid())
        memory.rate = defaults.integerForKey(rateKey);
    return memory;
}

}  // namespace

UpdateContext AppDelegate::updateContext() const
{
    return {.language = m_surroundings.defaults.stringArrayForKey(appleLanguagesKey.toString()).value(0),
            .localVersion = tarnwell::GetAppCurrentVersion(),
            .fetch = m_surroundings.updates.fetch};
}

void AppDelegate::checkUpgradesAutomatically()
{
    QString url;
    UpdateContext context;
    foundation::queue::syncMain([&] {
        url = descriptorURL();
        context = updateContext();
    });
    if (url.isEmpty())
        return;
    QString reason;
    const std::shared_ptr<const UPParser> descriptor = UPParser::initWithXMLURL(url, context, &reason);
    if (!descriptor)
        tarnwell::DNFootLog(u"The update descriptor could not be read: %1"_s, reason);
    foundation::queue::asyncMain([self = QPointer(this), descriptor, url] {
        if (self)
            self->showWhatIsDue(descriptor, url);
    });
}

void AppDelegate::showWhatIsDue(const std::shared_ptr<const UPParser> &descriptor, const QString &url)
{
    if (m_hasTerminated)
        return;
    setUpConfigure(descriptor);
    foundation::NotificationCenter::defaultCenter().postNotificationName(tarnwell::RMTConfigureDidParse.toString(),
                                                                         descriptor.get());
    if (m_upgradeWindow) {
        tarnwell::DNFootLog(u"Update check: the user has asked for one in the meantime"_s);
        return;
    }
    const QString today = m_surroundings.updates.today().toString(u"yyyy-MM-dd"_s);
    const LaunchDecision decision =
        decideAtLaunch(descriptor.get(), promotionMemory(m_surroundings.defaults), today, m_surroundings.updates.draw);
    tarnwell::DNFootLog(u"Update check: %1"_s, QString::fromUtf8(decision.reason));
    if (decision.outcome == LaunchOutcome::NewVersion)
        runUpgradeWindow(url, [&](UpgradeWindowController &window) { window.showUpgradeWindowNoProgress(descriptor); });
    else if (decision.outcome == LaunchOutcome::Promotion)
        fetchPromotion(descriptor, today);
}

void AppDelegate::fetchPromotion(const std::shared_ptr<const UPParser> &descriptor, const QString &today)
{
    m_surroundings.defaults.setObject(today, advertisementDateKey.toString());
    foundation::queue::asyncGlobal([this, descriptor] {
        const AdParser &promotion = *descriptor->rmtConfig()->adParser();
        QImage picture;
        if (!promotion.pictureURL().isEmpty()) {
            const foundation::FetchResult result =
                m_surroundings.updates.fetch({.address = promotion.pictureURL(), .maximumBytes = maximumPictureBytes});
            if (!result.body)
                tarnwell::DNFootLog(u"The picture of the promotion could not be fetched: %1"_s, result.reason);
            picture = promotionPicture(result.body.value_or(QByteArray()));
        }
        foundation::queue::asyncMain([self = QPointer(this), descriptor, picture] {
            if (self && !self->m_hasTerminated && !self->m_upgradeWindow)
                JAdvertisementWinController::ShowAdvertisementWithImage(descriptor->rmtConfig()->adParser()->full(),
                                                                        picture, self->m_surroundings.defaults);
        });
    });
}

void AppDelegate::onCheckUpdateAction()
{
    if (m_upgradeWindow)
        return m_upgradeWindow->window()->makeKeyAndOrderFront();
    runUpgradeWindow(descriptorURL(), &UpgradeWindowController::showUpgradeWindow);
}

/// One at a time, whoever asked for it.
void AppDelegate::runUpgradeWindow(const QString &url, const std::function<void(UpgradeWindowController &)> &show)
{
    UpgradeWindowController window(url, updateContext(), m_surroundings.terminate);
    m_upgradeWindow = &window;
    show(window);
    m_upgradeWindow = nullptr;
}

QString AppDelegate::titleOfSupportField() const
{
    return m_upConfigure ? m_upConfigure->dlSupportLinkTitleReg() : QString();
}

QString AppDelegate::URLOfSupportField() const
{
    return m_upConfigure ? m_upConfigure->dlSupportLinkURLReg() : QString();
}

QString AppDelegate::titleOf300PlusSupportField() const
{
    return m_upConfigure ? m_upConfigure->dl300PlusTitleReg() : QString();
}

QString AppDelegate::URLOf300PlusSupportField() const
{
    return m_upConfigure ? m_upConfigure->dl300PlusURLReg() : QString();
}

std::optional<tarnwell::AppWndTRButtonConfig> AppDelegate::topRightWndBtnConfig() const
{
    if (!m_upConfigure || !m_upConfigure->rmtConfig())
        return {};
    const AppRMConfig &configuration = *m_upConfigure->rmtConfig();
    return configuration.topRightBtnConfig_full() ? configuration.topRightBtnConfig_full()
                                                  : configuration.topRightBtnConfig();
}

}  // namespace kestrel
