#include "SitePictures.h"

#include "foundation/Bundle.h"
#include "foundation/Fetch.h"
#include "foundation/Queues.h"
#include "foundation/ui/OutsidePicture.h"

#include <QPointer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kestrel {

namespace {

constexpr int keptSitePictures = 500;
constexpr int picturesAtOnce = 3;
constexpr int longestWait = 200;  // of pictures that nobody has looked at since
constexpr qint64 maximumPictureBytes = 4 * 1024 * 1024;
constexpr auto pictureLimit = 10s;

}  // namespace

SitePictures::SitePictures(QSize size, QObject *parent)
    : QObject(parent),
      m_size(size),
      m_fetcher(
          std::make_shared<foundation::Fetcher>(foundation::Bundle::main().contentsPath(u"Frameworks/WebTransfer"_s))),
      m_pictures(keptSitePictures)
{
}

SitePictures::~SitePictures()
{
    m_fetcher->abandon();
}

QPixmap SitePictures::picture(const QString &address)
{
    if (address.isEmpty())
        return {};
    if (const QPixmap *known = m_pictures.object(address))
        return *known;
    if (!m_running.contains(address)) {
        m_pending.removeOne(address);
        m_pending.append(address);
        if (m_pending.size() > longestWait)
            m_pending.removeFirst();
        startPending();
    }
    return {};
}

void SitePictures::startPending()
{
    while (!m_pending.isEmpty() && m_running.size() < picturesAtOnce) {
        const QString address = m_pending.takeLast();
        m_running.insert(address);
        foundation::queue::asyncGlobal([self = QPointer(this), fetcher = m_fetcher, address, size = m_size * m_scale] {
            const foundation::FetchResult result =
                fetcher->fetch({.address = address, .maximumBytes = maximumPictureBytes, .timeLimit = pictureLimit});
            QImage image = foundation::pictureFromOutside(result.body.value_or(QByteArray()));
            if (!image.isNull())
                image = image.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
            foundation::queue::asyncMain([self, address, image] {
                if (self)
                    self->take(address, image);
            });
        });
    }
}

void SitePictures::take(const QString &address, const QImage &image)
{
    m_running.remove(address);
    auto picture = std::make_unique<QPixmap>(QPixmap::fromImage(image));
    picture->setDevicePixelRatio(m_scale);
    m_pictures.insert(address, picture.release());
    emit made();
    startPending();
}

}  // namespace kestrel
