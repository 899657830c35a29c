#include "FileCopy.h"

#include <QDir>
#include <QFile>

#include <dvdread/dvd_reader.h>
#include <dvdread/dvd_udf.h>

#include <fcntl.h>
#include <unistd.h>
#include <algorithm>
#include <cerrno>

using namespace Qt::StringLiterals;

namespace kestrel::disc {

namespace {

constexpr qint64 bytesAtOnce = 4 << 20;
constexpr int millisecondsOfReport = 250;
constexpr qint64 slackBytes = 64 << 20;
constexpr int titleSets = 99, partsOfSet = 9;

class Descriptor {
public:
    Descriptor(const QString &path, int flags) : m_value(::open(QFile::encodeName(path).constData(), flags, 0666)) {}
    ~Descriptor()
    {
        if (m_value >= 0)
            close(m_value);
    }
    Q_DISABLE_COPY(Descriptor)
    int value() const { return m_value; }

private:
    int m_value;
};

QStringList possibleNames()
{
    QStringList names{u"VIDEO_TS.IFO"_s, u"VIDEO_TS.VOB"_s, u"VIDEO_TS.BUP"_s};
    for (int set = 1; set <= titleSets; ++set) {
        const QString prefix = u"VTS_%1_"_s.arg(set, 2, 10, QLatin1Char('0'));
        names << prefix + u"0.IFO"_s << prefix + u"0.VOB"_s;
        for (int part = 1; part <= partsOfSet; ++part)
            names << prefix + QString::number(part) + u".VOB"_s;
        names << prefix + u"0.BUP"_s;
    }
    return names;
}

}  // namespace

FileCopy::FileCopy(ToolRun &run, const DiscSource &source, const QString &sourcePath, const QString &target)
    : m_run(run),
      m_source(source),
      m_sourcePath(sourcePath),
      m_targetPath(target),
      m_buffer(bytesAtOnce, '\0')
{
}

QList<FileCopy::File> FileCopy::filesOfDisc() const
{
    QList<File> files;
    for (const QString &name : possibleNames()) {
        quint32 size = 0;
        const quint32 first = UDFFindFile(m_source.reader(), ("/VIDEO_TS/" + name.toLatin1()).constData(), &size);
        if (first && size)
            files.append({name, m_sourcePath, qint64(first) * sectorBytes, size});
    }
    return files;
}

QList<FileCopy::File> FileCopy::filesOfFolder() const
{
    QDir folder(m_sourcePath);
    for (const QString &name : folder.entryList({u"VIDEO_TS"_s}, QDir::Dirs))
        folder.setPath(m_sourcePath + u'/' + name);
    const QStringList names = possibleNames();
    QList<File> files;
    for (const QFileInfo &file : folder.entryInfoList(QDir::Files))
        if (names.contains(file.fileName().toUpper()))
            files.append({file.fileName().toUpper(), file.absoluteFilePath(), 0, file.size()});
    return files;
}

int FileCopy::copy()
{
    const bool isFolder = m_source.kind() == DiscSource::Kind::Folder;
    const QList<File> files = isFolder ? filesOfFolder() : filesOfDisc();
    for (const File &file : files)
        m_wholeBytes += file.bytes;
    // Tables may be nonsense: no more than there can be.
    if (files.isEmpty() || (!isFolder && m_wholeBytes > 2 * m_source.bytes() + slackBytes))
        return m_run.fail(DiscError::Damaged);
    if (!QDir().mkpath(m_targetPath + u"/VIDEO_TS"_s) || !QDir().mkpath(m_targetPath + u"/AUDIO_TS"_s))
        return m_run.fail(DiscError::Write);
    m_clock.start();
    m_sinceReport.start();
    for (const File &file : files)
        if (const auto error = copyFile(file))
            return m_run.fail(*error);
    m_run.line({{u"result"_s, QJsonObject{{u"files"_s, files.size()},
                                          {u"bytes"_s, m_copied},
                                          {u"badSectors"_s, m_badSectors},
                                          {u"seconds"_s, double(m_clock.elapsed()) / 1000}}}});
    return 0;
}

std::optional<DiscError> FileCopy::copyFile(const File &file)
{
    const Descriptor source(file.path, O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (source.value() < 0)
        return sourceErrorOf(errno);
    const Descriptor target(m_targetPath + u"/VIDEO_TS/"_s + file.name,
                            O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW);
    if (target.value() < 0)
        return targetErrorOf(errno);
    m_lostBlocks = 0;
    posix_fadvise(source.value(), file.start, file.bytes, POSIX_FADV_SEQUENTIAL);
    for (qint64 at = 0; at < file.bytes; at += bytesAtOnce) {
        const qint64 bytes = std::min(bytesAtOnce, file.bytes - at);
        if (const auto error = copyPiece(source.value(), target.value(), file.start + at, at, bytes))
            return error;
    }
    return std::nullopt;
}

// As much at once as comes; where nothing does, block by block of the disc.
std::optional<DiscError> FileCopy::copyPiece(int source, int target, qint64 from, qint64 to, qint64 bytes)
{
    qint64 done = 0;
    bool isSlow = false;
    while (done < bytes) {
        constexpr qint64 blockBytes = sectorsOfBlock * sectorBytes;
        const qint64 left = bytes - done, leftOfBlock = std::min(left, blockBytes - (from + done) % blockBytes);
        const bool isHopeless = m_lostBlocks >= hopelessBlocks;
        const qint64 wanted = isSlow && !isHopeless ? leftOfBlock : left;
        ssize_t came = isHopeless ? 0 : pread64(source, m_buffer.data(), size_t(wanted), from + done);
        if (came < 0 && isSourceGone(errno, m_sourcePath))
            return DiscError::Missing;
        if (came <= 0 && !isSlow && !isHopeless) {
            isSlow = true;
            continue;
        }
        m_lostBlocks = came > 0 ? 0 : m_lostBlocks + 1;
        if (came <= 0) {
            came = wanted;
            std::fill_n(m_buffer.begin(), came, '\0');
            m_badSectors += (came + sectorBytes - 1) / sectorBytes;
        }
        for (ssize_t written = 0; written < came;) {
            const ssize_t now =
                pwrite64(target, m_buffer.constData() + written, size_t(came - written), to + done + written);
            if (now < 0 && errno != EINTR)
                return targetErrorOf(errno);
            written += std::max<ssize_t>(0, now);
        }
        done += came;
        m_copied += came;
        report();
    }
    return std::nullopt;
}

void FileCopy::report()
{
    if (m_sinceReport.elapsed() < millisecondsOfReport)
        return;
    m_sinceReport.restart();
    m_run.line({{u"progress"_s, double(m_copied) / double(std::max<qint64>(1, m_wholeBytes))},
                {u"bytes"_s, m_copied},
                {u"badSectors"_s, m_badSectors}});
}

}  // namespace kestrel::disc
