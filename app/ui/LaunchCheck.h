#pragma once

#include "foundation/Fetch.h"

#include <QDate>
#include <QObject>

#include <functional>
#include <memory>

namespace kestrel::foundation {
class UserDefaults;
}

namespace kestrel {

class UPParser;
class UpgradeWindowController;
struct UpdateContext;

/// What a launch asks of the publisher's server, and what it shows of the answer: a new version, a promotion, or
/// nothing. Main thread, but for `run`.
class LaunchCheck : public QObject {
    Q_OBJECT
public:
    /// What it gets from outside. `fetch` is called on background threads.
    struct Sources {
        foundation::Fetch fetch;
        std::function<QDate()> today;
        std::function<quint32()> draw;  ///< a random number, uniform over its 32 bits
    };

    /// `defaults` outlives it; it outlives its background jobs. `terminate` ends the application, where a compulsory
    /// update is declined.
    LaunchCheck(foundation::UserDefaults &defaults, Sources sources, std::function<void()> terminate);
    ~LaunchCheck() override;

    /// Fetches the descriptor and shows what is due. Called once a launch, on a background thread.
    void run();
    /// Opens the update window, which makes a check of its own; one that is open comes to the front.
    void showUpdateWindow();
    /// Shows nothing any more.
    void runWillEnd() { m_hasRunEnded = true; }

    /// Of this run; null until it has been fetched, and where that failed.
    const std::shared_ptr<const UPParser> &descriptor() const { return m_descriptor; }
    void setDescriptor(std::shared_ptr<const UPParser> descriptor) { m_descriptor = std::move(descriptor); }

private:
    UpdateContext context() const;
    void showWhatIsDue(const std::shared_ptr<const UPParser> &descriptor, const QString &url);
    void runUpgradeWindow(const QString &url, const std::function<void(UpgradeWindowController &)> &show);
    void fetchPromotion(const std::shared_ptr<const UPParser> &descriptor, const QString &today);

    foundation::UserDefaults &m_defaults;
    Sources m_sources;
    std::function<void()> m_terminate;
    std::shared_ptr<const UPParser> m_descriptor;
    UpgradeWindowController *m_upgradeWindow = nullptr;  ///< the one that is shown
    bool m_wasAskedByHand = false;  ///< and has its answer from that check, whether its window is still open or not
    bool m_hasRunEnded = false;
};

}  // namespace kestrel
