#pragma once

#include "EngineCommand.h"
#include "EngineStore.h"

#include "foundation/Fetch.h"

#include <QObject>

#include <memory>

namespace kestrel {

/// Looks for a newer download engine in the background and takes it into use: the publisher's signed document, then
/// the file, then a first run. Says what came of it in the log and in `ended`. Main thread.
class EngineUpdate : public QObject {
    Q_OBJECT
public:
    struct Source {
        QString address;       ///< of the document; null for none
        QByteArray publicKey;  ///< Base64
    };
    enum class Asked { ByItself, ByUser };
    enum class End { NotDue, UpToDate, Updated, Failed };

    EngineUpdate(EngineStore store, EngineTools tools, Source source, std::shared_ptr<foundation::Fetcher> fetcher,
                 QObject *parent = nullptr);
    ~EngineUpdate() override;

    /// As Info.plist has it.
    static Source productSource();

    /// At most once in six hours, unless a user asks. Does nothing while it is under way.
    void start(Asked asked);

signals:
    /// `text` is English: the version, or why not.
    void ended(kestrel::EngineUpdate::End end, const QString &text);

private:
    void fetchDocument(const QString &version);
    void fetchFile(const EngineRelease &release);
    void tryOut(const EngineRelease &release, const QString &path);
    void end(End end, const QString &text);
    void inBackground(std::function<std::function<void()>()> work);

    EngineStore m_store;
    EngineTools m_tools;
    Source m_source;
    std::shared_ptr<foundation::Fetcher> m_fetcher;
    std::unique_ptr<ToolProcess> m_process;
    bool m_isUnderWay = false;
};

}  // namespace kestrel
