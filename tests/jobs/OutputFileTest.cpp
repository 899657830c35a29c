#include "foundation/StandardFolders.h"
#include "jobs/OutputFile.h"
#include "jobs/PartOwner.h"
#include "jobs/PortableNames.h"
#include "jobs/SystemFailure.h"
#include "tests/support/TestEnvironment.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>

#include <cerrno>
#include <cstring>
#include <optional>
#include <thread>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

constexpr QDir::Filters everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

QString textIn(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : u"(none)"_s;
}

void writeText(const QString &path, const QByteArray &text)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
}

QString published(OutputFile &file)
{
    const auto path = file.publish();
    EXPECT_TRUE(path) << path.reason().english().toStdString();
    return path ? *path : QString();
}

/// An empty folder for outputs, and the one where parts are written down.
class OutputFileTest : public testing::Test {
protected:
    /// Those of outputs whose folder went stay, for it may be a disk that comes back.
    OutputFileTest() { QDir(registrations()).removeRecursively(); }

    QString path(const QString &name) const { return m_folder.filePath(name); }
    QStringList names() const { return QDir(m_folder.path()).entryList(everything, QDir::Name); }
    static QDir registrations() { return {foundation::dataDirectory() + u"//parts"_s}; }
    static qsizetype registered() { return qsizetype(registrations().entryList(everything).size()); }

    /// What another process that was killed had begun here.
    void leaveParts()
    {
        QProcess owner;
        owner.start(QStringLiteral(KESTREL_TOOLS_HELPER), {u"begin"_s, m_folder.path()});
        ASSERT_TRUE(test::waitUntil([&] { return owner.canReadLine(); }));
        OutputFile::sweepDeadOwners();
        EXPECT_EQ(names().size(), 2) << "of one that lives";
        owner.kill();
        ASSERT_TRUE(owner.waitForFinished());
    }

    QTemporaryDir m_folder;
};

}  // namespace

TEST_F(OutputFileTest, TakesTheFirstFreeNameAndLeavesNoPart)
{
    writeText(path(u"clip.mp4"_s), "mine");
    QFile::link(u"nowhere"_s, path(u"clip (1).mp4"_s));
    {
        OutputFile first(m_folder.path(), u"clip"_s, u"mp4"_s);
        OutputFile second(m_folder.path(), u"clip"_s, u"mp4"_s);
        const OutputFile dropped(m_folder.path(), u"clip"_s, u"mp4"_s);
        EXPECT_TRUE(dropped.partPath().endsWith(".mp4"_L1) && QFile::exists(dropped.partPath()));
        EXPECT_EQ(registered(), 3);
        writeText(first.partPath(), "first");
        writeText(second.partPath(), "second");
        EXPECT_EQ(textIn(published(second)), u"second");
        EXPECT_EQ(textIn(published(first)), u"first");
        EXPECT_FALSE(first.isValid());
        OutputFile disc(m_folder.path(), u"clip"_s, u"mp4"_s, OutputFile::Kind::Folder);
        const OutputFile droppedDisc(m_folder.path(), u"clip"_s, {}, OutputFile::Kind::Folder);
        for (const OutputFile *folder : {const_cast<const OutputFile *>(&disc), &droppedDisc}) {
            QDir(folder->partPath()).mkdir(u"VIDEO_TS"_s);
            writeText(folder->partPath() + u"/VIDEO_TS/a"_s, "a");
        }
        EXPECT_EQ(textIn(published(disc) + u"/VIDEO_TS/a"_s), u"a");
    }
    EXPECT_EQ(textIn(path(u"clip.mp4"_s)), u"mine");
    EXPECT_EQ(names(),
              QStringList({u"clip (1).mp4"_s, u"clip (2).mp4"_s, u"clip (3).mp4"_s, u"clip (4).mp4"_s, u"clip.mp4"_s}));
    EXPECT_EQ(registered(), 0);
}

TEST_F(OutputFileTest, TheOldWayOfPlacingWritesNothingOverEither)
{
    writeText(path(u"film.mkv"_s), "mine");
    QProcess owner;
    owner.start(QStringLiteral(KESTREL_TOOLS_HELPER), {u"place-old-style"_s, m_folder.path()});
    ASSERT_TRUE(owner.waitForFinished());
    EXPECT_EQ(owner.exitCode(), 0) << owner.readAllStandardError().toStdString();
    EXPECT_EQ(names(), QStringList({u"film (1).mkv"_s, u"film (2).mkv"_s, u"film.mkv"_s}));
    EXPECT_EQ(textIn(path(u"film.mkv"_s)), u"mine");
    EXPECT_TRUE(QFileInfo(path(u"film (2).mkv"_s)).isDir());
}

