#include "PlanMaterial.h"
#include "media/FramePreview.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace kestrel {

using namespace test;

TEST(TranscodeCommand, KeepsATrackOnlyWhereNothingIsLostOrAsked)
{
    struct Case {
        const char *name;
        QString preset;
        MediaTrack track;
        std::function<void(Plan &)> change;
        bool isKept;
    };
    const auto with = [](const std::function<void(MediaTrack &)> &change) { return changed(video(), change); };
    const Case cases[] = {
        {"the preset's own codec", u"mp4-h264"_s, video(), {}, true},
        {"copying is off", u"mp4-h264"_s, video(), [](Plan &plan) { plan.copies = false; }, false},
        {"another codec", u"mp4-h265"_s, video(), {}, false},
        {"original", u"mkv-copy"_s, video(u"vc1"_s), {}, true},
        {"original that the container cannot hold", u"mp4-copy"_s, video(u"theora"_s), {}, false},
        {"lying, into a container that tells", u"mov-copy"_s, with([](auto &t) { t.rotation = 90; }), {}, true},
        {"lying, into one that does not", u"mkv-copy"_s, with([](auto &t) { t.rotation = 90; }), {}, false},
        {"ten bits where plain is promised",
         u"mp4-h264"_s,
         with([](auto &t) {
             t.pixelFormat = u"yuv420p10le"_s;
             t.bitDepth = 10;
         }),
         {},
         false},
        {"ten bits where not",
         u"mkv-h264"_s,
         with([](auto &t) {
             t.pixelFormat = u"yuv420p10le"_s;
             t.bitDepth = 10;
         }),
         {},
         true},
        {"interlaced",
         u"mp4-h264"_s,
         with([](auto &t) { t.fieldOrder = MediaTrack::FieldOrder::TopFirst; }),
         {},
         false},
        {"interlaced, to stay so", u"mp4-h264"_s,
         with([](auto &t) { t.fieldOrder = MediaTrack::FieldOrder::TopFirst; }),
         [](Plan &plan) { plan.deinterlace = Plan::Deinterlace::Off; }, true},
        {"interlaced original",
         u"mkv-copy"_s,
         with([](auto &t) { t.fieldOrder = MediaTrack::FieldOrder::TopFirst; }),
         {},
         true},
        {"irregular times into AVI", u"avi-h264"_s, with([](auto &t) { t.isVariableRate = true; }), {}, false},
        {"HDR original", u"mkv-copy"_s, with([](auto &t) { t.colorTransfer = u"smpte2084"_s; }), {}, true},
        {"HDR that is to become standard", u"mkv-copy"_s, with([](auto &t) { t.colorTransfer = u"smpte2084"_s; }),
         [](Plan &plan) { plan.dynamicRange = Plan::HighDynamicRange::ToStandard; }, false},
        {"too large", u"mp4-720p"_s, video(), {}, false},
        {"a size is asked for", u"mp4-h264"_s, video(),
         [](Plan &plan) {
             plan.rateControl = Plan::RateControl::Size;
             plan.maximumBytes = 10'000'000;
         },
         false},
        {"an exact cut", u"mp4-h264"_s, video(), [](Plan &plan) { plan.pieces = {{.start = 1, .end = 5}}; }, false},
        {"a cut at a keyframe", u"mp4-h264"_s, video(),
         [](Plan &plan) {
             plan.pieces = {{.start = 1, .end = 5}};
             plan.exactCuts = false;
         },
         true},
        {"cropped", u"mkv-copy"_s, video(),
         [](Plan &plan) {
             plan.crop = {0, 0, 1, 0.5};
         },
         false},
        {"subtitles burnt in", u"mkv-copy"_s, video(),
         [](Plan &plan) {
             plan.subtitles = {{2, Plan::SubtitleUse::Burn}};
         },
         false},
        {"faster", u"mkv-copy"_s, video(), [](Plan &plan) { plan.speedFactor = 2; }, false},
    };
    for (const Case &each : cases) {
        const std::string line =
            lineFor(planFor(each.preset, each.change), film({each.track, sound(1), subtitle(2, u"subrip"_s)}));
        EXPECT_EQ(line.find("-c:v:0 copy") != std::string::npos, each.isKept) << each.name << ": " << line;
        EXPECT_TRUE(each.isKept || line.find("-c:v:0 lib") != std::string::npos) << each.name << ": " << line;
    }
}

