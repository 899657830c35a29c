#include "settings/JKestrelSettingDispatcher.h"

#include "foundation/UserDefaults.h"
#include "settings/JKestrelSetting.h"
#include "tests/support/ProductFolder.h"

#include <gtest/gtest.h>

#include <QMetaProperty>
#include <QTemporaryDir>

#include <functional>
#include <span>

using namespace Qt::StringLiterals;

namespace kestrel {
namespace {

using Dispatcher = JKestrelSettingDispatcher;

/// A forward of the dispatcher to the property that it is for.
struct Forward {
    const char *property;
    std::function<void(Dispatcher &, const QVariant &)> set;  ///< empty where there is none
    std::function<QVariant(const Dispatcher &)> get;
};

template <class Value>
Forward reading(const char *property, Value (Dispatcher::*get)() const)
{
    return {property, {}, [get](const Dispatcher &subject) { return QVariant((subject.*get)()); }};
}

template <class Given, class Value>
Forward forward(const char *property, void (Dispatcher::*set)(Given), Value (Dispatcher::*get)() const)
{
    Forward both = reading(property, get);
    both.set = [set](Dispatcher &subject, const QVariant &value) { (subject.*set)(value.value<Value>()); };
    return both;
}

const Forward moduleForwards[] = {
    forward("videoOutputPath", &Dispatcher::setVideoDir, &Dispatcher::getVideoDir),
    reading("musicOutputPath", &Dispatcher::getMusicDir),
    reading("snapshotOutputPath", &Dispatcher::getSnapshotDir),
    forward("safeMode", &Dispatcher::setSafeMode, &Dispatcher::getSafeMode),
    forward("cpuCore", &Dispatcher::setCpuCore, &Dispatcher::getCpuCore),
    forward("highQualityEngine", &Dispatcher::setHQE, &Dispatcher::getHQE),
    forward("deinterlacing", &Dispatcher::setDeinterlacing, &Dispatcher::getDeinterlacing),
    forward("mergeMedia", &Dispatcher::setMergeMedia, &Dispatcher::mergeMedia),
    forward("merge2MKV", &Dispatcher::setMergeMKV, &Dispatcher::mergeMKV),
    forward("autoCopy", &Dispatcher::setAutoCopy, &Dispatcher::autoCopy),
    forward("add2iTunesLib", &Dispatcher::setAdd2iTunesLib, &Dispatcher::add2iTunesLib),
};
const Forward switchForwards[] = {
    forward("openFolderWhenDone", &Dispatcher::setOpenFolder, &Dispatcher::isOpenWhenDone),
    forward("shutdownWhenDone", &Dispatcher::setShutdownJiQi, &Dispatcher::isShutdownWhenDone),
    forward("intelQSV", &Dispatcher::setQSV, &Dispatcher::getQSV),
};
const Forward downloadForwards[] = {
    forward("preferedFormat", &Dispatcher::setDefaultFormat, &Dispatcher::getDefaultFormat),
    forward("preferedResolution", &Dispatcher::setDefaultResolution, &Dispatcher::getDefaultResolution),
    forward("preferedConcurrent", &Dispatcher::setConcurrentThread, &Dispatcher::getConcurrentThread),
    forward("proxyEnabled", &Dispatcher::setProxyEnable, &Dispatcher::isProxyEnabled),
};
const Forward recordForwards[] = {
    forward("recordQuality", &Dispatcher::setDefaultRecordQuality, &Dispatcher::getRecorderDefaultQuality),
    forward("maxFrameRate", &Dispatcher::setMaxFramerate, &Dispatcher::getRecorderMaxFramerate),
    forward("recordVideoDeviceID", &Dispatcher::setVideoDeviceID, &Dispatcher::getCurrentVideoDeviceID),
    forward("recordAudioDeviceID", &Dispatcher::setAudioDeviceID, &Dispatcher::getCurrentAudioDeviceID),
    forward("recordChoices", &Dispatcher::setRecordChoices, &Dispatcher::getRecordChoices),
    forward("captureMouseClick", &Dispatcher::setCaptureMouseClick, &Dispatcher::isCaptureMouseClick),
};
const Forward discForwards[] = {reading("prefferLanguage", &Dispatcher::getDVDPreferredAudioLanCode)};

QVariant another(const QVariant &value)
{
    switch (value.typeId()) {
        case QMetaType::Bool:
            return !value.toBool();
        case QMetaType::QString:
            return value.toString() + u'x';
        case QMetaType::Double:
            return value.toDouble() + 1.5;
        default:
            return value.toLongLong() + 1;
    }
}

class DispatcherTest : public testing::Test {
protected:
    /// Every property of the settings and of their modules.
    QMap<QString, QVariant> everything() const
    {
        QMap<QString, QVariant> values;
        for (const QObject *object : std::initializer_list<const QObject *>{
                 &m_setting, m_setting.video(), m_setting.dvd(), m_setting.downloader(), m_setting.recorder()}) {
            const QMetaObject &type = *object->metaObject();
            for (int index = 0; index < type.propertyCount(); ++index) {
                const QByteArray name = type.property(index).name();
                if (name != "hardwareChoice")  // which shows what intelQSV says
                    values.insert(placeOf(*object, name), object->property(name));
            }
        }
        return values;
    }
    static QString placeOf(const QObject &object, const QByteArray &property)
    {
        return QString::fromLatin1(object.metaObject()->className() + ('.' + property));
    }