TEST_F(OutputFileTest, NothingIsLostWhereManyWantOneName)
{
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 8; ++thread) {
        threads.emplace_back([&, thread] {
            for (int round = 0; round < 25; ++round) {
                const QByteArray text = QByteArray::number(thread * 100 + round);
                OutputFile file(m_folder.path(), u"same"_s, u"mp3"_s);
                writeText(file.partPath(), text);
                EXPECT_EQ(textIn(published(file)), QString::fromUtf8(text));
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(names().size(), 200);
}

TEST_F(OutputFileTest, NamesAreMadeToFit)
{
    const struct {
        QString name, portable;
    } rows[] = {
        {u"a/b\\c:d*e?f\"g<h>i|j\tk"_s, u"a_b_c_d_e_f_g_h_i_j_k"_s},
        {u" film. . "_s, u"film"_s},
        {u".hidden"_s, u"_hidden"_s},
        {u"..."_s, u"Untitled"_s},
        {u""_s, u"Untitled"_s},
        {u"nul.txt"_s, u"_nul.txt"_s},
        {u"Com1"_s, u"_Com1"_s},
        {u"Common"_s, u"Common"_s},
        {u"日本 🎬"_s, u"日本 🎬"_s},
    };
    for (const auto &[name, portable] : rows)
        EXPECT_EQ(portableName(name), portable) << name.toStdString();

    for (const QString &name : {QString(255, u'a'), QString(200, u'ü'), u"🎬"_s.repeated(100)}) {
        for (int copy = 0; copy < 2; ++copy) {
            OutputFile file(m_folder.path(), name, u"webm"_s);
            ASSERT_TRUE(file.isValid()) << file.reason().english().toStdString();
            const QString result = QFileInfo(published(file)).fileName();
            EXPECT_TRUE(result.startsWith(name.left(96)) && result.endsWith(".webm"_L1) && result.isValidUtf16());
            EXPECT_GT(result.toUtf8().size(), 250);
        }
    }
    EXPECT_EQ(names().size(), 6);
}

TEST_F(OutputFileTest, SaysWhyItCannotBeMadeOrPlaced)
{
    const OutputFile inNone(path(u"missing"_s), u"clip"_s, u"mp4"_s);
    EXPECT_EQ(inNone.reason().english(), u"The output directory does not exist. Please check the setting.");
    EXPECT_FALSE(inNone.isValid() || OutputFile({}, u"clip"_s, u"mp4"_s).isValid());
    const OutputFile forbidden(u"/sys"_s, u"clip"_s, u"mp4"_s);  // where nobody may make a file
    EXPECT_FALSE(forbidden.isValid());
    const QString why = forbidden.reason().english();
    EXPECT_TRUE(why.contains("not allowed"_L1) || why.contains("read-only"_L1)) << why.toStdString();
    EXPECT_EQ(registered(), 0);

    OutputFile emptied(m_folder.path(), u"clip"_s, u"mp4"_s);
    QFile::remove(emptied.partPath());
    const auto placed = emptied.publish();
    ASSERT_FALSE(placed);
    EXPECT_EQ(placed.reason().english(), u"The file is no longer where it was.");
    EXPECT_EQ(names(), QStringList());

    QDir(m_folder.path()).mkdir(u"away"_s);
    OutputFile orphan(path(u"away"_s), u"clip"_s, u"mp4"_s);
    QDir(path(u"away"_s)).removeRecursively();
    const auto nowhere = orphan.publish();
    ASSERT_FALSE(nowhere);
    EXPECT_EQ(nowhere.reason().english(), u"The output directory does not exist. Please check the setting.");
}

TEST_F(OutputFileTest, ThePartsOfKilledOwnersGoAndNothingElse)
{
    leaveParts();
    const QString precious = path(u"precious"_s);
    QDir().mkdir(precious);
    writeText(precious + u"/film"_s, "mine");
    for (const QString &name : names()) {
        EXPECT_TRUE(!name.contains("disc"_L1) || QFile::link(precious, path(name) + u"/link"_s));
    }
    // Registrations of this very owner that point to what is not its own, and parts that nobody wrote down
    const QString id = registrations().entryList(everything).value(0);
    const QString ownerTag = id.left(id.lastIndexOf(u'-'));
    const QStringList others{precious, path(u".a.kestrel-part-"_s + ownerTag + u"-90.mkv"_s),
                             path(u"b.kestrel-part-"_s + ownerTag + u"-92"_s),
                             path(u".c.kestrel-part-"_s + ownerTag + u"-93.mkv"_s),
                             path(u".d.kestrel-part-"_s + PartOwner::self().tag() + u"-94.mkv"_s)};
    writeText(others[4], "of one that lives");
    writeText(others[1], "x");
    writeText(others[2], "x");
    EXPECT_TRUE(QFile::link(precious, others[3]));
    for (int other = 0; other < others.size(); ++other)
        EXPECT_TRUE(QFile::link(others[other], registrations().filePath(ownerTag + u"-9"_s + QString::number(other))));
    const OutputFile own(m_folder.path(), u"own"_s, u"mp4"_s);

    std::thread another(OutputFile::sweepDeadOwners);
    OutputFile::sweepDeadOwners();
    another.join();
    QStringList left{QFileInfo(own.partPath()).fileName()};
    for (const QString &other : others)
        left.append(QFileInfo(other).fileName());
    EXPECT_EQ(QSet<QString>(left.begin(), left.end()), [&] {
        const QStringList present = names();
        return QSet<QString>(present.begin(), present.end());
    }());
    EXPECT_EQ(textIn(precious + u"/film"_s), u"mine");
    EXPECT_EQ(registered(), 1);
}

TEST_F(OutputFileTest, APartOnADiskThatIsAwayIsFoundWhenItIsBack)
{
    leaveParts();
    const QString away = m_folder.path() + u"-away"_s;
    auto own = std::make_unique<OutputFile>(m_folder.path(), u"own"_s, u"mp4"_s);
    const QString ownPart = own->partPath();
    ASSERT_TRUE(QDir().rename(m_folder.path(), away));
    own.reset();
    OutputFile::sweepDeadOwners();
    EXPECT_EQ(registered(), 3);
    ASSERT_TRUE(QDir().rename(away, m_folder.path()));
    OutputFile::sweepDeadOwners();
    EXPECT_EQ(names(), QStringList(QFileInfo(ownPart).fileName()));  // whose owner is this process
    EXPECT_EQ(registered(), 1);
}

TEST_F(OutputFileTest, AKeptPartStays)
{
    QString part;
    {
        OutputFile file(m_folder.path(), u"download"_s, u"mp4"_s);
        part = file.partPath();
        file.keepPart();
        EXPECT_EQ(registered(), 0);
    }
    EXPECT_TRUE(QFile::exists(part));
}

TEST(PartOwnerTest, OnlyEndedProcessesOfThisMachineHaveEnded)
{
    const PartOwner self = PartOwner::self();
    const auto with = [&](auto change) {
        PartOwner owner = self;
        change(owner);
        return owner;
    };
    const struct {
        const char *name;
        PartOwner owner;
        bool hasEnded;
    } rows[] = {
        {"this one", self, false},
        {"its number in an earlier life", with([](PartOwner &o) { --o.start; }), true},
        {"a free number", with([](PartOwner &o) { o.process = 0x7fffffff; }), true},
        {"before the machine was started", with([](PartOwner &o) { ++o.boot; }), true},
        {"on another machine", with([](PartOwner &o) { ++o.machine, o.process = 0x7fffffff; }), false},
    };
    for (const auto &[name, owner, hasEnded] : rows) {
        EXPECT_EQ(owner.hasEnded(), hasEnded) << name;
        EXPECT_EQ(PartOwner::fromTag(owner.tag()), owner) << name;
    }
    for (const QString &text :
         {u""_s, u"1-2-3"_s, u"0-2-00000003-00000004"_s, u"1-2-00000003-00000004-5"_s, u"a-b-c-d"_s})
        EXPECT_FALSE(PartOwner::fromTag(text)) << text.toStdString();
}

TEST(SystemFailureTest, NumbersAndWordsSayTheSame)
{
    for (const int error : {ENOSPC, EDQUOT, EROFS, EACCES, EFBIG, EIO, ESTALE, ENOMEM}) {
        const SystemFailure byNumber = systemFailure(error);
        const SystemFailure byWords = systemFailureIn(u"out.mp4: "_s + QString::fromLocal8Bit(strerror(error)));
        EXPECT_FALSE(byNumber.sentence.isEmpty()) << error;
        EXPECT_EQ(byNumber.sentence, byWords.sentence) << error;
        EXPECT_EQ(byNumber.isHopeless, byWords.isHopeless) << error;
    }
    EXPECT_TRUE(systemFailure(ENOSPC).isHopeless && !systemFailure(EIO).isHopeless);
    EXPECT_TRUE(systemFailure(EEXIST).sentence.isEmpty() && systemFailureIn(u"all is well"_s).sentence.isEmpty());
    EXPECT_TRUE(systemFailureIn(u"Input/output error\nNo space left on device"_s).isHopeless);
}

}  // namespace kestrel
