#include "LogFile.h"

#include <QFileInfo>

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

namespace kestrel {

namespace {

constexpr qint64 headLength = 256;
constexpr qint64 tailLength = 64;
constexpr auto gatheringTime = 40ms;  ///< a busy program changes its log a thousand times a second
constexpr auto pollInterval = 1s;     ///< network file systems tell of no change

}  // namespace

LogFile::LogFile(const QString &path, QObject *parent) : QObject(parent), m_path(path)
{
    if (m_path.isEmpty())
        return;
    m_soon.setSingleShot(true);
    m_soon.setInterval(gatheringTime);
    const auto checkSoon = [this] {
        if (!m_soon.isActive())
            m_soon.start();
    };
    connect(&m_soon, &QTimer::timeout, this, &LogFile::check);
    connect(&m_poll, &QTimer::timeout, this, &LogFile::check);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, checkSoon);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, checkSoon);
    m_poll.start(pollInterval);
    check();
}

QByteArray LogFile::read(qint64 offset, qint64 length) const
{
    return m_bytes ? m_bytes->read(offset, std::min(length, m_size - offset)) : QByteArray();
}

void LogFile::check()
{
    watch();
    QString error;
    const bool isSame = m_bytes && m_bytes->isNamed(m_path);
    std::shared_ptr<const LogBytes> bytes = isSame ? m_bytes : LogBytes::open(m_path, error);
    if (!bytes) {
        if (!error.isEmpty())
            setState(State::Unreadable, error, false);
        else
            setState(m_bytes ? State::Readable : State::Missing, {}, m_bytes != nullptr);
        return;
    }
    const qint64 size = bytes->size();
    if (!isSame || size < m_size || !isContinued()) {
        begin(std::move(bytes));
    } else if (size > m_size) {
        m_size = size;
        remember();
        emit grown();
    }
    setState(State::Readable, {}, false);
}

void LogFile::watch()
{
    // A file that takes the place of another has to be watched anew.
    for (const QString &path : {m_path, QFileInfo(m_path).absolutePath()}) {
        if (QFileInfo::exists(path) && !m_watcher.files().contains(path) && !m_watcher.directories().contains(path))
            m_watcher.addPath(path);
    }
}

void LogFile::begin(std::shared_ptr<const LogBytes> bytes)
{
    m_bytes = std::move(bytes);
    m_size = m_bytes->size();
    remember();
    emit replaced();
}

bool LogFile::isContinued() const
{
    return m_bytes->read(0, m_head.size()) == m_head && m_bytes->read(m_size - m_tail.size(), m_tail.size()) == m_tail;
}

void LogFile::remember()
{
    m_head = read(0, headLength);
    m_tail = read(std::max<qint64>(m_size - tailLength, 0), tailLength);
}

void LogFile::setState(State state, const QString &error, bool isGone)
{
    if (state == m_state && error == m_error && isGone == m_isGone)
        return;
    m_state = state;
    m_error = error;
    m_isGone = isGone;
    emit stateChanged();
}

}  // namespace kestrel
