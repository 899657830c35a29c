#include "SectorCopy.h"

#include "DiscSource.h"

#include <QCryptographicHash>
#include <QFile>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <algorithm>
#include <cerrno>
#include <csignal>

using namespace Qt::StringLiterals;

namespace kestrel::disc {

namespace {

constexpr qint64 sectorsAtOnce = 128;  // 256 KiB; with more the processor's cache no longer holds what is on its way
constexpr qint64 sectorsOfRun = 2048;  // of which the rest is left for later
constexpr int blocksInARow = 4;        // after so many failures
constexpr int attempts = 3;
constexpr int millisecondsOfReport = 250, millisecondsOfSave = 2000;

volatile std::sig_atomic_t s_isStopped = 0;

}  // namespace

void stopSectorCopy()
{
    s_isStopped = 1;
}

SectorCopy::SectorCopy(ToolRun &run, const QString &source, const QString &target)
    : m_run(run),
      m_sourcePath(source),
      m_targetPath(target),
      m_buffer(static_cast<uchar *>(std::aligned_alloc(4096, sectorsAtOnce * sectorBytes)))
{
}

SectorCopy::~SectorCopy()
{
    for (const int descriptor : {m_source, m_target})
        if (descriptor >= 0)
            close(descriptor);
}

std::optional<DiscError> SectorCopy::openSource()
{
    const QByteArray path = QFile::encodeName(m_sourcePath);
    // Past the page cache, which a disc would only fill; not every file system can.
    m_source = ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_DIRECT);
    if (m_source < 0 && errno == EINVAL)
        m_source = ::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (m_source < 0)
        return sourceErrorOf(errno);
    struct stat status = {};
    if (fstat(m_source, &status) != 0)
        return DiscError::Read;
    if (S_ISREG(status.st_mode))
        m_map.bytes = status.st_size;
    else if (quint64 size = 0; S_ISBLK(status.st_mode) && ioctl(m_source, BLKGETSIZE64, &size) == 0)
        m_map.bytes = static_cast<qint64>(size);
    if (m_map.bytes < sectorBytes)
        return DiscError::NotADisc;
    posix_fadvise(m_source, 0, 0, POSIX_FADV_SEQUENTIAL);
    m_sectors = (m_map.bytes + sectorBytes - 1) / sectorBytes;
    m_map.fingerprint = fingerprint();
    return m_isGone ? std::optional(DiscError::Missing) : std::nullopt;
}

// Of the volume's descriptors and what follows them, which no two discs share.
QString SectorCopy::fingerprint()
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const qint64 first : {16, 256, 320}) {
        const qint64 came = read({first, std::min<qint64>(32, std::max<qint64>(0, m_sectors - first))});
        hash.addData(QByteArrayView(m_buffer.get(), came * sectorBytes));
    }
    return QString::fromLatin1(hash.result().toHex());
}

std::optional<DiscError> SectorCopy::openTarget()
{
    const QByteArray path = QFile::encodeName(m_targetPath);
    const auto begun = CopyMap::load(m_targetPath + u".map"_s);
    m_target = ::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, 0666);
    if (m_target >= 0)
        return saveMap() ? std::nullopt : std::optional(targetErrorOf(errno));
    if (errno != EEXIST)
        return targetErrorOf(errno);
    if (!begun)
        return DiscError::Exists;
    if (begun->bytes != m_map.bytes || begun->fingerprint != m_map.fingerprint)
        return DiscError::OtherDisc;
    m_target = ::open(path.constData(), O_WRONLY | O_CLOEXEC | O_NOFOLLOW);
    struct stat status = {};
    if (m_target < 0 || fstat(m_target, &status) != 0 || !S_ISREG(status.st_mode))
        return DiscError::Write;
    m_map = *begun;
    // What the map says is there must be there; what is not read again.
    m_map.position = std::min<qint64>(m_map.position, status.st_size / sectorBytes);
    cutAt(m_map.untried, m_map.position);
    cutAt(m_map.bad, m_map.position);
    return std::nullopt;
}

int SectorCopy::copy()
{
    m_clock.start();
    m_sinceReport.start();
    m_sinceSave.start();
    std::optional<DiscError> error = m_buffer ? openSource() : DiscError::NoMemory;
    if (!error)
        error = openTarget();
    const qint64 before = m_map.position;
    if (!error)
        error = copyForward();
    if (!error)
        error = tryAgain();
    if (!error && (ftruncate(m_target, m_map.bytes) != 0 || !writeList()))
        error = targetErrorOf(errno);
    if (error)
        return m_run.fail(*error);
    QFile::remove(m_targetPath + u".map"_s);
    m_run.line({{u"result"_s, QJsonObject{{u"bytes"_s, m_map.bytes},
                                          {u"badSectors"_s, sectorsIn(m_map.bad)},
                                          {u"continuedFrom"_s, before * sectorBytes},
                                          {u"seconds"_s, static_cast<double>(m_clock.elapsed()) / 1000}}}});
    return 0;
}

std::optional<DiscError> SectorCopy::copyForward()
{
    while (m_map.position < m_sectors) {
        const SectorRange range{m_map.position, std::min(sectorsAtOnce, m_sectors - m_map.position)};
        const qint64 came = read(range);
        if (came > 0 && !write(range.first, came))
            return targetErrorOf(errno);
        if (came == 0 && !m_isGone) {
            if (const auto error = copyAround({range.first, std::min(sectorsOfRun, m_sectors - range.first)}))
                return error;
        } else {
            m_map.position += came;
        }
        if (const auto error = pause())
            return error;
    }
    return std::nullopt;
}

