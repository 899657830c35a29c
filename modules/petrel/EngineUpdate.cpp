#include "EngineUpdate.h"

#include "foundation/Bundle.h"
#include "foundation/Queues.h"
#include "foundation/StandardFolders.h"
#include "tarnwell/Log.h"
#include "tarnwell/ProductInformation.h"

#include <QPointer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kestrel {

namespace {

constexpr auto fileLimit = 10min;

/// The engine's answer to `--version`; null where it is none.
QString versionIn(const ToolEnding &ending)
{
    const QString text = QString::fromLatin1(ending.output).trimmed();
    return ending.isGood() && compareEngineVersions(text, {}) > 0 ? text : QString();
}

}  // namespace

EngineUpdate::EngineUpdate(EngineStore store, EngineTools tools, Source source,
                           std::shared_ptr<foundation::Fetcher> fetcher, QObject *parent)
    : QObject(parent),
      m_store(std::move(store)),
      m_tools(std::move(tools)),
      m_source(std::move(source)),
      m_fetcher(std::move(fetcher))
{
}

EngineUpdate::~EngineUpdate()
{
    m_fetcher->abandon();
}

EngineUpdate::Source EngineUpdate::productSource()
{
    const foundation::Bundle &bundle = tarnwell::productBundle();
    return {bundle.infoString(u"TWDownloadEngineLink"_s), bundle.infoString(u"TWDownloadEngineKey"_s).toLatin1()};
}

void EngineUpdate::start(Asked asked)
{
    if (m_isUnderWay)
        return;
    m_isUnderWay = true;
    if (m_source.address.isEmpty() || (!m_store.takeTurn(QDateTime::currentDateTimeUtc()) && asked == Asked::ByItself))
        return end(End::NotDue, u"not due"_s);
    m_tools.engine = m_store.engine();
    foundation::makePrivateFolder(m_tools.home);
    m_process = std::make_unique<ToolProcess>(versionCommand(m_tools));
    connect(m_process.get(), &ToolProcess::ended, this, [this](const ToolEnding &ending) {
        m_process.release()->deleteLater();
        fetchDocument(versionIn(ending));
    });
    m_process->start();
}

/// Runs `work` on a background thread, and what it returns on the main one while this object lives.
void EngineUpdate::inBackground(std::function<std::function<void()>()> work)
{
    foundation::queue::asyncGlobal([self = QPointer(this), work = std::move(work)] {
        foundation::queue::asyncMain([self, then = work()] {
            if (self)
                then();
        });
    });
}

/// `version` is that of the engine in use; null where it does not even tell that.
void EngineUpdate::fetchDocument(const QString &version)
{
    inBackground([this, version, source = m_source, fetcher = m_fetcher]() -> std::function<void()> {
        const auto answer = fetcher->fetch({.address = source.address, .maximumBytes = EngineRelease::maximumDocument});
        auto release = answer.body ? EngineRelease::fromDocument(*answer.body, source.publicKey, bundleVerifier())
                                   : foundation::Result<EngineRelease>(foundation::Failure{answer.reason});
        return [this, version, release] {
            if (!release)
                return end(End::Failed, u"The document about the newest engine is not used: "_s + release.reason());
            const bool isNewer = compareEngineVersions(release->version, version) > 0;
            if (!isNewer || m_store.isRuledOut(release->version))
                return end(End::UpToDate, version);
            fetchFile(*release);
        };
    });
}

void EngineUpdate::fetchFile(const EngineRelease &release)
{
    inBackground([this, release, store = m_store, fetcher = m_fetcher]() -> std::function<void()> {
        const auto answer =
            fetcher->fetch({.address = release.file, .maximumBytes = release.length, .timeLimit = fileLimit});
        const auto path = answer.body ? store.install(release, *answer.body)
                                      : foundation::Result<QString>(foundation::Failure{answer.reason});
        return [this, release, path] {
            if (path)
                tryOut(release, *path);
            else
                end(End::Failed, u"The new engine is not used: "_s + path.reason());
        };
    });
}

void EngineUpdate::tryOut(const EngineRelease &release, const QString &path)
{
    m_tools.engine = path;
    m_process = std::make_unique<ToolProcess>(versionCommand(m_tools));
    connect(m_process.get(), &ToolProcess::ended, this, [this, release](const ToolEnding &ending) {
        m_process.release()->deleteLater();
        if (versionIn(ending) != release.version) {
            m_store.ruleOut(release.version);
            return end(End::Failed, u"The new engine does not work: "_s + ending.lastWords.trimmed());
        }
        m_store.adopt(release.version);
        end(End::Updated, release.version);
    });
    m_process->start();
}

void EngineUpdate::end(End end, const QString &text)
{
    m_isUnderWay = false;
    if (end == End::Failed)
        tarnwell::DNFootLog(text);
    QMetaObject::invokeMethod(
        this, [this, end, text] { emit ended(end, text); }, Qt::QueuedConnection);
}

}  // namespace kestrel
