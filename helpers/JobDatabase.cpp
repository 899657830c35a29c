#include "jobs/JobDatabase.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QThread>
#include <QUrl>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <cerrno>
#include <functional>
#include <optional>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr int schemaVersion = 1;
constexpr int applicationId = 0x4b4a4f42;  ///< "KJOB"
constexpr int maximumValueLength = 1024 * 1024;
constexpr int maximumTextLength = 1024;
constexpr qint64 maximumBytes = 256 * 1024 * 1024;  ///< of all that is read
constexpr int lockIntervalMs = 10;
constexpr int lockAttempts = 200;
constexpr int busyTimeoutMs = 2000;

constexpr const char *schema[] = {
    "CREATE TABLE jobs (id INTEGER PRIMARY KEY, module TEXT NOT NULL, position REAL NOT NULL, state TEXT NOT NULL, "
    "owner TEXT NOT NULL, value TEXT NOT NULL)",
    "CREATE TABLE ids (next INTEGER NOT NULL)", "INSERT INTO ids VALUES (1)"};

constexpr const char *columns = "SELECT id, module, position, state, owner, value FROM jobs LIMIT 0";

constexpr const char *selection =
    "SELECT id, module, position, state, owner, CAST(value AS BLOB) FROM jobs "
    "WHERE typeof(id) = 'integer' AND id > 0 AND length(CAST(value AS BLOB)) <= %1 AND length(module) + length(state) "
    "+ length(owner) <= %2 "
    "ORDER BY position, id";

constexpr const char *upsert =
    "INSERT INTO jobs (id, module, position, state, owner, value) VALUES (?, ?, ?, ?, ?, ?) ON CONFLICT (id) DO UPDATE "
    "SET module = excluded.module, position = excluded.position, state = excluded.state, owner = excluded.owner, "
    "value = excluded.value";

/// Of what has ended, all but the newest 20,000, and but what fits into half of what is read.
constexpr const char *outlived =
    "FROM jobs WHERE id IN (SELECT id FROM (SELECT id, row_number() OVER newest AS count, "
    "sum(length(CAST(value AS BLOB))) OVER newest AS bytes FROM jobs "
    "WHERE state IN ('done', 'done-with-problems', 'failed', 'cancelled') WINDOW newest AS (ORDER BY id DESC)) "
    "WHERE count > 20000 OR bytes > 134217728)";

/// Held while a file is looked at and perhaps moved aside, so that two processes do not do that to each other's.
class OpeningLock {
public:
    explicit OpeningLock(const QString &path)
        : m_file(open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600))
    {
        for (int attempt = 0; m_file >= 0 && !m_isHeld && attempt < lockAttempts; ++attempt) {
            m_isHeld = flock(m_file, LOCK_EX | LOCK_NB) == 0;
            if (!m_isHeld)
                QThread::msleep(lockIntervalMs);
        }
    }
    ~OpeningLock()
    {
        if (m_file >= 0)
            close(m_file);
    }
    OpeningLock(const OpeningLock &) = delete;
    OpeningLock &operator=(const OpeningLock &) = delete;

    bool isHeld() const { return m_isHeld; }

private:
    int m_file;
    bool m_isHeld = false;
};

/// Damaged, Newer: no use to this version.
using FileState = JobFileState;

enum class Access {
    Full,
    Reading,
    ReadingAtRest,  ///< of a file that nobody has open; makes none beside it
};

class SqliteJobs final : public JobDatabase {
public:
    explicit SqliteJobs(const QString &path, Access access = Access::Full);
    ~SqliteJobs() override;

    FileState open();
    /// Opens it and looks whether it is whole and one of ours; writes nothing.
    FileState inspect();
    QList<JobRow> rows() override;
    bool write(const Changes &changes) override;
    qint64 reserveIds(int count) override;
    QString lastError() const override { return m_error.text(); }

private:
    bool noted(const QSqlQuery &query, bool isGood);
    bool run(const QString &statement);
    std::optional<qint64> number(const QString &statement);
    /// Runs the task in a transaction of its own, which is taken back where it fails.
    bool transact(const std::function<bool()> &task);
    bool create();
    void prune();
    FileState kind();
    FileState failure() const;

    QString m_connection;
    QSqlDatabase m_database;
    QSqlError m_error;
};

SqliteJobs::SqliteJobs(const QString &path, Access access)
    : m_connection(u"jobs-%1"_s.arg(quintptr(this), 0, 16)),
      m_database(QSqlDatabase::addDatabase(u"QSQLITE"_s, m_connection))
{
    QString options = u"QSQLITE_BUSY_TIMEOUT=%1"_s.arg(busyTimeoutMs);
    QString name = path;
    if (access != Access::Full)
        options += u";QSQLITE_OPEN_READONLY"_s;
    if (access == Access::ReadingAtRest) {
        options += u";QSQLITE_OPEN_URI"_s;
        name = QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded) + u"?immutable=1"_s;
    }
    m_database.setDatabaseName(name);
    m_database.setConnectOptions(options);
}

