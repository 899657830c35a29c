#pragma once

#include <QObject>

#include <memory>
#include <vector>

namespace kestrel {

class ToolPath;
class ToolProcess;

/// Plays files in windows of their own, which end with this object.
class MediaPlayer : public QObject {
    Q_OBJECT
public:
    explicit MediaPlayer(QObject *parent = nullptr);
    ~MediaPlayer() override;

    /// False where there is no such player. `failed` comes where it cannot play the file.
    bool play(const QString &player, const QString &path, const QString &title);

signals:
    void failed(const QString &title);

private:
    struct Showing {
        std::unique_ptr<ToolPath> path;
        std::unique_ptr<ToolProcess> process;
    };
    std::vector<std::unique_ptr<Showing>> m_showing;
};

}  // namespace kestrel
