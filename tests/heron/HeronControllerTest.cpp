#include "../modules/ModuleSettings.h"
#include "jobs/JobQueue.h"
#include "modules/heron/DiscPlan.h"
#include "modules/heron/ui/HeronController.h"
#include "tests/support/PrivateBus.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QTreeWidget>

#include <csignal>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

class Services final : public ModuleServices {
public:
    JobQueue &queue() override { return m_queue; }
    void openInConverter(const QStringList &) override {}

private:
    JobQueue m_queue{nullptr};
};

using Interfaces = QMap<QString, QVariantMap>;
using Objects = QMap<QDBusObjectPath, Interfaces>;

/// The system's disk service, with one drive.
class DiskService : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.DBus.ObjectManager")
public:
    DiskService()
    {
        qDBusRegisterMetaType<Interfaces>();
        qDBusRegisterMetaType<Objects>();
        m_bus.registerObject(u"/org/freedesktop/UDisks2"_s, this, QDBusConnection::ExportAllSlots);
        m_bus.registerService(m_name);
    }
    ~DiskService() override { QDBusConnection::disconnectFromBus(u"disks"_s); }

    void setDisc(bool isIn, bool answers = true)
    {
        m_hasDisc = isIn;
        m_answers = answers;
        m_bus.send(QDBusMessage::createSignal(m_drive, u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s));
    }
    void startAgain(bool hasDisc)
    {
        m_bus.unregisterService(m_name);
        m_hasDisc = hasDisc;
        m_answers = true;
        m_bus.registerService(m_name);
    }
    int m_asked = 0;
    QString m_label = u"HOLIDAY"_s;

public slots:
    void GetManagedObjects(const QDBusMessage &call)
    {
        ++m_asked;
        call.setDelayedReply(true);
        const Interfaces drive{
            {u"org.freedesktop.UDisks2.Drive"_s, {{u"Optical"_s, true}, {u"MediaAvailable"_s, m_hasDisc}}}};
        const Interfaces block{{u"org.freedesktop.UDisks2.Block"_s,
                                {{u"Drive"_s, QVariant::fromValue(QDBusObjectPath(m_drive))},
                                 {u"PreferredDevice"_s, QByteArray("/dev/sr0", 9)},
                                 {u"IdLabel"_s, m_label}}}};
        const Objects objects{{QDBusObjectPath(m_drive), drive}, {QDBusObjectPath(m_drive + u"_block"_s), block}};
        m_bus.send(m_answers ? call.createReply(QVariant::fromValue(objects))
                             : call.createErrorReply(u"org.freedesktop.DBus.Error.Failed"_s, {}));
    }

private:
    const QString m_name = u"org.freedesktop.UDisks2"_s, m_drive = u"/org/freedesktop/UDisks2/drives/one"_s;
    QDBusConnection m_bus = QDBusConnection::connectToBus(test::PrivateBus::instance().address(), u"disks"_s);
    bool m_hasDisc = false, m_answers = true;
};

/// The module over disc tools that are scripts.
class HeronControllerTest : public testing::Test {
protected:
    void SetUp() override { QDir().mkpath(QFileInfo(m_settings.dispatcher().getDiscInfoPath()).path()); }

    void setDisc(const QByteArray &json, const QByteArray &before = {})
    {
        const QString folder = QFileInfo(m_settings.dispatcher().getDiscInfoPath()).path();
        const std::pair<QString, QByteArray> tools[] = {{u"/discinfo"_s, before + "\ncat <<'X'\n" + json + "\nX\n"},
                                                        {u"/disccover"_s, "exit 14"},
                                                        {u"/disc2iso"_s, "exec sleep 600"},
                                                        {u"/disctitle"_s, "echo \"$@\""}};
        for (const auto &[name, text] : tools) {
            QFile::remove(folder + name);
            test::writeFile(folder + name, "#!/bin/sh\n" + text);
            QFile::setPermissions(folder + name, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        }
    }
    template <typename Child>
    Child *child(const char *name)
    {
        return m_module.view()->findChild<Child *>(QString::fromLatin1(name));
    }
    void chooseWay(DiscWay way)
    {
        auto *ways = child<QComboBox>("wayComboBox");
        ways->setCurrentIndex(ways->findData(int(way)));
    }
    QList<DiscPlan> start()
    {
        child<QPushButton>("startButton")->click();
        QList<DiscPlan> plans;
        for (const JobId id : m_services.queue().order(heronJobs.toString()))
            plans.append(*DiscPlan::fromJson(m_services.queue().record(id)->plan));
        return plans;
    }

    test::ModuleSettings m_settings{ModuleSettingDVD};
    Services m_services;
    HeronController m_module{m_settings.configure(), m_services};
};

const QByteArray holiday = R"({"volume":"HOLIDAY","bytes":9000,"protected":false,"titles":[
    {"title":1,"seconds":60,"bytes":1000,"chapters":[0],"audio":[{"language":"en","codec":"ac3","channels":2}]},
    {"title":2,"main":true,"seconds":5400,"bytes":7000,"chapters":[0,60],
     "audio":[{"language":"en","codec":"ac3","channels":6},{"language":"de","codec":"ac3","channels":2,"id":129}],
     "subtitles":[{"language":"fr","id":33}]}]})";

}  // namespace