SqliteJobs::~SqliteJobs()
{
    m_database.close();
    m_database = {};
    QSqlDatabase::removeDatabase(m_connection);
}

bool SqliteJobs::noted(const QSqlQuery &query, bool isGood)
{
    if (!isGood)
        m_error = query.lastError();
    return isGood;
}

bool SqliteJobs::run(const QString &statement)
{
    QSqlQuery query(m_database);
    return noted(query, query.exec(statement));
}

std::optional<qint64> SqliteJobs::number(const QString &statement)
{
    QSqlQuery query(m_database);
    if (!noted(query, query.exec(statement) && query.next()))
        return std::nullopt;
    return query.value(0).toLongLong();
}

bool SqliteJobs::transact(const std::function<bool()> &task)
{
    // Immediate: one that began as a reader could not wait for another writer.
    if (!run(u"BEGIN IMMEDIATE"_s))
        return false;
    if (task() && run(u"COMMIT"_s))
        return true;
    const QSqlError error = m_error;
    run(u"ROLLBACK"_s);
    m_error = error;
    return false;
}

/// What the last failure says of the file: that it is no use, or only that it cannot be had now.
FileState SqliteJobs::failure() const
{
    constexpr int basicCode = 0xff, schemaError = 1, corrupt = 11, notADatabase = 26;
    const int code = m_error.nativeErrorCode().toInt() & basicCode;
    return code == schemaError || code == corrupt || code == notADatabase ? FileState::Damaged
                                                                          : FileState::Inaccessible;
}

bool SqliteJobs::create()
{
    return transact([this] {
        if (number(u"SELECT count(*) FROM sqlite_master"_s) != 0)
            return true;
        for (const char *statement : schema) {
            if (!run(QString::fromLatin1(statement)))
                return false;
        }
        return run(u"PRAGMA application_id = %1"_s.arg(applicationId)) &&
               run(u"PRAGMA user_version = %1"_s.arg(schemaVersion));
    });
}

FileState SqliteJobs::kind()
{
    const auto application = number(u"PRAGMA application_id"_s), version = number(u"PRAGMA user_version"_s);
    if (application == applicationId && version > schemaVersion)
        return FileState::Newer;
    if (application == applicationId && version == schemaVersion && number(u"SELECT count(*) FROM ids"_s) == 1 &&
        run(QString::fromLatin1(columns)))
        return FileState::Good;
    return m_error.isValid() ? failure() : FileState::Damaged;
}

FileState SqliteJobs::inspect()
{
    if (!m_database.open()) {
        m_error = m_database.lastError();
        return failure();
    }
    // Looked at before anything is written: it may be a file of somebody else.
    const std::optional<qint64> tables = number(u"SELECT count(*) FROM sqlite_master"_s);
    if (!tables)
        return failure();
    if (const FileState state = *tables > 0 ? kind() : FileState::Good; state != FileState::Good)
        return state;
    QSqlQuery check(m_database);
    if (!noted(check, check.exec(u"PRAGMA quick_check(1)"_s) && check.next()))
        return failure();
    return check.value(0).toString() == "ok"_L1 ? FileState::Good : FileState::Damaged;
}

FileState SqliteJobs::open()
{
    if (const FileState state = inspect(); state != FileState::Good)
        return state;
    if (!run(u"PRAGMA journal_mode = WAL"_s) || !run(u"PRAGMA synchronous = FULL"_s) || !create() ||
        !run(QString::fromLatin1(columns)))
        return failure();
    prune();
    return FileState::Good;
}

QList<JobRow> SqliteJobs::rows()
{
    QList<JobRow> rows;
    QSqlQuery query(m_database);
    query.setForwardOnly(true);
    if (!noted(query, query.exec(QString::fromLatin1(selection).arg(maximumValueLength).arg(maximumTextLength))))
        return rows;
    qint64 bytes = 0;
    while (query.next() && bytes <= maximumBytes) {
        rows.append({query.value(0).toLongLong(), query.value(1).toString(), query.value(2).toDouble(),
                     query.value(3).toString(), query.value(4).toString(), query.value(5).toByteArray()});
        bytes += rows.last().value.size();
    }
    return rows;
}

/// Looked for first: who only looks does not wait for another writer.
void SqliteJobs::prune()
{
    if (number(u"SELECT count(*) "_s + QLatin1StringView(outlived)) > 0)
        run(u"DELETE "_s + QLatin1StringView(outlived));
}

