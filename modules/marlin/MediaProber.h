#pragma once

#include "MediaInformation.h"

#include <QList>
#include <QObject>

#include <memory>
#include <vector>

class QProcess;

namespace kestrel {

/// Asks the information tool about files in the background, a few at a time and each within a limit of time. `probed`
/// comes once for each file, later than `probe` returns.
class MediaProber : public QObject {
    Q_OBJECT
public:
    explicit MediaProber(std::chrono::milliseconds timeLimit = std::chrono::seconds(15), QObject *parent = nullptr);
    ~MediaProber() override;

    /// `id` is the caller's name for the file.
    void probe(qint64 id, const QString &toolPath, const QString &path);
    /// Drops files that have not had their turn.
    void forget(const QList<qint64> &ids);

signals:
    /// What can be converted comes with information; without it `reason` is the key of a sentence that says why.
    void probed(qint64 id, const std::optional<MediaInformation> &information, const QString &reason);

private:
    struct Request {
        qint64 id;
        QString toolPath;
        QString path;
    };

    void startPending();
    void start(const Request &request);
    void finish(QProcess *process, const Request &request);

    std::chrono::milliseconds m_timeLimit;
    QList<Request> m_pending;
    std::vector<std::unique_ptr<QProcess>> m_running;
};

}  // namespace kestrel