TEST_F(HeronControllerTest, WhatIsChosenBecomesJobs)
{
    setDisc(holiday);
    m_module.openFiles({m_settings.path(u"holiday.iso"_s)});
    auto *titles = child<QTreeWidget>("titles");
    EXPECT_FALSE(child<QPushButton>("startButton")->isEnabled());
    ASSERT_TRUE(QTest::qWaitFor([&] { return titles->topLevelItemCount() == 2; }, 20000));
    EXPECT_EQ(titles->topLevelItem(0)->checkState(0), Qt::Unchecked);
    EXPECT_EQ(titles->topLevelItem(1)->checkState(0), Qt::Checked);
    EXPECT_TRUE(titles->topLevelItem(1)->child(0)->text(0).contains(u"English, Dolby Digital 5.1"));

    titles->topLevelItem(0)->setCheckState(0, Qt::Checked);
    titles->topLevelItem(1)->child(0)->setCheckState(0, Qt::Unchecked);
    chooseWay(DiscWay::Mkv);
    const QList<DiscPlan> plans = start();
    ASSERT_EQ(plans.size(), 2);
    EXPECT_FALSE(plans[0].soundTracks);
    EXPECT_EQ(plans[1].soundTracks, QList<int>{2});
    EXPECT_EQ(plans[1].bytes, 7000);

    chooseWay(DiscWay::Image);
    EXPECT_FALSE(titles->isEnabled());
    EXPECT_EQ(start().last().title, 0);
}

TEST_F(HeronControllerTest, ATitleIsPlayedAndKeptAsItsOptionsSay)
{
    const QString player = m_settings.dispatcher().getPlayerPath(), played = m_settings.path(u"played"_s);
    QFile::remove(player);
    test::writeFile(player, "#!/bin/sh\n{ echo \"$@\"; cat; } >'" + played.toUtf8() + "'\n");
    QFile::setPermissions(player, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    m_settings.setting().dvd()->setPrefferLanguage(u"de"_s);
    setDisc(holiday);
    m_module.openFiles({m_settings.path(u"holiday.iso"_s)});
    auto *titles = child<QTreeWidget>("titles");
    ASSERT_TRUE(QTest::qWaitFor([&] { return titles->topLevelItemCount() == 2; }, 20000));
    EXPECT_TRUE(titles->topLevelItem(1)->child(0)->text(0).contains(u"German"));
    child<QSpinBox>("firstBox")->setValue(2);
    child<QComboBox>("burnBox")->setCurrentIndex(1);
    child<QPushButton>("playButton")->click();
    QByteArray told;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            QFile file(played);
            told = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
            return told.contains("--title 2 --chapters 2-999");
        },
        20000));
    EXPECT_TRUE(told.contains("-ast i:129 -sst i:33")) << told.constData();

    DiscPlan plan = start().last();
    EXPECT_EQ((QList{plan.firstChapter, plan.lastChapter, plan.burnedSubtitle}), (QList{2, 0, 1}));
    EXPECT_EQ(plan.language, u"de");
    EXPECT_EQ(plan.bytes, 7000 * 5340 / 5400);
    chooseWay(DiscWay::Mkv);
    EXPECT_EQ(start().last().burnedSubtitle, 0) << "nothing is drawn into a film that stays as it is";
}

