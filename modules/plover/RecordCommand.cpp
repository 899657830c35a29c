#include "RecordCommand.h"

#include "media/Encoders.h"
#include "tarnwell/SystemInformation.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

struct Coding {
    const char *preset;
    const char *quality;   ///< of x264, the smaller the better
    const char *hardware;  ///< of encoders in hardware, likewise
    const char *soundBitRate;
};

// By quality. Each keeps up with 30 pictures a second of 1920 × 1080 on two processors; the better ones take more of
// the disk, not of the processor.
constexpr std::array<Coding, 3> codings = {{{"veryfast", "28", "-qp 28", "96k"},
                                            {"superfast", "23", "-qp 23", "160k"},
                                            {"superfast", "17", "-qp 19", "256k"}}};

QString number(double value)
{
    return QString::number(value, 'f', 6).remove(QRegularExpression(u"\\.?0+$"_s));
}

QString size(QSize size)
{
    return u"%1x%2"_s.arg(size.width()).arg(size.height());
}

/// What is read ahead of the encoder: few pictures, which are large, and so much sound that none is ever lost.
constexpr const char *picturesAhead = "12", *soundsAhead = "4096";

QStringList cameraInput(const RecordPlan &plan, const CaptureTarget &target)
{
    QStringList arguments{u"-thread_queue_size"_s, QLatin1StringView(picturesAhead)};
    if (!target.generator.isEmpty())  // in real time by itself: -re counts from other times than those of the clock
        return arguments + QStringList{u"-use_wallclock_as_timestamps"_s, u"1"_s, u"-f"_s, u"lavfi"_s, u"-i"_s,
                                       target.generator + u",realtime"_s};
    return arguments + QStringList{u"-f"_s,         u"v4l2"_s,         u"-timestamps"_s, u"abs"_s,
                                   u"-framerate"_s, number(plan.rate), u"-i"_s,          target.camera};
}

QStringList pictureInput(const RecordPlan &plan, const CaptureTarget &target)
{
    if (target.display.isEmpty() && !target.isShared)
        return cameraInput(plan, target);
    QStringList arguments{u"-thread_queue_size"_s, QLatin1StringView(picturesAhead)};
    if (target.isShared)  // what its first picture is like must be looked at
        return arguments + QStringList{u"-analyzeduration"_s, u"0"_s, u"-f"_s, u"matroska"_s, u"-i"_s, u"pipe:0"_s};
    arguments += {u"-probesize"_s,
                  u"32"_s,
                  u"-analyzeduration"_s,
                  u"0"_s,
                  u"-f"_s,
                  u"x11grab"_s,
                  u"-framerate"_s,
                  number(plan.rate),
                  u"-video_size"_s,
                  size(target.area.size()),
                  u"-draw_mouse"_s,
                  plan.pointer ? u"1"_s : u"0"_s};
    if (target.window != 0)
        arguments += {u"-window_id"_s, QString::number(target.window)};
    return arguments + QStringList{u"-grab_x"_s, QString::number(target.area.x()),
                                   u"-grab_y"_s, QString::number(target.area.y()),
                                   u"-i"_s,      target.display};
}

bool hasInset(const RecordPlan &plan, const CaptureTarget &target)
{
    const bool hasCamera = !target.camera.isEmpty() || !target.generator.isEmpty();
    return plan.inset && hasCamera && plan.what != RecordPlan::What::Camera;
}

QStringList soundInput(const QString &source, bool isSilent)
{
    if (isSilent)
        return {u"-use_wallclock_as_timestamps"_s,        u"1"_s, u"-f"_s, u"lavfi"_s, u"-i"_s,
                u"anullsrc=r=48000:cl=stereo,arealtime"_s};
    return {u"-thread_queue_size"_s,
            QLatin1StringView(soundsAhead),
            u"-probesize"_s,
            u"32"_s,
            u"-analyzeduration"_s,
            u"0"_s,
            u"-f"_s,
            u"pulse"_s,
            u"-name"_s,
            u"Kestrel"_s,
            u"-stream_name"_s,
            u"Recording"_s,
            u"-sample_rate"_s,
            u"48000"_s,
            u"-channels"_s,
            u"2"_s,
            u"-i"_s,
            source};
}

struct Graph {
    QString text;
    QStringList outputs;
};

