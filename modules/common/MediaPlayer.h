#pragma once

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace kestrel {

struct ToolCommand;
struct ToolEnding;

/// Plays films in windows of their own, which end with this object.
class MediaPlayer : public QObject {
    Q_OBJECT
public:
    explicit MediaPlayer(QObject *parent = nullptr);
    ~MediaPlayer() override;

    /// False where there is no such player. `failed` comes where it cannot play the file.
    bool play(const QString &player, const QString &path, const QString &title);
    /// The same with the program stream that `reader` writes; `choice` tells the player its tracks, `hasFailed` whether
    /// the reader gave up by itself.
    bool playStream(const QString &player, std::shared_ptr<const ToolCommand> reader, const QStringList &choice,
                    const QString &title, bool (*hasFailed)(const ToolEnding &ending));

signals:
    void failed(const QString &title);

private:
    struct Showing;

    void show(std::unique_ptr<Showing> showing, const ToolCommand &command,
              const std::function<bool(const ToolEnding &)> &hasFailed);

    std::vector<std::unique_ptr<Showing>> m_showing;
};

}  // namespace kestrel
