#pragma once

#include <QFile>
#include <QMutex>
#include <QString>

#include <concepts>

namespace kestrel::tarnwell {

/// The application's log: one file a run, and the one of the run before. Each line carries the local time and the
/// thread. A line is written before `append` returns, so a crash loses none that came before it. Neither file grows
/// beyond `maximumBytes`: the oldest lines go first and a line says so. Private parts are left out as
/// `withoutPrivateParts` says; what remains of a text is cut at 100,000 characters. Any thread.
class Log {
public:
    static constexpr qint64 defaultMaximumBytes = 5 * 1024 * 1024;

    /// Makes the last run's current log the previous one and begins a new one in `folder`. Where that cannot be
    /// written, lines go to standard error.
    explicit Log(const QString &folder, qint64 maximumBytes = defaultMaximumBytes);

    void append(const QString &text);
    QString path() const { return m_file.fileName(); }
    QString previousPath() const { return m_previousPath; }
    void discardPrevious();

private:
    void dropOldestLines();

    QMutex m_mutex;
    QFile m_file;
    QString m_previousPath;
    qint64 m_maximumBytes;
    qint64 m_size = 0;
};

/// What `Log` writes for `text`: line breaks indented, credentials in addresses taken out, and "~" for the home folder
/// and for the names of it and of the user, percent-encoded or not. A name goes as a word anywhere, one of less than
/// three letters and "root" as a part of a path alone. Ill-formed UTF-16 is replaced.
QString withoutPrivateParts(const QString &text, const QString &homeFolder, const QString &userName);

/// Writes one line to the installed log (`Installed<Log>`), to standard error where there is none.
void DNFootLog(const QString &text);

/// As above, with %1, %2 … in `format` replaced by the arguments, which are texts; a %1 in one of them stays as it is.
template <class... Arguments>
requires(std::convertible_to<const Arguments &, QString> &&...) void DNFootLog(const QString &format,
                                                                               const Arguments &...arguments)
{
    DNFootLog(format.arg(arguments...));
}

QString DNGetLogFilePath();          ///< null where no log is installed
QString DNGetPreviousLogFilePath();  ///< likewise; the file need not exist
void DNCleanupLogFile();             ///< discards the previous run's log

/// Sends Qt's own messages to the installed log as well, for the life of the object. One object at a time.
class QtMessageLog {
public:
    QtMessageLog();
    ~QtMessageLog();
    QtMessageLog(const QtMessageLog &) = delete;
    QtMessageLog &operator=(const QtMessageLog &) = delete;
};

}  // namespace kestrel::tarnwell
