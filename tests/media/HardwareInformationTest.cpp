#include "MediaSamples.h"

#include "media/HardwareInformation_linux.h"
#include "media/TranscoderCodecs.h"
#include "media/ui/NXHardwareInfoController.h"
#include "tests/support/TestEnvironment.h"

#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QProgressBar>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace kestrel;

namespace {

const QByteArray encoderTable =
    "Encoders:\n V..... = Video\n ------\n V....D libx264  libx264 H.264 / AVC (codec h264)\n"
    " A....D aac  AAC (codec h264)\n V..... hevc_vaapi  H.265/HEVC (VAAPI) (codec hevc)\n V\n";

TEST(HardwareInformation, ProcessorTables)
{
    const struct {
        QByteArray table;
        QString processor;
        int cores, threads;
    } rows[] = {
        {"processor\t: 0\nmodel name\t: Some  CPU\ncore id\t: 0\n\nprocessor\t: 1\ncore id\t: 0\n", u"Some CPU"_s, 1,
         2},
        {"processor : 0\nphysical id : 0\ncore id : 0\nprocessor : 1\nphysical id : 1\ncore id : 0\n", {}, 2, 2},
        {"processor\t: 0\nBogoMIPS\t: 48.00\n\nprocessor\t: 1\n", {}, 2, 2},
        {"\x80\n:\n::\n", {}, 0, 0}};
    for (const auto &[table, processor, cores, threads] : rows) {
        HardwareInformation hardware;
        readProcessorTable(table, hardware);
        EXPECT_EQ(hardware.processor, processor) << table.constData();
        EXPECT_TRUE(hardware.cores == cores && hardware.threads == threads) << table.constData();
    }
}

TEST(HardwareInformation, GraphicsDevices)
{
    const QTemporaryDir folder;
    const QString root = folder.path();
    const auto write = [](const QString &path, const QByteArray &content) {
        QDir().mkpath(QFileInfo(path).path());
        test::writeBytes(path, content);
    };
    write(root + u"/card10/device/vendor"_s, "0x8086\n");
    write(root + u"/card10/device/device"_s, "0x9a49\n");
    write(root + u"/card3/device/vendor"_s, "nonsense");
    write(root + u"/card0-HDMI-A-1/status"_s, "connected");
    ASSERT_TRUE(QDir(root).mkpath(u"i915"_s) && QFile::link(root + u"/i915"_s, root + u"/card10/device/driver"_s));
    EXPECT_EQ(graphicsDevicesIn(root), (QStringList{u"card3"_s, u"Intel 8086:9a49 (i915)"_s}));
}

TEST(HardwareInformation, CodecTables)
{
    EXPECT_EQ(parseCodecTable(encoderTable),
              (CodecNames{{u"libx264"_s, u"aac"_s, u"hevc_vaapi"_s}, {u"libx264"_s}, {u"hevc_vaapi"_s}}));
    EXPECT_EQ(parseCodecTable(" V....D libx264 (codec h264)"), std::nullopt) << "no dashes";
}

TEST(HardwareInformation, WindowLooksAnewEachTime)
{
    const QTemporaryDir folder;
    NXHardwareInfoController controller;
    QWidget window;
    window.show();
    const auto shownFor = [&](const QString &path) {
        controller.setEncoderPath(path);
        controller.presentForWindow(&window);
        auto *progress = controller.window()->findChild<QProgressBar *>();
        EXPECT_TRUE(progress->isVisible());
        EXPECT_TRUE(test::waitUntil([progress] { return progress->isHidden(); }));
        QString texts;
        for (const QLabel *label : controller.window()->findChildren<QLabel *>())
            texts += label->text() + u'\n';
        controller.onCloseAction();
        return texts;
    };
    EXPECT_TRUE(shownFor(test::makeScript(folder.filePath(u"tool"_s), "cat <<END\n" + encoderTable + "END\n"))
                    .contains(u"encoders\nlibx264\n"_s));
    const QString second = shownFor(folder.filePath(u"none"_s));
    EXPECT_TRUE(second.contains(u"The transcoder is missing."_s) && !second.contains(u"encoders"_s));
}

}  // namespace