TEST(TranscodeCommand, ArgumentsFollowThePlanAndTheSource)
{
    struct Case {
        const char *name;
        QString preset;
        MediaTrack track;
        std::function<void(Plan &)> change;
        const char *wanted;
        const char *unwanted = nullptr;
    };
    const auto encoding = [](const std::function<void(Plan &)> &change = {}) {
        return [change](Plan &plan) {
            plan.copies = false;
            if (change)
                change(plan);
        };
    };
    const auto hdr = changed(video(u"hevc"_s), [](auto &t) {
        t.colorTransfer = u"smpte2084"_s;
        t.pixelFormat = u"yuv420p10le"_s;
        t.bitDepth = 10;
        t.masteringDisplay = u"G(13250,34500)B(7500,3000)R(34000,16000)WP(15635,16450)L(10000000,1)"_s;
        t.lightLevel = u"1000,400"_s;
    });
    const Case cases[] = {
        {"nothing but local files", u"mp4-h264"_s, video(), {}, "-protocol_whitelist file -"},
        {"faster", u"mp4-h264"_s, video(), encoding([](Plan &plan) { plan.speed = 2; }), "-preset veryfast"},
        {"a preset's own quality at its best", u"mp4-web-1080p"_s, video(),
         encoding([](Plan &plan) { plan.best = true; }), "-crf 19 "},
        {"asked quality, within the encoder's range", u"webm-vp9"_s, video(), encoding([](Plan &plan) {
             plan.rateControl = Plan::RateControl::Quality;
             plan.quality = 99;
         }),
         "-crf 63 -b:v 0"},
        {"asked quality, not that of the best", u"mp4-h264"_s, video(), encoding([](Plan &plan) {
             plan.rateControl = Plan::RateControl::Quality;
             plan.quality = 30;
             plan.best = true;
         }),
         "-crf 30 "},
        {"mirrored", u"mp4-h264"_s, video(), [](Plan &plan) { plan.mirrored = true; }, "hflip"},
        {"a mark of plain text", u"mp4-h264"_s, video(),
         [](Plan &plan) { plan.watermark = Plan::Watermark{.text = u"100 %"_s, .imagePath = {}}; }, "expansion=none"},
        {"quality that other encoders count the other way round", u"ogv"_s, video(), encoding([](Plan &plan) {
             plan.rateControl = Plan::RateControl::Quality;
             plan.quality = 1;
         }),
         "-q:v 10 "},
        {"irregular times up to the preset's limit", u"mp4-web-1080p"_s,
         changed(video(), [](auto &t) { t.isVariableRate = true; }), encoding(), "-fpsmax:v:0 60 ", "fps=2"},
        {"as often as the closest pictures where they come evenly", u"avi-mpeg4"_s,
         changed(video(),
                 [](auto &t) {
                     t.isVariableRate = true;
                     t.baseRate = 50;
                 }),
         encoding(), "fps=50"},
        {"constant where it must be", u"avi-mpeg4"_s,
         changed(video(),
                 [](auto &t) {
                     t.isVariableRate = true;
                     t.frameRate = 23;
                 }),
         encoding(), "fps=24000/1001"},
        {"HDR in units of another encoder", u"mkv-av1"_s, hdr, encoding(),
         "mastering-display=G(0.2650,0.6900)B(0.1500,0.0600)R(0.6800,0.3200)WP(0.3127,0.3290)L(1000.0000,0.0001):"
         "content-light=1000,400"},
        {"fields that stay", u"mpg-mpeg2"_s,
         changed(video(), [](auto &t) { t.fieldOrder = MediaTrack::FieldOrder::BottomFirst; }),
         [](Plan &plan) { plan.deinterlace = Plan::Deinterlace::Off; }, "-flags:v +ilme+ildct -top 0", "bwdif"},
        {"twice the pictures of what does not tell its fields", u"mkv-copy"_s, video(),
         [](Plan &plan) { plan.deinterlace = Plan::Deinterlace::DoubleRate; }, "bwdif=mode=send_field:deint=all"},
        {"fields that were seen, the lower ones first", u"mp4-h264"_s,
         changed(video(),
                 [](auto &t) {
                     t.fieldOrder = MediaTrack::FieldOrder::BottomFirst;
                     t.fieldsAreSeen = true;
                 }),
         encoding(), "setfield=bff,bwdif"},
        {"a picture in a corner", u"mp4-h264"_s, video(),
         [](Plan &plan) {
             plan.watermark = Plan::Watermark{.text = {}, .imagePath = u"/mark.png"_s};
             plan.watermark->corner = Qt::AlignBottom | Qt::AlignLeft;
         },
         "overlay=38:H-h-38"},
        {"evened out at a rate that is heard", u"mp4-h264"_s, video(), [](Plan &plan) { plan.normalizes = true; },
         "-ar:a:0 48000"},
        {"HDR of broadcasts made standard",
         u"mp4-h264"_s,
         changed(hdr, [](auto &t) { t.colorTransfer = u"arib-std-b67"_s; }),
         {},
         "tonemap"},
        {"HDR that is always to be kept", u"phone-h265"_s, hdr,
         encoding([](Plan &plan) { plan.dynamicRange = Plan::HighDynamicRange::Keep; }), "yuv420p10le", "tonemap"},
        {"HDR for the television", u"tv-2160p"_s, hdr, encoding(), "yuv420p10le"},
        {"smaller, both sides alike", u"mp4-h264"_s, video(), encoding([](Plan &plan) { plan.maximumHeight = 500; }),
         "scale=888:500,setsar=1"},
        {"turned on its side by the camera",
         u"mp4-720p"_s,
         changed(video(), [](auto &t) { t.rotation = 90; }),
         {},
         "scale=404:720,setsar=1"},
        {"cropped upright", u"mp4-h264"_s, changed(video(), [](auto &t) { t.rotation = 270; }),
         encoding([](Plan &plan) {
             plan.crop = {0.5, 0.25, 0.5, 0.5};
         }),
         "crop=540:960:540:480"},
        {"full range", u"mp4-h264"_s, changed(video(), [](auto &t) { t.colorRange = u"pc"_s; }), encoding(),
         "out_range=tv"},
        {"fading out at the new end", u"mp4-h264"_s, video(),
         [](Plan &plan) {
             plan.speedFactor = 2;
             plan.fadeOut = 3;
         },
         "fade=t=out:st=27:d=3"},
        {"and the sound with it", u"mp4-h264"_s, video(),
         [](Plan &plan) {
             plan.fadeIn = 1;
             plan.fadeOut = 3;
         },
         "afade=t=out:st=57:d=3"},
        {"louder without clipping", u"mp4-h264"_s, video(), [](Plan &plan) { plan.volume = 6; },
         "volume=6dB,alimiter=limit=0.97"},
        {"H.265 under the name that players ask for", u"mp4-h265"_s, video(), {}, "-tag:v:0 hvc1"},
        {"also in its own player", u"mov-hevc"_s, video(), {}, "-tag:v:0 hvc1"},
        {"threads", u"mp4-h264"_s, video(), encoding([](Plan &plan) { plan.threads = 3; }), "-threads 3 "},
        {"burnt text, the second of the subtitles", u"mp4-h264"_s, video(),
         [](Plan &plan) {
             plan.subtitles = {{3, Plan::SubtitleUse::Burn}};
         },
         "subtitles=filename=/films/a.mp4:si=1"},
        {"burnt text of a piece", u"mp4-h264"_s, video(),
         [](Plan &plan) {
             plan.subtitles = {{3, Plan::SubtitleUse::Burn}};
             plan.pieces = {{.start = 10, .end = 20}};
         },
         "setpts=PTS+10/TB,subtitles="},
        {"a second look takes its time", u"webm-vp9"_s, video(),
         [](Plan &plan) {
             plan.rateControl = Plan::RateControl::Size;
             plan.maximumBytes = 20'000'000;
             plan.speed = 2;
         },
         "-deadline good", "realtime"},
        {"subtitles of a file, from where the cut begins", u"mkv-h264"_s, video(),
         [](Plan &plan) {
             plan.pieces = {{.start = 10, .end = 20}};
             plan.externalSubtitles = {{.path = u"/films/a.sup"_s, .language = {}}};
         },
         "-itsoffset -10 -i file:/films/a.sup"},
        {"a language by the three letters of the target", u"mp4-h264"_s, video(),
         [](Plan &plan) { plan.externalSubtitles = {{.path = u"/a.srt"_s, .language = u"de"_s, .isForced = true}}; },
         "-disposition:s:1 forced -metadata:s:s:1 language=deu"},
        {"or by those that it has instead", u"mov-h264"_s, video(),
         [](Plan &plan) { plan.externalSubtitles = {{.path = u"/a.srt"_s, .language = u"de"_s}}; },
         "-metadata:s:s:1 language=ger"},
        {"a text that counts pictures", u"mkv-h264"_s, video(),
         [](Plan &plan) { plan.externalSubtitles = {{.path = u"/a.sub"_s, .language = {}}}; }, "-c:s:2 srt"},
        {"one palette", u"gif"_s, video(), [](Plan &plan) { plan.pieces = {{.start = 0, .end = 2}}; },
         "stats_mode=diff"},
        {"a palette each where all would fill the memory", u"gif"_s, video(), {}, "stats_mode=single"},
    };
    for (const Case &each : cases) {
        const std::string line =
            lineFor(planFor(each.preset, each.change),
                    film({each.track, sound(1), subtitle(2, u"hdmv_pgs_subtitle"_s, true), subtitle(3, u"subrip"_s)}));
        EXPECT_NE(line.find(each.wanted), std::string::npos) << each.name << ": " << line;
        if (each.unwanted) {
            EXPECT_EQ(line.find(each.unwanted), std::string::npos) << each.name << ": " << line;
        }
    }
}