bool SqliteJobs::write(const Changes &changes)
{
    return transact([&] {
        QSqlQuery put(m_database), place(m_database), remove(m_database);
        if (!noted(put, put.prepare(QString::fromLatin1(upsert))) ||
            !noted(place, place.prepare(u"UPDATE jobs SET position = ? WHERE id = ?"_s)) ||
            !noted(remove, remove.prepare(u"DELETE FROM jobs WHERE id = ?"_s)))
            return false;
        for (const JobRow &row : changes.put) {
            const QVariant values[] = {row.id,    row.module, row.position,
                                       row.state, row.owner,  QString::fromUtf8(row.value)};
            for (int i = 0; i < int(std::size(values)); ++i)
                put.bindValue(i, values[i]);
            if (!noted(put, put.exec()))
                return false;
        }
        for (const auto &[id, position] : changes.placed) {
            place.bindValue(0, position);
            place.bindValue(1, id);
            if (!noted(place, place.exec()))
                return false;
        }
        for (const qint64 id : changes.removed) {
            remove.bindValue(0, id);
            if (!noted(remove, remove.exec()))
                return false;
        }
        return true;
    });
}

qint64 SqliteJobs::reserveIds(int count)
{
    qint64 first = 0;
    const bool isReserved = transact([&] {
        // Somebody may have put rows there by hand.
        first =
            number(u"SELECT max((SELECT next FROM ids), 1 + coalesce((SELECT max(id) FROM jobs), 0))"_s).value_or(0);
        return first > 0 && run(u"UPDATE ids SET next = %1"_s.arg(first + count));
    });
    return isReserved ? first : 0;
}

/// What is read of a file that somebody began to write meanwhile is not to be relied on: nothing then.
std::optional<FileState> readAtRest(const QString &path, QList<JobRow> &rows, QString &report)
{
    const QString log = path + u"-wal"_s;
    const QDateTime modified = QFileInfo(path).lastModified();
    if (QFile::exists(log))
        return std::nullopt;
    SqliteJobs jobs(path, Access::ReadingAtRest);
    const FileState state = jobs.inspect();
    if (state == FileState::Good)
        rows = jobs.rows();
    report = jobs.lastError();
    return QFile::exists(log) || QFileInfo(path).lastModified() != modified ? std::nullopt : std::optional(state);
}

/// Null where that fails; `asidePath` is where it went.
bool movedAside(const QString &path, QString &asidePath)
{
    const QString time = QDateTime::currentDateTimeUtc().toString(u"yyyyMMdd-HHmmss"_s);
    asidePath = path + u".damaged-"_s + time;
    for (int number = 2; QFile::exists(asidePath); ++number)
        asidePath = path + u".damaged-%1-%2"_s.arg(time).arg(number);
    // The log first: by itself it would be taken for one of the new file's.
    for (const QString &ending : {u"-wal"_s, u"-shm"_s, QString()}) {
        if (QFile::exists(path + ending) && !QFile::rename(path + ending, asidePath + ending))
            return false;
    }
    return true;
}

}  // namespace

}  // namespace kestrel

extern "C" __attribute__((visibility("default"))) void openJobDatabase(const QString &path,
                                                                       std::unique_ptr<kestrel::JobDatabase> &database,
                                                                       QString &report)
{
    using namespace kestrel;
    const OpeningLock lock(path + u".lock"_s);
    if (!lock.isHeld()) {
        report = qt_error_string(errno);
        return;
    }
    auto jobs = std::make_unique<SqliteJobs>(path);
    FileState state = jobs->open();
    if (state == FileState::Damaged || state == FileState::Newer) {
        report = jobs->lastError().isEmpty() ? u"not of this version"_s : jobs->lastError();
        jobs.reset();
        QString asidePath;
        if (!movedAside(path, asidePath)) {
            report += u"; it cannot be moved aside"_s;
            return;
        }
        report = u"moved aside to %1: %2"_s.arg(asidePath, report);
        jobs = std::make_unique<SqliteJobs>(path);
        state = jobs->open();
    }
    if (state == FileState::Good)
        database = std::move(jobs);
    else
        report += jobs->lastError();
}

extern "C" __attribute__((visibility("default"))) kestrel::JobFileState readJobDatabase(const QString &path,
                                                                                        QList<kestrel::JobRow> &rows,
                                                                                        QString &report)
{
    using namespace kestrel;
    if (!QFile::exists(path))
        return JobFileState::Missing;
    if (const auto state = readAtRest(path, rows, report))
        return *state;
    SqliteJobs jobs(path, Access::Reading);
    const JobFileState state = jobs.inspect();
    rows = state == JobFileState::Good ? jobs.rows() : QList<JobRow>();
    report = jobs.lastError();
    return state;
}
