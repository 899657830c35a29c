#include "DiscImageJob.h"

#include "foundation/Queues.h"
#include "jobs/OutputFile.h"
#include "jobs/PortableNames.h"

#include <QDir>
#include <QFileInfo>

#include <sys/stat.h>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace kestrel {

using tarnwell::Sentence;
using tarnwell::operator""_key;

namespace {

constexpr qint64 bytesOfSector = 2048;

const QString mapSuffix = u".map"_s, listSuffix = u".bad"_s, lockSuffix = u".lock"_s;

/// Of a name that every run of the same disc finds. Some makers call all their discs alike.
QString copyIn(const QString &folder, const QString &name, qint64 bytes)
{
    return folder + u'/' + fittingName(u'.' + portableName(name), u".%1.kestrel-copy.iso"_s.arg(bytes), 143);
}

void removeAll(const QString &copy)
{
    for (const QString &suffix : {QString(), mapSuffix, listSuffix})
        QFile::remove(copy + suffix);
}

}  // namespace

QString brokenOffImage(const JobRecord &record)
{
    const auto plan = DiscPlan::fromJson(record.plan);
    const bool isMade = record.state == JobState::Done || record.state == JobState::DoneWithProblems;
    if (!plan || plan->way != DiscWay::Image || isMade)
        return {};
    disc::DiscContents contents;
    contents.volume = plan->volume;
    return copyIn(record.folder, discOutputName(*plan, contents), plan->bytes);
}

qint64 brokenOffBytes(const JobRecord &record)
{
    constexpr qint64 bytesOfBlock = 512;
    struct stat status = {};
    const QString path = brokenOffImage(record);
    const bool isThere = !path.isNull() && ::stat(QFile::encodeName(path).constData(), &status) == 0;
    return isThere ? status.st_blocks * bytesOfBlock : 0;
}

void removeBrokenOffImage(const QString &path)
{
    QLockFile lock(path + lockSuffix);
    lock.setStaleLockTime(0);
    if (lock.tryLock())
        removeAll(path);
}

DiscImageJob::~DiscImageJob()
{
    endTool();  // what it wrote stays: the next run goes on with it
}

void DiscImageJob::carryOut()
{
    if (QFileInfo(request().plan.source).isDir())
        return fail("A folder has no sectors to copy. Choose another way."_key);
    m_copy = copyIn(request().folder, outputName(), request().plan.bytes);
    m_lock = std::make_unique<QLockFile>(m_copy + lockSuffix);
    m_lock->setStaleLockTime(0);
    if (!QFileInfo(request().folder).isDir())
        return fail("The output directory does not exist. Please check the setting."_key);
    if (!m_lock->tryLock() && m_lock->error() == QLockFile::LockFailedError) {
        m_copy.clear();
        return fail("This disc is being copied to this folder already."_key);
    }
    copy();
}

void DiscImageJob::copy()
{
    tellStage({});
    runDiscTool({.program = request().tools.toImage, .arguments = {request().plan.source, m_copy}}, 0.97,
                [this](const ToolEnding &ending) { copied(ending); });
}

void DiscImageJob::copied(const ToolEnding &ending)
{
    const bool isOfAnother = lines().error == "otherDisc"_L1 || lines().error == "exists"_L1;
    if (isOfAnother && !std::exchange(m_hasBegunAnew, true)) {
        removeCopy();
        return copy();
    }
    const QString &error = lines().error;
    m_staysForLater = error == "read"_L1 || error == "missing"_L1 || ending.cause == ToolEnding::Cause::Crashed;
    if (m_staysForLater)
        return fail("The copy was broken off. It goes on where it is when it is started again."_key, ending.lastWords);
    if (!isGoodStep(ending))
        return;
    m_badSectors = lines().result["badSectors"_L1].toInteger();
    setFact(u"bytes"_s, lines().result["bytes"_L1]);
    setFact(u"faults"_s, m_badSectors);
    setFact(u"continuedFrom"_s, lines().result["continuedFrom"_L1]);
    if (m_badSectors > 0)
        addProblem({"%1 sectors of the disc could not be read and are empty in the image."_key,
                    {QString::number(m_badSectors)}});
    if (QFileInfo(m_copy).size() != lines().result["bytes"_L1].toInteger() ||
        QFileInfo(m_copy).size() < contents().bytes / bytesOfSector * bytesOfSector)
        return fail("The copy could not be read back."_key);
    checkCopy(m_copy, contents());
}

void DiscImageJob::copyIsGood()
{
    m_output = std::make_shared<OutputFile>(request().folder, outputName(), u"iso"_s);
    if (!m_output->isValid())
        return fail(m_output->reason());
    // Over the empty part: from here on it is an output like any other.
    if (std::rename(QFile::encodeName(m_copy).constData(), QFile::encodeName(m_output->partPath()).constData()) != 0)
        return fail("The output could not be written."_key);
    place(std::exchange(m_output, nullptr));
}

/// The list of what is missing stands beside the image.
void DiscImageJob::placed(const QString &path)
{
    if (m_badSectors > 0) {
        QFile::remove(path + listSuffix);  // of an image that is gone
        QFile::rename(m_copy + listSuffix, path + listSuffix);
    }
    removeCopy();
    m_lock.reset();
}

void DiscImageJob::removeCopy()
{
    if (!m_copy.isEmpty())
        removeAll(m_copy);
}

void DiscImageJob::cancel()
{
    m_staysForLater |=
        request().tools.keepsCancelledImages && !m_copy.isEmpty() && QFileInfo::exists(m_copy + mapSuffix);
    WholeDiscJob::cancel();
}

void DiscImageJob::discard()
{
    if (!m_staysForLater)
        removeCopy();
    m_lock.reset();
    WholeDiscJob::discard();
}

}  // namespace kestrel