TEST(TranscodeCommand, TracksGoWhereTheTargetCanHoldThem)
{
    const MediaInformation source = film({video(), sound(1, u"ger"_s),
                                          changed(sound(2, u"eng"_s, u"dts"_s),
                                                  [](auto &t) {
                                                      t.isDefault = true;
                                                      t.channels = 6;
                                                      t.channelLayout = u"5.1(side)"_s;
                                                  }),
                                          subtitle(3, u"ass"_s), subtitle(4, u"hdmv_pgs_subtitle"_s, true),
                                          changed(track(5, Kind::Attachment, u"ttf"_s), [](auto &t) {
                                              t.fileName = u"a.ttf"_s;
                                              t.mimeType = u"font/ttf"_s;
                                          })});
    const auto mp3 = stepsFor(planFor(u"mp3"_s), source);
    ASSERT_TRUE(mp3);
    EXPECT_EQ(mp3->work, TranscodeSteps::Work::Sound);
    EXPECT_NE(lineOf(*mp3).find("-map 0:2 "), std::string::npos) << "the default one is kept: " << lineOf(*mp3);
    EXPECT_EQ(lineOf(*mp3).find("-map 0:1 "), std::string::npos);
    EXPECT_TRUE(mp3->leftOut.value(0).english().contains(u"German"_s));

    const MediaInformation surround = film({video(), changed(sound(1), [](auto &t) {
                                                t.channels = 6;
                                                t.channelLayout = u"5.1"_s;
                                            })});
    const auto stereo = [](Plan &plan) { plan.mix = Plan::SoundMix::Stereo; };
    EXPECT_NE(lineFor(planFor(u"mp4-h264"_s), surround).find("-c:a:0 copy"), std::string::npos);
    EXPECT_EQ(lineFor(planFor(u"mp4-h264"_s, stereo), surround).find("-c:a:0 copy"), std::string::npos);
    const auto fine = film({changed(sound(0, {}, u"flac"_s), [](auto &t) { t.bitDepth = 24; })});
    EXPECT_NE(lineFor(planFor(u"wav"_s), fine).find("pcm_s24le"), std::string::npos);

    MediaInformation ogg = film({sound(0, u"eng"_s, u"vorbis"_s)});
    ogg.format = u"ogg"_s;
    EXPECT_NE(lineFor(planFor(u"mp3"_s), ogg).find("-map_metadata 0:s:0 "), std::string::npos) << "tags of its track";

    const auto inLanguages = [&](const QString &sounds, const QString &subtitles) {
        const auto steps = stepsFor(planFor(u"mkv-copy"_s,
                                            [&](Plan &plan) {
                                                plan.soundLanguages = sounds;
                                                plan.subtitleLanguages = subtitles;
                                            }),
                                    source);
        return steps->expected.tracks.size();
    };
    EXPECT_EQ(inLanguages({}, {}), 6);
    EXPECT_EQ(inLanguages(u"de, ja"_s, u"fr"_s), 5) << "the codes of files are others";
    const auto named = stepsFor(planFor(u"mkv-copy"_s,
                                        [](Plan &plan) {
                                            plan.soundLanguages = u"de"_s;
                                            plan.audioTracks = {1, 2};
                                        }),
                                source);
    EXPECT_EQ(named->expected.tracks.size(), 6) << "whoever names tracks gets them";
    EXPECT_EQ(inLanguages(u"ja"_s, u"none"_s), 4) << "sound that is in none of them is kept";
}

