#include "JobStore.h"

#include "StoredJob.h"
#include "foundation/Bundle.h"
#include "foundation/Queues.h"
#include "foundation/StandardFolders.h"
#include "tarnwell/Log.h"
#include "tarnwell/ProductInformation.h"
#include "tarnwell/SystemInformation.h"

#include <QFileInfo>
#include <QLibrary>
#include <QRandomGenerator>
#include <QThread>

#include <algorithm>
#include <condition_variable>
#include <map>
#include <mutex>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace kestrel {

namespace {

constexpr auto idPatience = 1s;
constexpr int firstIdCount = 16;
constexpr int maximumIdCount = 8192;
constexpr size_t maximumWrites = 512;  ///< in one transaction, so that identifiers need not wait long for their turn

/// Null where it cannot be loaded, which `report` tells then.
QFunctionPointer entry(const QString &libraryPath, const char *symbol, QString &report)
{
    QLibrary library(libraryPath.isNull() ? foundation::Bundle::main().contentsPath(u"Frameworks/libJobStore.dylib"_s)
                                          : libraryPath);
    library.setLoadHints(QLibrary::PreventUnloadHint);
    const QFunctionPointer function = library.resolve(symbol);
    if (!function)
        report = library.errorString();
    return function;
}

/// The store on its thread. What is asked of that stands in members under one lock; the file is the thread's alone.
class ThreadedJobStore final : public JobStore {
public:
    ThreadedJobStore(const QString &path, const QString &libraryPath);
    ~ThreadedJobStore() override;

    bool isOpen() const { return m_isOpen; }

    QList<Row> load() override;
    JobId nextId() override;
    void put(const JobRecord &record, double position) override;
    void place(JobId id, double position) override;
    void remove(const QList<JobId> &ids) override;
    void whenWritten(std::function<void()> then) override;
    bool flush(std::chrono::milliseconds patience) override;

private:
    using Lock = std::unique_lock<std::mutex>;
    struct Change {
        enum class Kind { Put, Place, Remove } kind;
        Row row = {};  ///< of Place, only the position; of Remove, nothing
    };
    using Changes = std::map<JobId, Change>;

    void work(const QString &path, const QString &libraryPath);
    std::unique_ptr<JobDatabase> opened(const QString &path, const QString &libraryPath);
    bool hasTask() const;
    void reserve(Lock &lock, JobDatabase &database);
    void read(Lock &lock, JobDatabase &database);
    void write(Lock &lock, JobDatabase &database);
    Changes takeChanges();
    void addOlder(JobId id, Change change);
    void note(const QString &failure);