// A run whose first sector fails: what can be had of it at once, the rest is for later.
std::optional<DiscError> SectorCopy::copyAround(SectorRange range)
{
    const QList<SectorRange> untried = m_map.untried;
    int failures = 0;
    const qint64 end = range.first + range.count;
    for (qint64 at = range.first; at < end;) {
        const SectorRange block{at, std::min<qint64>(sectorsOfBlock, end - at)};
        const qint64 came = failures < blocksInARow ? read(block) : 0;
        if (came > 0 && !write(at, came))
            return targetErrorOf(errno);
        failures = came > 0 ? 0 : failures + 1;
        if (came < block.count)
            append(m_map.untried, {at + came, block.count - came});
        at += block.count;
        if (isOver()) {
            m_map.untried = untried;
            return pause();  // all of the run is read again
        }
    }
    m_map.position = end;
    return std::nullopt;
}

std::optional<DiscError> SectorCopy::tryAgain()
{
    while (!m_map.untried.isEmpty()) {
        const QList<SectorRange> bad = m_map.bad;
        const SectorRange range = m_map.untried.first();
        const SectorRange block{range.first, std::min<qint64>(sectorsOfBlock, range.count)};
        const qint64 came = read(block);
        if (came == block.count && !write(block.first, came))
            return targetErrorOf(errno);
        if (came < block.count)
            if (const auto error = tryAgainSlowly(block))
                return error;
        if (m_isGone) {
            m_map.bad = bad;
            return pause();  // all of the block is read again
        }
        m_map.untried.first() = {range.first + block.count, range.count - block.count};
        if (m_map.untried.first().count == 0)
            m_map.untried.removeFirst();
        if (const auto error = pause())
            return error;
    }
    return std::nullopt;
}

std::optional<DiscError> SectorCopy::tryAgainSlowly(SectorRange range)
{
    for (qint64 at = range.first; at < range.first + range.count && !m_isGone; ++at) {
        qint64 came = 0;
        for (int attempt = 0; attempt < attempts && came == 0 && !m_isGone; ++attempt)
            came = read({at, 1});
        if (came == 0)
            append(m_map.bad, {at, 1});
        else if (!write(at, 1))
            return targetErrorOf(errno);
    }
    return std::nullopt;
}

qint64 SectorCopy::read(SectorRange range)
{
    const auto readOnce = [&] {
        return pread64(m_source, m_buffer.get(), static_cast<size_t>(range.count * sectorBytes),
                       range.first * sectorBytes);
    };
    ssize_t bytes = readOnce();
    if (bytes < 0 && errno == EINVAL) {
        // Direct reads are possible here, but not of this piece, or not at all.
        fcntl(m_source, F_SETFL, fcntl(m_source, F_GETFL) & ~O_DIRECT);
        bytes = readOnce();
    }
    m_isGone = bytes < 0 && isSourceGone(errno, m_sourcePath);
    if (bytes <= 0)
        return 0;
    const bool isEnd = range.first * sectorBytes + bytes >= m_map.bytes;
    return isEnd ? (bytes + sectorBytes - 1) / sectorBytes : bytes / sectorBytes;
}

bool SectorCopy::write(qint64 firstSector, qint64 sectors)
{
    const qint64 start = firstSector * sectorBytes;
    const qint64 end = std::min((firstSector + sectors) * sectorBytes, m_map.bytes);
    for (qint64 at = start; at < end;) {
        const ssize_t written = pwrite64(m_target, m_buffer.get() + (at - start), static_cast<size_t>(end - at), at);
        if (written < 0 && errno != EINTR)
            return false;
        at += std::max<ssize_t>(0, written);
    }
    m_copied += end - start;
    return true;
}

bool SectorCopy::isOver() const
{
    return m_isGone || s_isStopped;
}

std::optional<DiscError> SectorCopy::pause()
{
    if (m_sinceReport.elapsed() >= millisecondsOfReport)
        report();
    if (isOver() || m_sinceSave.elapsed() >= millisecondsOfSave)
        if (!saveMap())
            return targetErrorOf(errno);
    if (m_isGone)
        return DiscError::Missing;
    return s_isStopped ? std::optional(DiscError::Stopped) : std::nullopt;
}

bool SectorCopy::saveMap()
{
    m_sinceSave.restart();
    return m_map.save(m_targetPath + u".map"_s);
}

bool SectorCopy::writeList() const
{
    const QString path = m_targetPath + u".bad"_s;
    QFile::remove(path);
    if (m_map.bad.isEmpty())
        return true;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QByteArray text = "# sectors of 2048 bytes that could not be read and are zeros: first, count\n";
    for (const SectorRange &range : m_map.bad)
        text += QByteArray::number(range.first) + ' ' + QByteArray::number(range.count) + '\n';
    return file.write(text) == text.size() && file.flush();
}

void SectorCopy::report()
{
    m_sinceReport.restart();
    const qint64 done = m_map.position - sectorsIn(m_map.untried);
    m_run.line({{u"progress"_s, static_cast<double>(done) / static_cast<double>(m_sectors)},
                {u"bytes"_s, done * sectorBytes},
                {u"bytesPerSecond"_s, m_copied * 1000 / std::max<qint64>(1, m_clock.elapsed())},
                {u"badSectors"_s, sectorsIn(m_map.bad)},
                {u"untriedSectors"_s, sectorsIn(m_map.untried)}});
}

}  // namespace kestrel::disc