TEST(TranscodeCommand, AimsBelowTheSizeInTwoPasses)
{
    const auto steps = stepsFor(planFor(u"mp4-h264"_s, [](Plan &plan) {
        plan.rateControl = Plan::RateControl::Size;
        plan.maximumBytes = 25'000'000;
        plan.copies = false;
    }));
    ASSERT_TRUE(steps);
    ASSERT_EQ(steps->runs.size(), 2);
    const qsizetype place = steps->runs[1].arguments.indexOf(u"-b:v"_s);
    const double bits = steps->runs[1].arguments.at(place + 1).toDouble() + 160'000;
    EXPECT_LT(bits * 60 / 8, 25e6 * 0.97);
    EXPECT_GT(bits * 60 / 8, 25e6 * 0.95);

    const auto smaller = [](qint64 bytes, const QString &preset = u"mp4-h264"_s) {
        return lineFor(planFor(preset, [&](Plan &plan) {
            plan.rateControl = Plan::RateControl::Size;
            plan.maximumBytes = bytes;
        }));
    };
    EXPECT_NE(smaller(4'000'000).find("scale="), std::string::npos) << "too few bits for each sample";
    EXPECT_EQ(smaller(100'000), "refused: 0.1 MB are too few for a file of this length.");
    EXPECT_EQ(smaller(10'000'000, u"mkv-ffv1"_s), "refused: What this preset makes cannot be fitted to a size.");
}

TEST(TranscodeCommand, SaysWhyNot)
{
    const struct {
        Plan plan;
        MediaInformation source;
        const char *reason;
    } cases[] = {
        {planFor(u"mp3"_s), film({video()}), "This file has no sound to convert."},
        {planFor(u"gif"_s), film({sound(0)}), "This file has no picture to convert."},
        {planFor(u"mp4-h264"_s), film({subtitle(0, u"subrip"_s)}),
         "This file has neither picture nor sound to convert."},
        {planFor(u"mp4-h264"_s, [](Plan &p) { p.pieces = {{.start = 70, .end = 80}}; }), film(),
         "The pieces to be kept lie behind the end of the file."},
        {planFor(u"mp4-h264"_s, [](Plan &p) { p.audioTracks.emplace(); }), film({sound(0)}),
         "Nothing of this file would be kept."},
    };
    for (const auto &each : cases)
        EXPECT_EQ(lineFor(each.plan, each.source), std::string("refused: ") + each.reason);
}

TEST(TranscodeCommand, TellsTheResultsLengthAndHowFarToTrustIt)
{
    const auto seconds = [](const std::function<void(Plan &)> &change, const MediaInformation &source) {
        return stepsFor(planFor(u"mkv-copy"_s, change), source)->expected.seconds.value_or(-1);
    };
    MediaInformation longSound =
        film({changed(video(), [](auto &t) { t.duration = 50; }), changed(sound(1), [](auto &t) { t.duration = 60; })});
    EXPECT_EQ(seconds({}, longSound), 60);
    EXPECT_EQ(seconds([](Plan &p) { p.audioTracks.emplace(); }, longSound), 50);
    EXPECT_EQ(seconds(
                  [](Plan &p) {
                      p.pieces = {{.start = 10, .end = 20}, {.start = 55, .end = 100}};
                      p.speedFactor = 2;
                  },
                  film()),
              7.5);
    MediaInformation chapters = film();
    chapters.chapters = {{.start = 0, .end = 30, .title = u"one"_s}, {.start = 30, .end = 60, .title = u"two"_s}};
    const auto hastened = stepsFor(planFor(u"mkv-h264"_s, [](Plan &p) { p.speedFactor = 2; }), chapters);
    EXPECT_TRUE(hastened->files.value(u"/work/chapters.txt"_s).contains("START=15000"));
    Plan joined = planFor(u"mkv-copy"_s);
    joined.sources += u"/films/b.mp4"_s;
    EXPECT_NE(lineOf(*transcodeSteps(joined, {film(), film()}, {}, paths)).find("-map_metadata 1 "), std::string::npos)
        << "of the first file";
    const auto cut =
        stepsFor(planFor(u"mkv-copy"_s, [](Plan &p) { p.pieces = {{.start = 10, .end = 16}}, p.exactCuts = false; }));
    EXPECT_NEAR(double(cut->expectedBytes), 1'000'000, 100'000) << "a tenth of the film";
    MediaInformation stream = film();
    stream.duration.reset();
    EXPECT_EQ(seconds({}, stream), -1);
    stream.format = u"mpegts"_s;
    EXPECT_TRUE(stepsFor(planFor(u"mkv-copy"_s), stream)->expected.decodesAll);
    EXPECT_FALSE(stepsFor(planFor(u"mkv-copy"_s))->expected.decodesAll);
    EXPECT_FALSE(stepsFor(planFor(u"mkv-av1"_s), stream)->expected.decodesAll) << "what is decoded anyway";
}

TEST(TranscodeCommand, TakesTheHardwareOnlyWhereItDoesTheSame)
{
    const TranscodeMachine machine{.hardwareDevice = u"/dev/dri/renderD128"_s};
    const auto encoding = planFor(u"mp4-h264"_s, [](Plan &p) { p.copies = false; });
    const std::string line = lineFor(encoding, film(), machine);
    EXPECT_NE(line.find("-vaapi_device /dev/dri/renderD128 "), std::string::npos);
    EXPECT_NE(line.find("format=nv12,hwupload -c:v:0 h264_vaapi -qp 23"), std::string::npos) << line;
    EXPECT_TRUE(stepsFor(encoding, film(), machine)->takesShortcut);
    EXPECT_FALSE(stepsFor(withoutShortcuts(encoding), film(), machine)->takesShortcut);
    const TranscodeMachine other{.hevcDevice = u"/dev/dri/renderD129"_s};
    EXPECT_NE(lineFor(planFor(u"mp4-h265"_s), film(), other).find("-vaapi_device /dev/dri/renderD129 "),
              std::string::npos);
    for (const auto &plan : {withoutShortcuts(encoding), planFor(u"mp4-h265"_s), planFor(u"webm-vp9"_s)})
        EXPECT_EQ(lineFor(plan, film(), machine).find("vaapi"), std::string::npos);
}

TEST(TranscodeCommand, ATrialIsTenSecondsOfTheWhole)
{
    const Plan plan = planFor(u"mp4-h264"_s, [](Plan &p) {
        p.rateControl = Plan::RateControl::Size;
        p.maximumBytes = 12'000'000;
    });
    const Plan trial = trialPlan(plan, film(), 55);
    EXPECT_EQ(trial.pieces.at(0).start, 50);
    EXPECT_EQ(trial.pieces.at(0).end, 60);
    EXPECT_EQ(trial.maximumBytes, 2'000'000);
    EXPECT_TRUE(previewArguments(planFor(u"mp3"_s), film({sound(0)}), 1, {100, 100}, PreviewPicture::Result,
                                 PreviewPlace::KeyPicture)
                    .isEmpty());
}

}  // namespace kestrel