/// Without delay in the encoder nothing is lost with it.
QStringList pictureCoding(const RecordPlan &plan, const RecordStretch &stretch)
{
    const Coding &coding = codings.at(size_t(plan.quality));
    if (!stretch.hardwareDevice.isEmpty())
        return tableWords(tarnwell::hardwareEncoderArguments.encoder) + tableWords(coding.hardware) +
               tableWords("-bf 0");
    return {u"-c:v"_s,  u"libx264"_s,     u"-preset"_s, QLatin1StringView(coding.preset),
            u"-tune"_s, u"zerolatency"_s, u"-crf"_s,    QLatin1StringView(coding.quality)};
}

/// `pictures` is the number of the input that has them; the sounds are the first ones.
Graph graph(const RecordPlan &plan, const RecordStretch &stretch, int pictures)
{
    const QString begin = QString::number(double(stretch.begin.count()) / 1e6, 'f', 6);
    QStringList chains;
    QStringList sounds;
    for (int input = 0; input < pictures; ++input) {
        sounds.append(u"[a%1]"_s.arg(input));
        // Sound devices have clocks of their own, and the first times that the sound server tells are unsettled: the
        // sound is stretched until it is in step. Without `res` the resampler comes in the midst and forgets the step.
        // What comes late is silence (`first_pts`), so that the tracks of every stretch begin together.
        chains.append(
            u"[%1:a]asetpts=PTS-%2/TB,atrim=start=0,aresample=async=1000:first_pts=0:flags=res%3"_s.arg(input).arg(
                begin, sounds.last()));
    }
    if (sounds.size() > 1 && !plan.separateTracks) {
        chains.append(sounds.join(QString()) + u"amix=inputs=2:duration=longest:normalize=0[a]"_s);
        sounds = QStringList{u"[a]"_s};
    }
    QString chain = u"[%1:v]setpts=PTS-%2/TB,trim=start=0,"_s.arg(pictures).arg(begin);
    const QSize own = stretch.target.area.size();
    if (!stretch.size.isEmpty() && stretch.size != own)
        chain += u"scale=%1:%2:force_original_aspect_ratio=decrease,pad=%1:%2:-1:-1,"_s.arg(stretch.size.width())
                     .arg(stretch.size.height());
    else if (own.isEmpty())
        chain += u"crop=trunc(iw/2)*2:trunc(ih/2)*2,"_s;
    // What the encoder in hardware takes.
    const QString last = stretch.hardwareDevice.isEmpty()
                             ? u"[v]"_s
                             : u","_s + QLatin1StringView(tarnwell::hardwareEncoderArguments.filter) + u"[v]"_s;
    const QString encoded = u"scale=flags=fast_bilinear:out_color_matrix=bt709:out_range=tv,format=yuv420p"_s;
    // ffmpeg's way from bgr0 to yuv420p takes twice the processor time of that from bgr24.
    if (plan.what != RecordPlan::What::Camera)
        chain += u"format=bgr24,"_s;
    if (!hasInset(plan, stretch.target)) {
        chains.append(chain + encoded + last);
    } else {
        // Converted before it is overlaid, so that both have the same colours; when the camera ends, the screen goes
        // on.
        chains.append(chain + encoded + u"[screen]"_s);
        chains.append(u"[%1:v]setpts=PTS-%2/TB,%3[camera]"_s.arg(pictures + 1).arg(begin, encoded));
        chains.append(u"[camera][screen]scale2ref=w=trunc(iw*%1/2)*2:h=trunc(ow/mdar/2)*2[inset][ground]"_s.arg(
            number(plan.inset->width)));
        chains.append(
            u"[ground][inset]overlay=x=clip(W*%1\\,0\\,max(0\\,W-w)):y=clip(H*%2\\,0\\,max(0\\,H-h)):eof_action=pass:format=yuv420%3"_s
                .arg(number(plan.inset->x), number(plan.inset->y), last));
    }
    return {chains.join(u';'), QStringList{u"[v]"_s} + sounds};
}

}  // namespace

QStringList soundSources(const RecordPlan &plan)
{
    using enum RecordPlan::Sound;
    QStringList sources;
    if (plan.sound == System || plan.sound == Both)
        sources.append(u"@DEFAULT_MONITOR@"_s);
    if (plan.sound == Microphone || plan.sound == Both)
        sources.append(plan.microphone.isEmpty() ? u"@DEFAULT_SOURCE@"_s : plan.microphone);
    return sources;
}

QStringList usualDeviceArguments(const RecordPlan &plan)
{
    const QString usual = soundSources(plan).value(0);
    if (!usual.startsWith(u'@'))
        return {};
    const bool isPlayed = plan.sound != RecordPlan::Sound::Microphone;
    return {u"-hide_banner"_s, isPlayed ? u"-sinks"_s : u"-sources"_s, u"pulse"_s};
}

