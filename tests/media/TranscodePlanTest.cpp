#include "media/OutputName.h"
#include "media/TranscodePlan.h"

#include <gtest/gtest.h>

#include <QJsonArray>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

TranscodePlan plainPlan()
{
    TranscodePlan plan;
    plan.sources = {u"/films/a.mkv"_s};
    plan.preset = *presetOfId(u"mp4-h264"_s);
    return plan;
}

TranscodePlan fullPlan()
{
    TranscodePlan plan = plainPlan();
    plan.sources += u"/films/b.mkv"_s;
    plan.rateControl = TranscodePlan::RateControl::Size;
    plan.quality = 20.5;
    plan.videoBitRate = 5'000'000'000;
    plan.maximumBytes = 25'000'000'000;
    plan.best = true;
    plan.speed = -2;
    plan.hardware = false;
    plan.copies = false;
    plan.threads = 3;
    plan.maximumWidth = 1280;
    plan.maximumHeight = 720;
    plan.frameRate = 23.976;
    plan.deinterlace = TranscodePlan::Deinterlace::Film;
    plan.dynamicRange = TranscodePlan::HighDynamicRange::ToStandard;
    plan.crop = {0.1, 0.2, 0.5, 0.75};
    plan.turn = TranscodePlan::Turn::UpsideDown;
    plan.mirrored = true;
    plan.brightness = -0.5;
    plan.contrast = 0;
    plan.saturation = 3;
    plan.watermark = {
        .text = u"Käse"_s, .imagePath = u"/m.png"_s, .corner = Qt::AlignTop | Qt::AlignLeft, .opacity = 1, .size = 0.3};
    plan.pieces = {{.start = 1.5, .end = 3}, {.start = 0, .end = 0.25}};
    plan.exactCuts = false;
    plan.speedFactor = 0.25;
    plan.fadeIn = 1;
    plan.fadeOut = 2;
    plan.audioTracks = {2, 1};
    plan.soundLanguages = u"en"_s;
    plan.subtitleLanguages = u"none"_s;
    plan.mix = TranscodePlan::SoundMix::Surround51;
    plan.normalizes = true;
    plan.volume = -6;
    plan.audioBitRate = 96'000;
    plan.subtitles = {{4, TranscodePlan::SubtitleUse::Burn}, {5, TranscodePlan::SubtitleUse::Leave}};
    plan.externalSubtitles = {{.path = u"/s.srt"_s, .language = u"de"_s, .use = TranscodePlan::SubtitleUse::Burn}};
    plan.safeMode = true;
    plan.keepsDate = true;
    plan.namePattern = u"{name}"_s;
    plan.besideSource = true;
    plan.chapterPerSource = true;
    return plan;
}

}  // namespace

TEST(OutputNameTest, OnlyTheEndingGoes)
{
    TranscodePlan plan = plainPlan();
    plan.sources = {u"/films/Holiday.2020.mov"_s};
    EXPECT_EQ(outputBaseName(plan, {}), u"Holiday.2020");
    plan.namePattern = u"{folder} {name} {date}"_s;
    EXPECT_EQ(outputBaseName(plan, {2024, 12, 31}), u"films Holiday.2020 2024-12-31");
}

TEST(TranscodePlan, ComesBackAsItWasStored)
{
    const QJsonObject stored = fullPlan().toJson();
    const auto plan = TranscodePlan::fromJson(stored);
    ASSERT_TRUE(plan);
    EXPECT_EQ(plan->toJson(), stored);
    // Each field differs from its default, so one that is not stored would be missing here.
    EXPECT_EQ(stored.size(), 43);
}

TEST(TranscodePlan, DefaultsAreNotStored)
{
    EXPECT_EQ(plainPlan().toJson().keys(), (QStringList{u"preset"_s, u"sources"_s, u"version"_s}));
    TranscodePlan silent = plainPlan();
    silent.audioTracks.emplace();
    EXPECT_TRUE(TranscodePlan::fromJson(silent.toJson())->audioTracks) << "no track is not the same as all";
}

TEST(TranscodePlan, WhatIsNoneIsNotRead)
{
    const QPair<QString, QJsonValue> changes[] = {
        {u"version"_s, 2},
        {u"version"_s, QJsonValue::Undefined},
        {u"preset"_s, QJsonObject()},
        {u"sources"_s, QJsonArray()},
        {u"sources"_s, QJsonArray{u"/a"_s, u"relative"_s}},
        {u"sources"_s, QJsonArray{QString(100'000, u'/')}},
        {u"pieces"_s, QJsonArray::fromVariantList(QVariantList(65, QVariantList{1, 2}))},
    };
    for (const auto &[key, value] : changes) {
        QJsonObject json = plainPlan().toJson();
        json[key] = value;
        EXPECT_FALSE(TranscodePlan::fromJson(json)) << key.toStdString();
    }
}

TEST(TranscodePlan, NonsenseInAFieldReadsAsItsDefault)
{
    const QPair<QString, QJsonValue> changes[] = {
        {u"speed"_s, 3},
        {u"speed"_s, 0.5},
        {u"rateControl"_s, 4},
        {u"turn"_s, -1},
        {u"speedFactor"_s, 0},
        {u"volume"_s, u"loud"_s},
        {u"contrast"_s, 1e300},
        {u"crop"_s, QJsonArray{0.5, 0, 0.6, 1}},
        {u"crop"_s, QJsonArray{0, 0, 0, 1}},
        {u"pieces"_s, QJsonArray{QJsonArray{3, 2}, QJsonArray{-1, 2}, 5}},
        {u"watermark"_s, QJsonObject{{u"image"_s, u"http://x/a.png"_s}}},
        {u"externalSubtitles"_s, QJsonArray{QJsonObject{{u"path"_s, u"concat:a"_s}}}},
        {u"subtitles"_s, QJsonObject{{u"-1"_s, 1}, {u"x"_s, 1}, {u"2"_s, 9}}},
    };
    for (const auto &[key, value] : changes) {
        QJsonObject json = plainPlan().toJson();
        json[key] = value;
        const auto plan = TranscodePlan::fromJson(json);
        ASSERT_TRUE(plan) << key.toStdString();
        EXPECT_EQ(plan->toJson(), plainPlan().toJson()) << key.toStdString();
    }
}

}  // namespace kestrel