TEST_F(HeronControllerTest, ADiscIsShownWhileItIsInItsDrive)
{
    DiskService disks;
    setDisc(holiday);
    m_module.openFiles({});
    auto *drives = child<QComboBox>("driveComboBox");
    auto *titles = child<QTreeWidget>("titles");
    const auto shows = [&](int discs) {
        return QTest::qWaitFor([&] { return drives->count() == discs && titles->topLevelItemCount() == 2 * discs; },
                               20000);
    };
    m_module.markAppear();
    ASSERT_TRUE(QTest::qWaitFor([&] { return disks.m_asked == 1; }, 20000));
    EXPECT_TRUE(shows(0)) << "a drive without a disc";
    disks.setDisc(true);
    ASSERT_TRUE(shows(1));
    chooseWay(DiscWay::Image);
    EXPECT_EQ(start().last().source, u"/dev/sr0");
    const JobId id = m_services.queue().order(heronJobs.toString()).first();
    disks.setDisc(false);
    EXPECT_TRUE(shows(0));
    EXPECT_FALSE(child<QPushButton>("startButton")->isEnabled());
    EXPECT_EQ(m_services.queue().record(id)->state, JobState::Running) << "how it ends is the tool's to say";
    m_services.queue().remove({id});

    disks.setDisc(true);
    EXPECT_TRUE(shows(1));
    const int asked = disks.m_asked;
    disks.setDisc(true, false);
    EXPECT_TRUE(QTest::qWaitFor([&] { return disks.m_asked > asked; }, 20000));
    QTest::qWait(100);
    EXPECT_TRUE(shows(1)) << "a service that does not answer";
    m_module.markAppear();
    m_module.onViewDidDisappear();
    m_module.view()->show();
    QTest::qWait(0);
    disks.m_label = u"SECOND"_s;
    setDisc(R"({"volume":"SECOND","titles":[{"title":1,"seconds":60,"main":true}]})");
    disks.setDisc(true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return titles->topLevelItemCount() == 1; }, 20000))
        << "another disc, where the host shows the module again that it showed before";
    disks.startAgain(false);
    EXPECT_TRUE(shows(0)) << "a service that was started again";
    ::kill(test::PrivateBus::instance().processId(), SIGKILL);
    m_module.view()->hide();
    m_module.onViewDidDisappear();
    QTest::qWait(0);
    m_module.markAppear();
    QTest::qWait(100);
    EXPECT_TRUE(shows(0)) << "a bus that is gone";
}

TEST_F(HeronControllerTest, RowsThatAreLeftStartByTheButtonAndTakeTheirImagesAlong)
{
    m_module.openFiles({});
    DiscPlan plan{.source = m_settings.path(u"none.iso"_s), .way = DiscWay::Image};
    plan.volume = u"HOLIDAY"_s;
    JobQueue &queue = m_services.queue();
    const QString folder = m_settings.path(u"left"_s), copy = folder + u"/.HOLIDAY.0.kestrel-copy.iso"_s;
    ASSERT_TRUE(QDir().mkpath(folder));
    test::writeFile(copy, "begun");
    const JobId first = queue.add(discJob(plan, folder)), second = queue.add(discJob(plan, folder));
    queue.remove({first});
    EXPECT_TRUE(QFile::exists(copy)) << "the other goes on with it";
    child<QPushButton>("startButton")->click();
    EXPECT_NE(queue.record(second)->state, JobState::Ready);
    ASSERT_TRUE(QTest::qWaitFor([&] { return isEnded(queue.record(second)->state); }, 20000));
    queue.remove({second});
    EXPECT_EQ(QDir(folder).entryList(QDir::Files | QDir::Hidden), QStringList());
}

TEST_F(HeronControllerTest, SaysWhyADiscIsNotKeptAndIsQuickMeanwhile)
{
    const struct {
        const char *name;
        QByteArray json;
        QString sentence;
    } rows[] = {
        {"protected", R"({"volume":"X","protected":true,"titles":[{"title":1,"main":true}]})", u"copy-protected"_s},
        {"none", R"({"error":"notADisc"})", u"no video DVD"_s},
        {"no titles", R"({"volume":"X","titles":[]})", u"no such title"_s}};
    for (const auto &[name, json, sentence] : rows) {
        setDisc(json);
        m_module.openFiles({m_settings.path(u"disc.iso"_s)});
        auto *message = child<QLabel>("messageLabel");
        EXPECT_TRUE(QTest::qWaitFor([&] { return message->text().contains(sentence); }, 20000)) << name;
        EXPECT_FALSE(child<QPushButton>("startButton")->isEnabled()) << name;
    }
    // A drive that never answers: another disc takes its place at once.
    setDisc(holiday, "sleep 600");
    m_module.openFiles({m_settings.path(u"slow.iso"_s)});
    setDisc(holiday);
    m_module.openFiles({m_settings.path(u"holiday.iso"_s)});
    EXPECT_TRUE(QTest::qWaitFor([&] { return child<QTreeWidget>("titles")->topLevelItemCount() == 2; }, 20000));
}

}  // namespace kestrel

#include "HeronControllerTest.moc"
