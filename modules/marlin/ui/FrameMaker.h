#pragma once

#include "media/FramePreview.h"

#include <QImage>
#include <QObject>

#include <memory>
#include <optional>

namespace kestrel {

class ToolPath;
class ToolProcess;
class WorkFolder;

/// One picture of a source or of what becomes of it, computed in the background: the key picture before it first, then,
/// when no other was asked for, the exact one. Of several requests only the latest is carried out. Main thread.
class FrameMaker : public QObject {
    Q_OBJECT
public:
    struct Request {
        QString transcoder;
        TranscodePlan plan;
        MediaInformation source;
        double seconds = 0;
        QSize size;  ///< pixels
        PreviewPicture picture = PreviewPicture::Source;
        PreviewPlace place = PreviewPlace::KeyPicture;  ///< of the first picture
    };

    explicit FrameMaker(QObject *parent = nullptr);
    ~FrameMaker() override;

    void request(const Request &request);

signals:
    /// A null image where there is none to be had.
    void made(const QImage &image);

private:
    void start();
    QString readableCopy(const QString &path, double frameRate);
    void take(const Request &request, const QImage &image);
    void refineLater(Request request);

    std::optional<Request> m_next;
    bool m_isRefining = false;
    quint64 m_requests = 0;
    std::unique_ptr<ToolPath> m_path;
    QString m_original, m_copy;               ///< of subtitles that are burnt in
    std::unique_ptr<WorkFolder> m_subtitles;  ///< where the copy lies
    std::unique_ptr<ToolProcess> m_process;
};

}  // namespace kestrel