    std::mutex m_mutex;
    std::condition_variable m_asked, m_answered;
    Changes m_changes;
    bool m_isToWrite = false;
    bool m_isFailing = false, m_isFailureLogged = false;
    quint64 m_flushesAsked = 0, m_flushesDone = 0;
    std::multimap<quint64, std::function<void()>> m_toBeTold;  ///< by the flush that they wait for
    bool m_isLoadAsked = false;
    QList<Row> m_loaded;
    JobId m_nextId = 0, m_idsEnd = 0;      ///< of the present identifiers
    JobId m_spareId = 0, m_sparesEnd = 0;  ///< of those that come next
    int m_idCount = firstIdCount;
    bool m_isIdAsked = true;
    bool m_isEnding = false;
    bool m_isOpening = true, m_isOpen = false;
    std::unique_ptr<QThread> m_thread;
};

ThreadedJobStore::ThreadedJobStore(const QString &path, const QString &libraryPath)
    : m_thread(QThread::create([this, path, libraryPath] { work(path, libraryPath); }))
{
    m_thread->setObjectName(u"job store"_s);
    m_thread->start();
    Lock lock(m_mutex);
    m_answered.wait(lock, [this] { return !m_isOpening; });
}

ThreadedJobStore::~ThreadedJobStore()
{
    {
        const Lock lock(m_mutex);
        m_isEnding = true;
        m_isToWrite = true;
        m_asked.notify_one();
    }
    m_thread->wait();
}

JobId ThreadedJobStore::nextId()
{
    Lock lock(m_mutex);
    if (m_nextId == m_idsEnd) {
        m_isIdAsked = m_spareId == m_sparesEnd;
        m_asked.notify_one();
        m_answered.wait_for(lock, idPatience, [this] { return m_spareId != m_sparesEnd || !m_isIdAsked; });
        m_nextId = std::exchange(m_spareId, 0);
        m_idsEnd = std::exchange(m_sparesEnd, 0);
    }
    if (m_nextId == m_idsEnd) {
        // None to be had, as on a full disk: far from those that are given in turn, and by chance.
        constexpr JobId farAway = JobId(1) << 52;
        m_nextId =
            farAway + JobId(QRandomGenerator::global()->bounded(quint64(farAway) / maximumIdCount)) * maximumIdCount;
        m_idsEnd = m_nextId + maximumIdCount;
    }
    const JobId id = m_nextId++;
    if (m_spareId == m_sparesEnd && !m_isIdAsked) {
        m_isIdAsked = true;
        m_asked.notify_one();
    }
    return id;
}

void ThreadedJobStore::put(const JobRecord &record, double position)
{
    const Lock lock(m_mutex);
    m_changes[record.id] = {Change::Kind::Put, {record, position}};
    m_isToWrite = true;
    m_asked.notify_one();
}

void ThreadedJobStore::place(JobId id, double position)
{
    const Lock lock(m_mutex);
    m_changes.try_emplace(id, Change{Change::Kind::Place}).first->second.row.position = position;
    m_isToWrite = true;
    m_asked.notify_one();
}

void ThreadedJobStore::remove(const QList<JobId> &ids)
{
    const Lock lock(m_mutex);
    for (const JobId id : ids)
        m_changes[id] = {Change::Kind::Remove};
    m_isToWrite = true;
    m_asked.notify_one();
}

bool ThreadedJobStore::flush(std::chrono::milliseconds patience)
{
    Lock lock(m_mutex);
    const quint64 mine = ++m_flushesAsked;
    m_isToWrite = true;
    m_asked.notify_one();
    return m_answered.wait_for(lock, patience, [this, mine] { return m_flushesDone >= mine; }) && !m_isFailing;
}

void ThreadedJobStore::whenWritten(std::function<void()> then)
{
    const Lock lock(m_mutex);
    m_toBeTold.emplace(++m_flushesAsked, std::move(then));
    m_isToWrite = true;
    m_asked.notify_one();
}

QList<JobStore::Row> ThreadedJobStore::load()
{
    Lock lock(m_mutex);
    m_isLoadAsked = true;
    m_isToWrite = m_isToWrite || !m_changes.empty();
    m_asked.notify_one();
    m_answered.wait(lock, [this] { return !m_isLoadAsked; });
    return std::exchange(m_loaded, {});
}

bool ThreadedJobStore::hasTask() const
{
    return m_isIdAsked || m_isLoadAsked || m_isToWrite || m_isEnding;
}

void ThreadedJobStore::work(const QString &path, const QString &libraryPath)
{
    const std::unique_ptr<JobDatabase> database = opened(path, libraryPath);
    Lock lock(m_mutex);
    m_isOpening = false;
    m_isOpen = database != nullptr;
    m_answered.notify_all();
    while (database) {
        m_asked.wait(lock, [this] { return hasTask(); });
        if (m_isIdAsked)
            reserve(lock, *database);
        else if (m_isToWrite)
            write(lock, *database);
        else if (m_isLoadAsked)
            read(lock, *database);
        else
            return;
        m_answered.notify_all();
    }
}

std::unique_ptr<JobDatabase> ThreadedJobStore::opened(const QString &path, const QString &libraryPath)
{
    std::unique_ptr<JobDatabase> database;
    QString report;
    if (const auto open =
            reinterpret_cast<OpenJobDatabaseFunction *>(entry(libraryPath, openJobDatabaseSymbol, report)))
        open(path, database, report);
    if (!report.isEmpty())
        tarnwell::DNFootLog(u"Job store %1: %2"_s, path, report);
    return database;
}

void ThreadedJobStore::reserve(Lock &lock, JobDatabase &database)
{
    const int count = m_idCount;
    lock.unlock();
    const JobId first = database.reserveIds(count);
    lock.lock();
    m_isIdAsked = false;
    if (first == 0)
        return note(database.lastError());
    m_spareId = first;
    m_sparesEnd = first + count;
    m_idCount = std::min(count * 4, maximumIdCount);
}

void ThreadedJobStore::read(Lock &lock, JobDatabase &database)
{
    lock.unlock();
    QList<Row> loaded, changed;
    for (const JobRow &row : database.rows()) {
        std::optional<LoadedJob> job = loadedJob(row);
        if (!job || job->holder != 0)
            continue;
        if (job->isToBeStored)
            changed.append(job->row);
        loaded.append(std::move(job->row));
    }
    lock.lock();
    for (Row &row : changed)
        addOlder(row.record.id, {Change::Kind::Put, std::move(row)});
    m_isToWrite = m_isToWrite || !changed.isEmpty();
    m_loaded = std::move(loaded);
    m_isLoadAsked = false;
}

ThreadedJobStore::Changes ThreadedJobStore::takeChanges()
{
    if (m_changes.size() <= maximumWrites)
        return std::exchange(m_changes, {});
    Changes changes;
    while (changes.size() < maximumWrites)
        changes.insert(m_changes.extract(m_changes.begin()));
    return changes;
}

/// One from before those that stand there, which count.
void ThreadedJobStore::addOlder(JobId id, Change change)
{
    const auto [newer, isOnly] = m_changes.try_emplace(id, change);
    if (isOnly || newer->second.kind != Change::Kind::Place || change.kind != Change::Kind::Put)
        return;
    change.row.position = newer->second.row.position;
    newer->second = std::move(change);
}

void ThreadedJobStore::write(Lock &lock, JobDatabase &database)
{
    const quint64 flush = m_flushesAsked;
    Changes changes = takeChanges();
    const bool wasLast = m_changes.empty();
    m_isToWrite = !wasLast;
    lock.unlock();
    JobDatabase::Changes rows;
    for (const auto &[id, change] : changes) {
        if (change.kind == Change::Kind::Put)
            rows.put.append(storedJob(change.row.record, change.row.position));
        else if (change.kind == Change::Kind::Place)
            rows.placed.append({id, change.row.position});
        else
            rows.removed.append(id);
    }
    const bool isWritten = changes.empty() || database.write(rows);
    lock.lock();
    m_isFailing = !isWritten;
    if (!isWritten) {
        note(database.lastError());
        for (auto &[id, change] : changes)
            addOlder(id, std::move(change));
        m_isToWrite = false;
    } else if (!changes.empty()) {
        m_isFailureLogged = false;
    }
    if (!wasLast && isWritten)
        return;
    m_flushesDone = flush;
    const auto end = m_toBeTold.upper_bound(flush);
    for (auto told = m_toBeTold.begin(); told != end; ++told)
        foundation::queue::asyncMain(std::move(told->second));
    m_toBeTold.erase(m_toBeTold.begin(), end);
}

/// Once until it is well again: a full disk would fill the log too.
void ThreadedJobStore::note(const QString &failure)
{
    if (!std::exchange(m_isFailureLogged, true))
        tarnwell::DNFootLog(u"Jobs cannot be stored: %1"_s, failure);
}

}  // namespace

