#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <memory>

/// What libJobStore, which is loaded by path, and its caller have in common.
namespace kestrel {

struct JobRow {
    qint64 id = 0;
    QString module;
    double position = 0;
    QString state;     ///< its name
    QString owner;     ///< the process that holds it; empty for none
    QByteArray value;  ///< the rest, as JSON
};

/// The file with the jobs. Every call waits for the disk, and up to two seconds for other processes; all of them, and
/// the end of the object, on the thread that opened it.
class JobDatabase {
public:
    virtual ~JobDatabase() = default;

    /// By position. Rows that are too long, or not of these types, are left out.
    virtual QList<JobRow> rows() = 0;
    struct Changes {
        QList<JobRow> put;                        ///< new ones, or instead of those of the same id
        QList<std::pair<qint64, double>> placed;  ///< new positions of those that are there
        QList<qint64> removed;
    };
    /// All of it or nothing; it is on the disk when this returns.
    virtual bool write(const Changes &changes) = 0;
    /// The first of so many identifiers that nobody else gets; 0 where that could not be written.
    virtual qint64 reserveIds(int count) = 0;
    /// Of the last call that failed, in English.
    virtual QString lastError() const = 0;
};

/// The library's only entry. What is there is moved aside where it is damaged, of a newer version or not one of ours,
/// and a new one begun; `report` says so, or why there is none: `database` stays null then.
extern "C" using OpenJobDatabaseFunction =
    void(const QString &path, std::unique_ptr<JobDatabase> &database, QString &report);

inline constexpr char openJobDatabaseSymbol[] = "openJobDatabase";

enum class JobFileState { Good, Missing, Damaged, Newer, Inaccessible };

/// Or, for who only looks: the rows as they stand. Nothing is written, moved or begun; `report` says, in English, why
/// the file is not Good.
extern "C" using ReadJobDatabaseFunction = JobFileState(const QString &path, QList<JobRow> &rows, QString &report);

inline constexpr char readJobDatabaseSymbol[] = "readJobDatabase";

}  // namespace kestrel