QString usualDeviceIn(const QByteArray &told)
{
    for (const QByteArray &line : told.split('\n')) {
        if (line.startsWith("* "))
            return QString::fromUtf8(line).section(u' ', 1, 1);
    }
    return {};
}

QList<Microphone> microphonesIn(const QByteArray &told)
{
    // "* alsa_input.usb-1 [Headset] (none)", where the star marks the usual one
    static const QRegularExpression row(u"^[* ] (\\S+) \\[(.*)\\]( \\([^)]*\\))?$"_s);
    QList<Microphone> microphones;
    for (const QByteArray &line : told.split('\n')) {
        const QRegularExpressionMatch match = row.match(QString::fromUtf8(line));
        if (match.hasMatch() && !match.captured(1).endsWith(u".monitor"))  // what the computer plays
            microphones.append({match.captured(1), match.captured(2)});
    }
    return microphones;
}

QStringList recordArguments(const RecordPlan &plan, const RecordStretch &stretch)
{
    QStringList arguments{u"-hide_banner"_s, u"-nostdin"_s, u"-y"_s,        u"-loglevel"_s, u"repeat+level+warning"_s,
                          u"-nostats"_s,     u"-copyts"_s,  u"-progress"_s, u"pipe:1"_s,    u"-stats_period"_s,
                          u"0.25"_s};
    if (!stretch.hardwareDevice.isEmpty())
        arguments += {QLatin1StringView(tarnwell::hardwareEncoderArguments.device), stretch.hardwareDevice};
    const QStringList sources = soundSources(plan);
    for (const QString &source : sources)
        arguments += soundInput(source, stretch.isSilent);
    arguments += pictureInput(plan, stretch.target);
    if (hasInset(plan, stretch.target))
        arguments += cameraInput(plan, stretch.target);
    const auto [text, outputs] = graph(plan, stretch, int(sources.size()));
    arguments += {u"-filter_complex"_s, text};
    for (const QString &output : outputs)
        arguments += {u"-map"_s, output};
    // A constant rate plays and edits everywhere.
    arguments += pictureCoding(plan, stretch);
    arguments += {u"-g"_s,
                  QString::number(std::lround(plan.rate * 2)),
                  u"-colorspace"_s,
                  u"bt709"_s,
                  u"-color_primaries"_s,
                  u"bt709"_s,
                  u"-color_trc"_s,
                  u"bt709"_s,
                  u"-fps_mode"_s,
                  u"cfr"_s,
                  u"-r"_s,
                  number(plan.rate)};
    if (!sources.isEmpty())
        arguments += {u"-c:a"_s, u"aac"_s, u"-b:a"_s, QLatin1StringView(codings.at(size_t(plan.quality)).soundBitRate)};
    if (stretch.seconds > 0)
        arguments += {u"-t"_s, number(stretch.seconds)};
    return arguments + QStringList{u"-shortest"_s, u"-f"_s,
                                   u"matroska"_s,  u"-cluster_time_limit"_s,
                                   u"400"_s,       u"-flush_packets"_s,
                                   u"1"_s,         u"file:"_s + stretch.output};
}

QStringList soundInputArguments(const RecordPlan &plan)
{
    QStringList arguments{u"-hide_banner"_s, u"-nostdin"_s, u"-loglevel"_s, u"error"_s};
    for (const QString &source : soundSources(plan))
        arguments += soundInput(source, false);
    return arguments;
}

QStringList soundProbeArguments(const RecordPlan &plan)
{
    return soundInputArguments(plan) + QStringList{u"-t"_s, u"0.1"_s, u"-f"_s, u"null"_s, u"-"_s};
}

QStringList cameraPictureArguments(const CaptureTarget &camera, const QString &output)
{
    RecordPlan plan;
    return QStringList{u"-hide_banner"_s, u"-nostdin"_s, u"-y"_s, u"-loglevel"_s, u"error"_s, u"-nostats"_s} +
           cameraInput(plan, camera) +
           QStringList{u"-vf"_s, u"fps=4,scale=480:-2"_s, u"-f"_s, u"image2"_s,        u"-update"_s,
                       u"1"_s,   u"-atomic_writing"_s,    u"1"_s,  u"file:"_s + output};
}