void JobStore::whenWritten(std::function<void()> then)
{
    foundation::queue::asyncMain(std::move(then));
}

QString jobStorePath()
{
    return tarnwell::GetApplicationSupportDir() + u'/' + tarnwell::GetApplicationName() + u"/jobs.sqlite"_s;
}

std::unique_ptr<JobStore> openJobStore(const QString &path, const QString &libraryPath)
{
    const QString folder = QFileInfo(path).absolutePath();
    foundation::makePrivateFolder(folder);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    auto store = std::make_unique<ThreadedJobStore>(path, libraryPath);
    return store->isOpen() ? std::move(store) : nullptr;
}

foundation::Result<QList<ListedJob>> listJobs(const QString &path, const QString &libraryPath)
{
    QList<JobRow> rows;
    QString report;
    JobFileState state = JobFileState::Inaccessible;
    if (const auto read =
            reinterpret_cast<ReadJobDatabaseFunction *>(entry(libraryPath, readJobDatabaseSymbol, report)))
        state = read(path, rows, report);
    switch (state) {
        case JobFileState::Damaged:
            return foundation::Failure{u"The list of jobs is damaged, %1: %2"_s.arg(path, report.simplified())};
        case JobFileState::Newer:
            return foundation::Failure{u"The list of jobs was written by a newer version, %1"_s.arg(path)};
        case JobFileState::Inaccessible:
            return foundation::Failure{u"The list of jobs cannot be read, %1: %2"_s.arg(path, report.simplified())};
        default:
            break;
    }
    QList<ListedJob> jobs;
    for (const JobRow &row : rows) {
        auto job = loadedJob(row);
        if (!job)
            continue;
        if (!outputsAreThere(job->row.record))
            setOutputsGone(job->row.record);
        jobs.append({job->row.record, job->holder, job->isToBeStored});
    }
    return jobs;
}

}  // namespace kestrel
