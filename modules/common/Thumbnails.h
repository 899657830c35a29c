#pragma once

#include <QCache>
#include <QObject>
#include <QPixmap>

#include <memory>
#include <vector>

namespace kestrel {

class ToolPath;
class ToolProcess;

/// Small pictures of films, made in the background by ffmpeg, two at a time, what was asked for last first. So many are
/// kept; of what has none (sound, damaged files) it is known that it has none. Main thread.
class Thumbnails : public QObject {
    Q_OBJECT
public:
    /// `size` in points.
    explicit Thumbnails(QSize size, QObject *parent = nullptr);
    ~Thumbnails() override;

    void setTranscoder(const QString &path) { m_transcoder = path; }
    void setScale(qreal scale) { m_scale = scale; }  ///< pixels a point

    /// The picture at that time of the file. A null one while it is being made, or where it was forgotten: `made` tells
    /// when to ask again. One without pixels stands for a file that has no pictures.
    const QPixmap *picture(const QString &path, double seconds);

signals:
    void made(const QString &path);

private:
    struct Request {
        QString path;
        double seconds;
        bool operator==(const Request &) const = default;
        QString key() const;
    };
    struct Run {
        Request request;
        std::unique_ptr<ToolPath> path;
        std::unique_ptr<ToolProcess> process;
    };

    void startPending();
    void start(const Request &request);
    void take(Run *run, const QByteArray &output);

    QSize m_size;
    qreal m_scale = 1;
    QString m_transcoder;
    QCache<QString, QPixmap> m_pictures;
    QList<Request> m_pending;
    std::vector<std::unique_ptr<Run>> m_running;
};

}  // namespace kestrel
