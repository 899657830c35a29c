#include "media/Containers.h"
#include "media/Encoders.h"
#include "media/Preset.h"

#include <gtest/gtest.h>

#include <QSet>

using namespace Qt::StringLiterals;

namespace kestrel {

TEST(Preset, EachHasANameOfItsOwnAndWhatItTakesToMakeIt)
{
    QSet<QString> ids;
    for (const Preset &preset : allPresets()) {
        SCOPED_TRACE(preset.id.toStdString());
        EXPECT_FALSE(ids.contains(preset.id));
        ids.insert(preset.id);
        EXPECT_FALSE(preset.name.isEmpty());
        EXPECT_NE(presetGroupName(preset.group), preset.group);
        ASSERT_TRUE(containerOf(preset));
        EXPECT_TRUE(preset.takesVideo() || preset.takesAudio());
        EXPECT_TRUE(!preset.takesVideo() || preset.videoCodec == "copy"_L1 || videoEncoderOf(preset.videoCodec));
        EXPECT_TRUE(!preset.takesAudio() || preset.audioCodec == "copy"_L1 || soundEncoderOf(preset.audioCodec));
        // A name tells the truth about its codecs.
        const QStringList told = preset.name.section(u'(', 1).remove(u')').split(u", "_s);
        for (const char *name : {"h264", "hevc", "av1", "vp9", "aac", "alac", "opus", "vorbis", "ac3", "flac"}) {
            const QString codec = QString::fromLatin1(name);
            EXPECT_TRUE(!told.contains(codecLabel(codec)) || codec == preset.videoCodec || codec == preset.audioCodec);
        }
        // What is stored is read again: the same rules hold for our own.
        const auto read = Preset::fromJson(preset.toJson());
        ASSERT_TRUE(read) << read.reason().english().toStdString();
        EXPECT_EQ(read->toJson(), preset.toJson());
    }
    EXPECT_EQ(builtInPresets().first().id, u"mp4-h264"_s);
    EXPECT_GE(builtInPresets().size(), 40);
    EXPECT_GE(allPresets().size(), 180);
    for (const QString &id :
         {u"mp4-h264"_s, u"mkv-h264"_s, u"webm-vp9"_s, u"mp3"_s, u"flac"_s, u"mkv-copy"_s, u"m2ts-h264"_s})
        EXPECT_TRUE(presetOfId(id)) << id.toStdString();
    EXPECT_FALSE(presetOfId(u"mp5"_s));
}

TEST(Preset, WhatNoEncoderOrContainerMakesIsRefused)
{
    struct Case {
        const char *name;
        QString key;
        QJsonValue value;
    };
    const Case cases[] = {
        {"no version", u"version"_s, QJsonValue::Undefined},
        {"a newer version", u"version"_s, 2},
        {"no name", u"name"_s, u" \n"_s},
        {"an unknown container", u"container"_s, u"tee"_s},
        {"another ending", u"extension"_s, u"sh"_s},
        {"an unknown codec", u"video"_s, u"h264 -f tee"_s},
        {"a codec of another container", u"video"_s, u"theora"_s},
        {"sound of another container", u"audio"_s, u"wmav2"_s},
        {"a number for a codec", u"video"_s, 5},
    };
    for (const Case &each : cases) {
        QJsonObject json = presetOfId(u"mp4-h264"_s)->toJson();
        json[each.key] = each.value;
        const auto preset = Preset::fromJson(json);
        ASSERT_FALSE(preset) << each.name;
        EXPECT_FALSE(preset.reason().isEmpty()) << each.name;
    }
}

TEST(Preset, NonsenseInAFieldReadsAsNone)
{
    QJsonObject json = presetOfId(u"mp4-480p"_s)->toJson();
    json[u"name"_s] = QString(10'000, u'x') + u"\u202e"_s;
    json[u"maximumWidth"_s] = -5;
    json[u"maximumHeight"_s] = 1e300;
    json[u"maximumFrameRate"_s] = u"30"_s;
    json[u"audioChannels"_s] = 2.5;
    json[u"quality"_s] = 1000;
    const auto preset = Preset::fromJson(json);
    ASSERT_TRUE(preset);
    EXPECT_LE(preset->name.size(), 200);
    EXPECT_EQ(preset->maximumWidth, 0);
    EXPECT_EQ(preset->maximumHeight, 0);
    EXPECT_EQ(preset->maximumFrameRate, 0);
    EXPECT_EQ(preset->audioChannels, 0);
    EXPECT_EQ(preset->quality, 0);
    EXPECT_EQ(preset->bestQuality, 24);
}

}  // namespace kestrel
