#include "LaunchCheck.h"

#include "app/InterfaceLanguage.h"
#include "foundation/NotificationCenter.h"
#include "foundation/Queues.h"
#include "foundation/UserDefaults.h"
#include "foundation/ui/OutsidePicture.h"
#include "remote/Promotion.h"
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

LaunchCheck::LaunchCheck(foundation::UserDefaults &defaults, Sources sources, std::function<void()> terminate)
    : m_defaults(defaults),
      m_sources(std::move(sources)),
      m_terminate(std::move(terminate))
{
}

LaunchCheck::~LaunchCheck() = default;

UpdateContext LaunchCheck::context() const
{
    return {.reading = {.language = m_defaults.stringArrayForKey(appleLanguagesKey.toString()).value(0),
                        .localVersion = tarnwell::GetAppCurrentVersion()},
            .fetch = m_sources.fetch};
}

void LaunchCheck::run()
{
    QString url;
    UpdateContext reading;
    foundation::queue::syncMain([&] {
        url = descriptorURL();
        reading = context();
    });
    if (url.isEmpty())
        return;
    const auto fetched = UPParser::initWithXMLURL(url, reading);
    if (!fetched)
        tarnwell::DNFootLog(u"The update descriptor could not be read: %1"_s, fetched.reason());
    foundation::queue::asyncMain([self = QPointer(this), descriptor = fetched ? *fetched : nullptr, url] {
        if (self)
            self->showWhatIsDue(descriptor, url);
    });
}

void LaunchCheck::showWhatIsDue(const std::shared_ptr<const UPParser> &descriptor, const QString &url)
{
    if (m_hasRunEnded)
        return;
    setDescriptor(descriptor);
    foundation::NotificationCenter::defaultCenter().postNotificationName(tarnwell::RMTConfigureDidParse.toString(),
                                                                         descriptor.get());
    if (m_wasAskedByHand) {
        tarnwell::DNFootLog(u"Update check: the user has asked for one in the meantime"_s);
        return;
    }
    const QString today = m_sources.today().toString(u"yyyy-MM-dd"_s);
    const LaunchDecision decision =
        decideAtLaunch(descriptor.get(), promotionMemory(m_defaults), today, m_sources.draw);
    tarnwell::DNFootLog(u"Update check: %1"_s, QString::fromUtf8(decision.reason));
    if (decision.outcome == LaunchOutcome::NewVersion)
        runUpgradeWindow(url, [&](UpgradeWindowController &window) { window.showUpgradeWindowNoProgress(descriptor); });
    else if (decision.outcome == LaunchOutcome::Promotion)
        fetchPromotion(descriptor, today);
}

void LaunchCheck::fetchPromotion(const std::shared_ptr<const UPParser> &descriptor, const QString &today)
{
    m_defaults.setObject(today, advertisementDateKey.toString());
    foundation::queue::asyncGlobal([this, descriptor] {
        const AdParser &promotion = *descriptor->rmtConfig()->adParser();
        QImage picture;
        if (!promotion.pictureURL().isEmpty()) {
            const foundation::FetchResult result =
                m_sources.fetch({.address = promotion.pictureURL(), .maximumBytes = maximumPictureBytes});
            if (!result.body)
                tarnwell::DNFootLog(u"The picture of the promotion could not be fetched: %1"_s, result.reason);
            picture = foundation::pictureFromOutside(result.body.value_or(QByteArray()));
        }
        foundation::queue::asyncMain([self = QPointer(this), descriptor, picture] {
            if (self && !self->m_hasRunEnded && !self->m_upgradeWindow)
                JAdvertisementWinController::ShowAdvertisementWithImage(descriptor->rmtConfig()->adParser()->full(),
                                                                        picture, self->m_defaults);
        });
    });
}

void LaunchCheck::showUpdateWindow()
{
    if (m_upgradeWindow)
        return m_upgradeWindow->window()->makeKeyAndOrderFront();
    m_wasAskedByHand = true;
    runUpgradeWindow(descriptorURL(), &UpgradeWindowController::showUpgradeWindow);
}

/// One at a time, whoever asked for it.
void LaunchCheck::runUpgradeWindow(const QString &url, const std::function<void(UpgradeWindowController &)> &show)
{
    UpgradeWindowController window(url, context(), m_terminate);
    m_upgradeWindow = &window;
    show(window);
    m_upgradeWindow = nullptr;
}

}  // namespace kestrel
