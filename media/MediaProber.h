#pragma once

#include "MediaInformation.h"

#include "foundation/Result.h"
#include "jobs/ToolProcess.h"
#include "tarnwell/TextKey.h"

#include <QObject>

#include <memory>
#include <vector>

namespace kestrel {

class ToolPath;

/// ffprobe as it stands beside ffmpeg.
QString proberBeside(const QString &transcoderPath);

/// Options before every input, of ffprobe and ffmpeg alike, so that both number the same tracks: local files only, and
/// looked at far enough to find tracks that begin late in streams without a header.
QStringList inputOptions();

/// One look at a file; `argument` is a ToolPath's.
ToolCommand probeCommand(const QString &proberPath, const QString &argument, std::chrono::milliseconds timeLimit);
/// A second look, for mastering data that only pictures carry: PQ without it loses its look when it is encoded. What
/// comes of it is for `addPictureData`. Nothing where there is no need.
std::optional<ToolCommand> pictureDataCommand(const QString &proberPath, const QString &argument,
                                              const MediaInformation &information, std::chrono::milliseconds timeLimit);
/// What came of the first look, or why the file cannot be converted.
foundation::Result<MediaInformation, tarnwell::Sentence> probeResult(const ToolEnding &ending);
/// Why the file cannot even be looked at; none where it can.
tarnwell::Sentence unreadableReason(const QString &path);

/// Asks ffprobe about files in the background, two at a time and each within a limit of time. `probed` comes once for
/// each file that was not forgotten, later than `probe` returns. Main thread.
class MediaProber : public QObject {
    Q_OBJECT
public:
    using Answer = foundation::Result<MediaInformation, tarnwell::Sentence>;

    explicit MediaProber(std::chrono::milliseconds timeLimit = std::chrono::seconds(15), QObject *parent = nullptr);
    ~MediaProber() override;

    /// `id` is the caller's name for the file.
    void probe(qint64 id, const QString &proberPath, const QString &path);
    /// Drops files that have not had their turn.
    void forget(const QList<qint64> &ids);

signals:
    /// What can be converted comes with information, else the reason says why.
    void probed(qint64 id, const kestrel::MediaProber::Answer &answer);

private:
    struct Request {
        qint64 id;
        QString proberPath;
        QString path;
    };
    struct Probe {
        Request request;
        std::unique_ptr<ToolPath> path;
        std::unique_ptr<ToolProcess> process;
    };

    void startPendingLater();
    void startPending();
    void start(const Request &request);
    void runTool(Probe &probe, const ToolCommand &command, std::function<void(const ToolEnding &)> then);
    void lookAtPicture(Probe &probe, const ToolCommand &command, MediaInformation information);
    void finish(const Probe &probe, const Answer &answer);

    std::chrono::milliseconds m_timeLimit;
    QList<Request> m_pending;
    std::vector<std::unique_ptr<Probe>> m_running;
};

}  // namespace kestrel