    /// What is set arrives at that one place, and what is there is what is got.
    void expectForwards(Dispatcher &subject, QObject &object, std::span<const Forward> forwards)
    {
        for (const Forward &row : forwards) {
            SCOPED_TRACE(row.property);
            QMap<QString, QVariant> expected = everything();
            const QVariant value = another(object.property(row.property));
            expected.insert(placeOf(object, row.property), value);
            if (row.set)
                row.set(subject, value);
            else
                object.setProperty(row.property, value);
            EXPECT_EQ(everything(), expected);
            EXPECT_EQ(row.get(subject), value);
        }
    }

    const test::ProductFolder m_product{test::productInformation()};
    const QTemporaryDir m_folder;
    foundation::UserDefaults m_defaults{m_folder.filePath(u"defaults.plist"_s)};
    JKestrelSetting m_setting{m_defaults};
};

}  // namespace

TEST_F(DispatcherTest, each_forward_reaches_its_own_property_and_no_other)
{
    for (qint32 kind = 0; kind < 4; ++kind) {
        SCOPED_TRACE(kind);
        Dispatcher subject(kind, m_setting);
        ASSERT_TRUE(subject.currentSetting());
        EXPECT_EQ(subject.currentSetting(), m_setting.ofModule(kind));
        expectForwards(subject, *subject.currentSetting(), moduleForwards);
        expectForwards(subject, m_setting, switchForwards);
        expectForwards(subject, *m_setting.downloader(), downloadForwards);
        expectForwards(subject, *m_setting.recorder(), recordForwards);
        expectForwards(subject, *m_setting.dvd(), discForwards);
        QString error;
        EXPECT_EQ(subject.check(&error), subject.currentSetting()->checkSetting(&error));
    }
    const Dispatcher subject(0, m_setting);
    const std::pair<QString, const char *> tools[] = {{subject.getMediaInfoPath(), "transcoder.bundle mediainfo"},
                                                      {subject.getTranscoderPath(), "transcoder.bundle ffmpeg"},
                                                      {subject.getPlayerPath(), "transcoder.bundle ffplay"},
                                                      {subject.getDiscInfoPath(), "heron.bundle discinfo"},
                                                      {subject.getDisc2ISOPath(), "heron.bundle disc2iso"},
                                                      {subject.getDiscCoverPath(), "heron.bundle disccover"}};
    for (const auto &[path, names] : tools)
        EXPECT_EQ(path, m_product.contentsPath(u"Resources/"_s +
                                               QString::fromLatin1(names).replace(u' ', "/Contents/Resources/"_L1)));
}

TEST_F(DispatcherTest, one_of_an_unknown_kind_has_no_module_but_the_shared_preferences)
{
    Dispatcher unknown(9, m_setting);
    EXPECT_EQ(unknown.currentSetting(), nullptr);
    const auto before = everything();
    for (const Forward &row : moduleForwards) {
        const QVariant nothing = row.get(unknown);
        EXPECT_TRUE(nothing.toString().isEmpty() || nothing.toLongLong() == 0) << row.property;
        if (row.set)
            row.set(unknown, another(nothing));
    }
    EXPECT_EQ(everything(), before);
    QString error;
    EXPECT_FALSE(unknown.check(&error));
    EXPECT_EQ(unknown.proxyString(), u"(null):(null)"_s);
    unknown.setProxyString(u"http://proxy.example"_s, u"8080"_s);
    EXPECT_EQ(unknown.proxyString(), u"http://proxy.example:8080"_s);
    EXPECT_EQ(m_setting.downloader()->proxyPort(), u"8080"_s);
}

}  // namespace kestrel