QStringList framesArguments(const RecordPlan &plan, QSize pictures, int connection, quint32 node,
                            const QString &snapshot)
{
    QStringList arguments{u"--fd"_s,   QString::number(connection), u"--node"_s,     QString::number(node),
                          u"--rate"_s, number(plan.rate),           u"--snapshot"_s, snapshot};
    if (!pictures.isEmpty())
        arguments += {u"--size"_s, size(pictures)};
    return arguments;
}

QStringList finishArguments(const QString &list, const QString &output)
{
    return {u"-hide_banner"_s,
            u"-nostdin"_s,
            u"-y"_s,
            u"-loglevel"_s,
            u"repeat+level+warning"_s,
            u"-nostats"_s,
            u"-f"_s,
            u"concat"_s,
            u"-safe"_s,
            u"0"_s,
            u"-i"_s,
            u"file:"_s + list,
            u"-map"_s,
            u"0"_s,
            u"-c"_s,
            u"copy"_s,
            u"file:"_s + output};
}

QStringList stretchSpanArguments(const QString &stretch)
{
    return {u"-v"_s,  u"error"_s, u"-show_entries"_s,  u"stream=codec_type,start_time:stream_tags=DURATION"_s,
            u"-of"_s, u"json"_s,  u"file:"_s + stretch};
}

StretchSpan stretchSpan(const QByteArray &told)
{
    StretchSpan span;
    const QJsonArray streams = QJsonDocument::fromJson(told).object()["streams"_L1].toArray();
    for (const QJsonValue &stream : streams) {
        // "00:00:04.354000000"
        const QStringList parts = stream["tags"_L1]["DURATION"_L1].toString().split(u':');
        const double end =
            parts.size() == 3 ? parts[0].toDouble() * 3600 + parts[1].toDouble() * 60 + parts[2].toDouble() : 0;
        if (stream["codec_type"_L1] == "video"_L1) {
            span.begin = stream["start_time"_L1].toString().toDouble();
            span.picturesEnd = end;
        } else {
            span.soundEnd = span.soundEnd > 0 ? std::min(span.soundEnd, end) : end;
        }
    }
    return span;
}

double joiningEnd(const StretchSpan &span, double rate)
{
    constexpr double packet = 1024.0 / 48000, rounding = 0.0005;
    constexpr int pictures = 4;  // of the last, whichever fits best: what is left over does not add up
    constexpr double together = 1;
    if (span.picturesEnd <= 0 || span.soundEnd <= 0)
        return span.picturesEnd;
    // Where one of them has ended long before, the pictures are what counts.
    const bool haveEndedTogether = std::abs(span.picturesEnd - span.soundEnd) < together;
    const double end = haveEndedTogether ? std::min(span.picturesEnd, span.soundEnd) : span.picturesEnd;
    const double last = std::floor((end - span.begin) * rate + rounding);
    double best = end - span.begin, bestRest = packet;
    for (double number = last; number > std::max(last - pictures, 0.0); --number) {
        const double picture = number / rate;
        const double sound = std::floor((picture + rounding) / packet) * packet;
        if (picture - sound < bestRest) {
            best = sound;
            bestRest = picture - sound;
        }
    }
    return span.begin + best;
}

QByteArray joinList(const QStringList &stretches, const QList<StretchSpan> &spans, double rate)
{
    QByteArray list = "ffconcat version 1.0\n";
    for (qsizetype number = 0; number < stretches.size(); ++number) {
        QString path = stretches[number];
        list += "file 'file:" + path.replace(u"'"_s, u"'\\''"_s).toUtf8() + "'\n";
        const StretchSpan span = spans.value(number);
        const double end = number + 1 < stretches.size() ? joiningEnd(span, rate) : 0;
        if (number > 0 && span.begin > 0)
            list += "inpoint " + QByteArray::number(span.begin, 'f', 3) + '\n';
        if (end > 0)  // in the file's own thousandths, so that what begins there is left out
            list += "outpoint " + QByteArray::number(end, 'f', 3) + '\n';
    }
    return list;
}

QList<OutputExpectation::Track> recordedTracks(const RecordPlan &plan)
{
    QList<OutputExpectation::Track> tracks{{MediaTrack::Kind::Video, u"h264"_s}};
    const qsizetype sounds = soundSources(plan).size();
    for (qsizetype number = 0; number < (plan.separateTracks ? sounds : std::min<qsizetype>(sounds, 1)); ++number)
        tracks.append({MediaTrack::Kind::Audio, u"aac"_s});
    return tracks;
}

}  // namespace kestrel
