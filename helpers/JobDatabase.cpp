#include "jobs/JobDatabase.h"

#include <QDateTime>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QThread>

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

constexpr const char *selection =
    "SELECT id, module, position, state, owner, CAST(value AS BLOB) FROM jobs "
    "WHERE typeof(id) = 'integer' AND id > 0 AND length(CAST(value AS BLOB)) <= %1 AND length(module) + length(state) "
    "+ length(owner) <= %2 "
    "ORDER BY position, id";

constexpr const char *upsert =
    "INSERT INTO jobs (id, module, position, state, owner, value) VALUES (?, ?, ?, ?, ?, ?) ON CONFLICT (id) DO UPDATE "
    "SET module = excluded.module, position = excluded.position, state = excluded.state, owner = excluded.owner, "
    "value = excluded.value";

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

enum class FileState { Good, Unusable, Inaccessible };

class SqliteJobs final : public JobDatabase {
public:
    explicit SqliteJobs(const QString &path);
    ~SqliteJobs() override;

    FileState open();
    QList<JobRow> rows() override;
    bool write(const QList<JobRow> &changed, const QList<qint64> &removed) override;
    qint64 reserveIds(int count) override;
    QString lastError() const override { return m_error.text(); }

private:
    bool noted(const QSqlQuery &query, bool isGood);
    bool run(const QString &statement);
    std::optional<qint64> number(const QString &statement);
    /// Runs the task in a transaction of its own, which is taken back where it fails.
    bool transact(const std::function<bool()> &task);
    bool create();
    bool isOurs();
    FileState failure() const;

    QString m_connection;
    QSqlDatabase m_database;
    QSqlError m_error;
};

SqliteJobs::SqliteJobs(const QString &path)
    : m_connection(u"jobs-%1"_s.arg(quintptr(this), 0, 16)),
      m_database(QSqlDatabase::addDatabase(u"QSQLITE"_s, m_connection))
{
    m_database.setDatabaseName(path);
    m_database.setConnectOptions(u"QSQLITE_BUSY_TIMEOUT=%1"_s.arg(busyTimeoutMs));
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
    return code == schemaError || code == corrupt || code == notADatabase ? FileState::Unusable
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

bool SqliteJobs::isOurs()
{
    return number(u"PRAGMA application_id"_s) == applicationId && number(u"PRAGMA user_version"_s) == schemaVersion &&
           number(u"SELECT count(*) FROM ids"_s) == 1;
}

FileState SqliteJobs::open()
{
    if (!m_database.open()) {
        m_error = m_database.lastError();
        return failure();
    }
    // Looked at before anything is written: it may be a file of somebody else.
    const std::optional<qint64> tables = number(u"SELECT count(*) FROM sqlite_master"_s);
    if (!tables)
        return failure();
    if (*tables > 0 && !isOurs())
        return failure() == FileState::Unusable || !m_error.isValid() ? FileState::Unusable : failure();
    QSqlQuery check(m_database);
    if (!noted(check, check.exec(u"PRAGMA quick_check(1)"_s) && check.next()))
        return failure();
    if (check.value(0).toString() != "ok"_L1)
        return FileState::Unusable;
    check.finish();
    if (!run(u"PRAGMA journal_mode = WAL"_s) || !run(u"PRAGMA synchronous = FULL"_s) || !create() ||
        !run(u"SELECT id, module, position, state, owner, value FROM jobs LIMIT 0"_s))
        return failure();
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

bool SqliteJobs::write(const QList<JobRow> &changed, const QList<qint64> &removed)
{
    return transact([&] {
        QSqlQuery put(m_database), remove(m_database);
        if (!noted(put, put.prepare(QString::fromLatin1(upsert))) ||
            !noted(remove, remove.prepare(u"DELETE FROM jobs WHERE id = ?"_s)))
            return false;
        for (const JobRow &row : changed) {
            const QVariant values[] = {row.id,    row.module, row.position,
                                       row.state, row.owner,  QString::fromUtf8(row.value)};
            for (int i = 0; i < int(std::size(values)); ++i)
                put.bindValue(i, values[i]);
            if (!noted(put, put.exec()))
                return false;
        }
        for (const qint64 id : removed) {
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
    if (state == FileState::Unusable) {
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
