#pragma once

#include <QCache>
#include <QObject>
#include <QPixmap>
#include <QSet>

#include <memory>

class QImage;

namespace kestrel {

namespace foundation {
class Fetcher;
}

/// The small pictures that sites show for their films, fetched in the background, a few at a time, what was asked for
/// last first. So many are kept; one that could not be had is not asked for again. Main thread.
class SitePictures : public QObject {
    Q_OBJECT
public:
    /// `size` in points: the longest that a picture is shown.
    explicit SitePictures(QSize size, QObject *parent = nullptr);
    ~SitePictures() override;

    void setScale(qreal scale) { m_scale = scale; }  ///< pixels a point

    /// A null one where the site has none, or while it is on its way: `made` tells when to ask again.
    QPixmap picture(const QString &address);

signals:
    void made();

private:
    void startPending();
    void take(const QString &address, const QImage &image);

    QSize m_size;
    qreal m_scale = 1;
    std::shared_ptr<foundation::Fetcher> m_fetcher;
    QCache<QString, QPixmap> m_pictures;
    QList<QString> m_pending;
    QSet<QString> m_running;
};

}  // namespace kestrel
