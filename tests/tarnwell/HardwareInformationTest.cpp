#include "HardwareInformation_linux.h"
#include "NXHardwareInfoController.h"
#include "TestEnvironment.h"
#include "TranscoderCodecs.h"

#include <QClipboard>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace kestrel;
using namespace kestrel::tarnwell;

namespace {

const QByteArray encoderTable =
    "Encoders:\n V..... = Video\n .F.... = Frame-level multithreading\n ------\n"
    " V....D libx264              libx264 H.264 / AVC (codec h264)\n"
    " A....D aac                  AAC (codec h264)\n"
    " V..... hevc_vaapi           H.265/HEVC (VAAPI) (codec hevc)\n"
    " V....D mpeg4                MPEG-4 video\n V\n";

TEST(HardwareInformation, ProcessorTables)
{
    const struct {
        const char *name;
        QByteArray table;
        QString processor;
        int cores;
        int threads;
    } cases[] = {
        {"threads share cores",
         "processor\t: 0\nmodel name\t: Some  CPU\nphysical id\t: 0\ncore id\t: 0\n\n"
         "processor\t: 1\nmodel name\t: Some  CPU\nphysical id\t: 0\ncore id\t: 0\n",
         u"Some CPU"_s, 1, 2},
        {"cores are numbered in each package",
         "processor : 0\nphysical id : 0\ncore id : 0\nprocessor : 1\nphysical id : 1\ncore id : 0\n", QString(), 2, 2},
        {"no cores told", "processor\t: 0\nBogoMIPS\t: 48.00\n\nprocessor\t: 1\n", QString(), 2, 2},
        {"nothing", "", QString(), 0, 0},
        {"no table", "\x80\n:\n::\n", QString(), 0, 0},
    };
    for (const auto &[name, table, processor, cores, threads] : cases) {
        HardwareInformation hardware;
        readProcessorTable(table, hardware);
        EXPECT_EQ(hardware.processor, processor) << name;
        EXPECT_EQ(hardware.cores, cores) << name;
        EXPECT_EQ(hardware.threads, threads) << name;
    }
}

void writeFile(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

TEST(HardwareInformation, GraphicsDevices)
{
    const QTemporaryDir folder;
    const QString root = folder.path();
    EXPECT_EQ(graphicsDevicesIn(root + u"/none"_s), QStringList());
    writeFile(root + u"/card0/device/vendor"_s, "0x8086\n");
    writeFile(root + u"/card0/device/device"_s, "0x9a49\n");
    ASSERT_TRUE(QDir().mkpath(root + u"/i915"_s));
    ASSERT_TRUE(QFile::link(root + u"/i915"_s, root + u"/card0/device/driver"_s));
    writeFile(root + u"/card10/device/vendor"_s, "0xffff\n");
    writeFile(root + u"/card10/device/device"_s, "0x0001\n");
    ASSERT_TRUE(QDir().mkpath(root + u"/card2/device"_s));
    ASSERT_TRUE(QFile::link(root + u"/i915"_s, root + u"/card2/device/driver"_s));
    writeFile(root + u"/card3/device/vendor"_s, "nonsense");
    writeFile(root + u"/card0-HDMI-A-1/status"_s, "connected");
    EXPECT_EQ(graphicsDevicesIn(root),
              (QStringList{u"Intel 8086:9a49 (i915)"_s, u"i915"_s, u"card3"_s, u"ffff:0001"_s}));
}

TEST(HardwareInformation, CodecTables)
{
    EXPECT_EQ(parseCodecTable(encoderTable), (CodecNames{{u"libx264"_s}, {u"hevc_vaapi"_s}}));
    EXPECT_EQ(parseCodecTable(" ------\r\n VFS..D h264   H.264\r\n VFS..D hevc  HEVC\r\n V h (codec h264\n"),
              (CodecNames{{u"h264"_s}, {u"hevc"_s}}));
    for (const QByteArray &table :
         {QByteArray(), QByteArray("usage: tool"), QByteArray(" V....D libx264 (codec h264)")})
        EXPECT_EQ(parseCodecTable(table), std::nullopt) << table.constData();
}

TEST(HardwareInformation, RowsSayWhatIsUnknown)
{
    const TranscoderCodecs none = {{}, {}, u"No transcoder."_s};
    EXPECT_EQ(
        hardwareText(hardwareRows({u"CPU"_s, 2, 4, 3LL << 30, {u"A"_s, u"B"_s}}, {{{u"x"_s, u"y"_s}, {}}, {}, {}})),
        u"Processor: CPU\nCores: 2 (4 threads)\nMemory: 3.0 GB\nGraphics: A, B\nH.264 encoders: x, y\n"
        "H.264 decoders: None\nHEVC encoders: None\nHEVC decoders: None\n"_s);
    EXPECT_EQ(
        hardwareText(hardwareRows({}, none)),
        u"Processor: Unknown\nCores: Unknown\nMemory: Unknown\nGraphics: None found\nTranscoder: No transcoder.\n"_s);
}

/// A program that does what `script` says.
QString makeTool(const QTemporaryDir &folder, const QByteArray &script)
{
    const QString path = folder.filePath(u"tool"_s);
    writeFile(path, "#!/bin/sh\n" + script);
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
}

TEST(HardwareInformation, TranscodersThatDoNotAnswer)
{
    const QTemporaryDir folder;
    const QString missing = u"The transcoder is missing. Please install the application again."_s;
    const QString silent = u"The transcoder did not answer as it should."_s;
    EXPECT_EQ(askTranscoder({}).failure, missing);
    EXPECT_EQ(askTranscoder(folder.path()).failure, missing);
    EXPECT_EQ(askTranscoder(folder.filePath(u"tool"_s)).failure, missing);
    QElapsedTimer clock;
    clock.start();
    for (const char *script : {"exec sleep 60", "exec yes", "while :; do echo; done", "exit 3", "echo '------' >&2"})
        EXPECT_EQ(askTranscoder(makeTool(folder, script), std::chrono::milliseconds(300)).failure, silent) << script;
    EXPECT_LT(clock.elapsed(), 5000);
}

TEST(HardwareInformation, WindowShowsAndCopies)
{
    const QTemporaryDir folder;
    NXHardwareInfoController controller;
    QWidget window;
    window.show();
    const auto value = [&controller](const QString &label) {
        const auto labels = controller.window()->findChildren<QLabel *>();
        for (int i = 0; i + 1 < labels.size(); ++i)
            if (labels[i]->text() == label)
                return labels[i + 1]->text();
        return QString();
    };
    const auto present = [&](const QString &path) {
        controller.setEncoderPath(path);
        controller.presentForWindow(&window);
        auto *progress = controller.window()->findChild<QProgressBar *>();
        EXPECT_TRUE(progress->isVisible());
        EXPECT_TRUE(test::waitUntil([progress] { return progress->isHidden(); }));
    };
    present(makeTool(folder, "cat <<END\n" + encoderTable + "END\n"));
    EXPECT_EQ(value(u"H.264 encoders"_s), u"libx264"_s);
    EXPECT_NE(value(u"Cores"_s), u"Unknown"_s);
    controller.window()->findChild<QPushButton *>(u"copyButton"_s)->click();
    EXPECT_TRUE(QGuiApplication::clipboard()->text().contains(u"\nHEVC encoders: hevc_vaapi\n"_s));
    controller.window()->findChild<QPushButton *>(u"closeButton"_s)->click();
    EXPECT_FALSE(controller.isPresented());

    present(folder.filePath(u"none"_s));  // looks anew, and the rows of before are gone
    EXPECT_EQ(value(u"Transcoder"_s), u"The transcoder is missing. Please install the application again."_s);
    EXPECT_EQ(value(u"H.264 encoders"_s), QString());
}

}  // namespace
