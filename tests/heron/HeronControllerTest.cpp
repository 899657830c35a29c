#include "../modules/ModuleSettings.h"
#include "jobs/JobQueue.h"
#include "modules/heron/DiscPlan.h"
#include "modules/heron/ui/HeronController.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

class Services final : public ModuleServices {
public:
    JobQueue &queue() override { return m_queue; }

private:
    JobQueue m_queue{nullptr};
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
                                                        {u"/disctitle"_s, "exit 9"}};
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
     "audio":[{"language":"en","codec":"ac3","channels":6},{"language":"de","codec":"ac3","channels":2}],
     "subtitles":[{"language":"fr"}]}]})";

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
