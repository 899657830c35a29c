#include "Log.h"

#include "Installed.h"
#include "foundation/StandardFolders.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <QThread>
#include <QUrl>

#include <atomic>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace kestrel::tarnwell {

namespace {

constexpr qsizetype maximumTextLength = 100'000;
constexpr qsizetype shortestTellingName = 3;  ///< a shorter one is part of too many other words

QString threadName()
{
    // The main thread is the one that makes the application's log, long before there is any other.
    static const Qt::HANDLE mainThread = QThread::currentThreadId();
    const Qt::HANDLE thread = QThread::currentThreadId();
    return thread == mainThread ? u"main"_s : u"%1"_s.arg(quintptr(thread) & 0xFFFFFF, 6, 16, QLatin1Char('0'));
}

void writeToStandardError(const QByteArray &line)
{
    std::fwrite(line.constData(), 1, size_t(line.size()), stderr);
}

/// Replaces `name`, as it is or percent-encoded, between what the two patterns tell.
void replaceName(QString &text, const QString &before, const QString &name, const QString &after)
{
    if (name.isEmpty() || name == "/"_L1 || !(text.contains(name) || text.contains(u'%')))
        return;
    QString pattern;
    for (const char32_t character : name.toStdU32String()) {
        const QString plain = QString::fromUcs4(&character, 1);
        pattern += u"(?:"_s + QRegularExpression::escape(plain) + u"|(?i:"_s +
                   QRegularExpression::escape(QString::fromLatin1(QUrl::toPercentEncoding(plain))) + u"))"_s;
    }
    text.replace(QRegularExpression(before + pattern + after, QRegularExpression::UseUnicodePropertiesOption), u"~"_s);
}

std::atomic<QtMessageHandler> previousMessageHandler = nullptr;

void logMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    // One for every script of a text that the fonts do not have, each time that it is laid out: the first will do.
    static std::atomic<bool> isScriptMissing = false;
    if (message.startsWith("OpenType support missing for "_L1) && isScriptMissing.exchange(true))
        return;
    if (Log *log = Installed<Log>::current(); log && type != QtDebugMsg)
        log->append(message);
    if (const QtMessageHandler previous = previousMessageHandler)
        previous(type, context, message);
}

}  // namespace

QString withoutPrivateParts(const QString &text, const QString &homeFolder, const QString &userName)
{
    // Up to the last "@": passwords hold "@" as well, and, after a colon, whatever else somebody typed.
    static const QRegularExpression credentials(u"//(?:(?<=://)[^/?#\\s]*|[^/@:\\s]*:\\S{0,4096})@"_s);
    // A regular expression finds nothing in ill-formed UTF-16, which file names may hold.
    QString result = QString::fromUtf8(text.toUtf8());
    result.replace(credentials, u"//"_s);
    // Whole path components, at the end of a sentence too.
    replaceName(result, u"(?<![\\w.-])"_s, homeFolder, u"(?![\\w-]|\\.\\w)"_s);
    for (const QString &name : {QFileInfo(homeFolder).fileName(), userName}) {
        const bool isTelling = name.size() >= shortestTellingName && name != "root"_L1;
        replaceName(result, isTelling ? u"(?<!\\w)"_s : u"(?<=/)"_s, name,
                    isTelling ? u"(?!\\w)"_s : u"(?![\\w-]|\\.\\w)"_s);
    }
    result.remove(u'\r');
    result.replace(u'\n', u"\n    "_s);
    return result;
}

Log::Log(const QString &folder, qint64 maximumBytes)
    : m_file(folder + u"/kestrel.log"_s),
      m_previousPath(folder + u"/kestrel-previous.log"_s),
      m_maximumBytes(maximumBytes)
{
    threadName();
    foundation::makePrivateFolder(folder);
    discardPrevious();
    QFile::rename(m_file.fileName(), m_previousPath);
    if (!m_file.open(QIODevice::ReadWrite | QIODevice::Truncate | QIODevice::Unbuffered,
                     QFile::ReadOwner | QFile::WriteOwner))
        writeToStandardError("The log cannot be written: "_ba + m_file.errorString().toUtf8() + '\n');
}

void Log::append(const QString &text)
{
    const QString shown =
        withoutPrivateParts(text, QDir::homePath(), qEnvironmentVariable("USER")).left(maximumTextLength);
    const QString line = QDateTime::currentDateTime().toString(u"yyyy-MM-dd HH:mm:ss.zzz"_s) + u" ["_s + threadName() +
                         u"] "_s + shown + u'\n';
    const QByteArray bytes = line.toUtf8();
    const QMutexLocker locker(&m_mutex);
    if (!m_file.isOpen()) {
        writeToStandardError(bytes);
        return;
    }
    if (m_file.write(bytes) != bytes.size()) {
        m_file.resize(m_size);  // no part of a line, so that the next one begins one
        writeToStandardError(bytes);
        return;
    }
    m_size += bytes.size();
    if (m_size > m_maximumBytes)
        dropOldestLines();
}

void Log::discardPrevious()
{
    QFile::remove(m_previousPath);
}

void Log::dropOldestLines()
{
    // Half is kept, so that this happens once in a long while.
    m_file.seek(m_size - m_maximumBytes / 2);
    m_file.readLine();
    const QByteArray kept = "… older lines were left out\n" + m_file.readAll();
    // Replaced whole, so that no crash takes the lines along; where there is no room for two, in its place.
    QSaveFile shortened(m_file.fileName());
    if (shortened.open(QIODevice::WriteOnly) && shortened.write(kept) == kept.size() && shortened.commit()) {
        m_file.close();
        if (!m_file.open(QIODevice::ReadWrite | QIODevice::Unbuffered))
            return;
        m_file.seek(kept.size());
    } else {
        m_file.resize(0);
        m_file.write(kept);
    }
    m_size = m_file.size();
}

void DNFootLog(const QString &text)
{
    if (Log *log = Installed<Log>::current())
        log->append(text);
    else
        writeToStandardError(text.toUtf8() + '\n');
}

QString DNGetLogFilePath()
{
    const Log *log = Installed<Log>::current();
    return log ? log->path() : QString();
}

QString DNGetPreviousLogFilePath()
{
    const Log *log = Installed<Log>::current();
    return log ? log->previousPath() : QString();
}

void DNCleanupLogFile()
{
    if (Log *log = Installed<Log>::current())
        log->discardPrevious();
}

QtMessageLog::QtMessageLog()
{
    previousMessageHandler = qInstallMessageHandler(logMessage);
}

QtMessageLog::~QtMessageLog()
{
    qInstallMessageHandler(previousMessageHandler);
}

}  // namespace kestrel::tarnwell
