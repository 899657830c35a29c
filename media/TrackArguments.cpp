#include "TrackArguments.h"

#include "MediaProber.h"

#include "FilterText.h"

#include "foundation/LanguageTags.h"

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using Plan = TranscodePlan;
using Kind = MediaTrack::Kind;

/// Pictures without a time of their own cannot be kept; these containers may have such.
bool mayLackTimes(const QString &format)
{
    for (const char *name : {"avi", "mpeg", "mpegvideo", "h264", "hevc", "m4v", "vob", "mpegts"}) {
        if (format.split(u',').contains(QLatin1StringView(name)))
            return true;
    }
    return false;
}

QString dispositionText(const MediaTrack &track)
{
    QStringList flags;
    if (track.isDefault)
        flags << u"default"_s;
    if (track.isForced)
        flags << u"forced"_s;
    flags += track.roles;
    return flags.isEmpty() ? u"0"_s : flags.join(u'+');
}

/// Where the tags of the whole file stand; Ogg has them with its tracks.
QString tagPlace(const MediaInformation &source)
{
    return source.format == "ogg"_L1 ? u"0:s:0"_s : u"0"_s;
}

/// As the container takes it. QuickTime has a list of its own, whose codes are not all those of today.
QString languageCode(const Container &container, const QString &language)
{
    static constexpr std::pair<const char *, const char *> listed[] = {
        {"deu", "ger"}, {"nld", "dut"}, {"swe", "sve"}, {"ell", "gre"}, {"isl", "ice"}, {"zho", "chi"},
        {"sqi", "alb"}, {"mkd", "mac"}, {"hye", "arm"}, {"kat", "geo"}, {"bod", "tib"}, {"mya", "bur"},
        {"msa", "may"}, {"cym", "wel"}, {"eus", "baq"}, {"hrv", "hr "}, {"fas", "iri"}, {"srp", "sr "}};
    if (!container.has(Container::HandlerNames))
        return language;
    const QString code = foundation::isoLanguageCode(language);
    for (const auto &[usual, own] : listed) {
        if (QLatin1StringView(container.muxer) == "mov"_L1 && code == QLatin1StringView(usual))
            return QString::fromLatin1(own);
    }
    return code.isEmpty() ? language : code;
}

QStringList trackTags(const TrackPlan &tracks, const MediaTrack &track, const QString &specifier)
{
    QStringList arguments;
    if (!tracks.container->has(Container::TrackNames))
        return {};
    const QString option = u"-metadata:s:"_s + specifier;
    if (!track.language.isEmpty())
        arguments << option << u"language="_s + languageCode(*tracks.container, track.language);
    if (!track.title.isEmpty()) {
        arguments << option << u"title="_s + track.title;
        if (tracks.container->has(Container::HandlerNames))
            arguments << option << u"handler_name="_s + track.title;
    }
    return arguments;
}

}  // namespace

QStringList commonHead()
{
    return tableWords(
        "-hide_banner -nostdin -nostats -loglevel repeat+level+verbose -progress pipe:1 "
        "-stats_period 0.2 -y");
}

QStringList commonTail(const TrackPlan &tracks, const QString &output)
{
    QStringList arguments{u"-dn"_s, u"-max_muxing_queue_size"_s, u"4096"_s};
    arguments += tableWords(tracks.container->arguments);
    return arguments << u"-f"_s << QString::fromLatin1(tracks.container->muxer) << u"file:"_s + output;
}

QStringList pieceInput(const SourcePiece &piece, const MediaInformation &source, const QString &path,
                       bool copiesPictures)
{
    QStringList arguments = inputOptions();  // so that tracks have the numbers by which the plan calls them
    if (copiesPictures && mayLackTimes(source.format))
        arguments << u"-fflags"_s << u"+genpts"_s;
    if (piece.start && *piece.start > 0)
        arguments << u"-ss"_s << numberText(*piece.start);
    if (piece.end)
        arguments << u"-to"_s << numberText(*piece.end);
    return arguments << u"-i"_s << u"file:"_s + path;
}

QStringList subtitleArguments(const Plan &plan, const TrackPlan &tracks, const QStringList &maps,
                              const std::optional<CueTimes> &times)
{
    QStringList arguments;
    for (int number = 0; number < tracks.subtitles.size(); ++number) {
        const SubtitleTrackPlan &subtitle = tracks.subtitles.at(number);
        const QString specifier = u"s:%1"_s.arg(number);
        arguments << u"-map"_s << maps.at(number) << u"-c:"_s + specifier << subtitle.encoder;
        if (times)
            arguments << u"-bsf:"_s + specifier << cueFilter(*times, subtitle.source && subtitle.source->isBitmap);
        if (subtitle.source) {
            arguments << u"-disposition:"_s + specifier << dispositionText(*subtitle.source);
            arguments += trackTags(tracks, *subtitle.source, specifier);
        } else {
            MediaTrack track;
            // People and names of files say "de", where containers want three letters.
            const QString &language = plan.externalSubtitles.at(subtitle.file).language;
            const QString code = foundation::isoLanguageCode(language);
            track.language = code.isEmpty() ? language : code;
            track.isForced = plan.externalSubtitles.at(subtitle.file).isForced;
            arguments << u"-disposition:"_s + specifier << dispositionText(track);
            arguments += trackTags(tracks, track, specifier);
        }
    }
    return arguments;
}

QStringList companionArguments(const TrackPlan &tracks, const QString &coverPath)
{
    QStringList arguments;
    for (const MediaTrack *file : tracks.attachments)
        arguments << u"-map"_s << u"0:%1"_s.arg(file->index);
    if (!tracks.attachments.isEmpty())
        arguments << u"-c:t"_s << u"copy"_s;
    if (!coverPath.isEmpty()) {
        const bool isPng = coverPath.endsWith(".png"_L1);
        const QString option = u"-metadata:s:t:%1"_s.arg(tracks.attachments.size());
        arguments << u"-attach"_s << u"file:"_s + coverPath << option
                  << (isPng ? u"mimetype=image/png"_s : u"mimetype=image/jpeg"_s) << option
                  << (isPng ? u"filename=cover.png"_s : u"filename=cover.jpg"_s);
    } else if (!tracks.covers.isEmpty() && tracks.container->has(Container::Covers)) {
        const QString specifier = tracks.video ? u"v:1"_s : u"v:0"_s;
        arguments << u"-map"_s << u"0:%1"_s.arg(tracks.covers.first()->index) << u"-c:"_s + specifier << u"copy"_s
                  << u"-disposition:"_s + specifier << u"attached_pic"_s;
    }
    return arguments;
}

QStringList tagArguments(const Plan &, const TrackPlan &tracks, const MediaInformation &source, int chapters)
{
    QStringList arguments{u"-map_metadata"_s, tagPlace(source), u"-map_chapters"_s, QString::number(chapters)};
    if (tracks.video) {
        arguments += trackTags(tracks, *tracks.video->source, u"v:0"_s);
        // Some players take HEVC only as hvc1, not as hev1.
        const QString muxer = QString::fromLatin1(tracks.container->muxer);
        if (tracks.video->codec == "hevc"_L1 && (muxer == "mp4"_L1 || muxer == "mov"_L1 || muxer == "ipod"_L1))
            arguments << u"-tag:v:0"_s << u"hvc1"_s;
        // Most containers ask for this by themselves.
        const bool needsStartCodes = muxer == "wtv"_L1;
        if (needsStartCodes && !tracks.video->encoder && tracks.video->codec == "h264"_L1)
            arguments << u"-bsf:v:0"_s << u"h264_mp4toannexb"_s;
    }
    for (int number = 0; number < tracks.sounds.size(); ++number) {
        const MediaTrack &track = *tracks.sounds.at(number).source;
        arguments << u"-disposition:a:%1"_s.arg(number) << dispositionText(track);
        arguments += trackTags(tracks, track, u"a:%1"_s.arg(number));
    }
    // Cameras write these under names of their own, which other containers do not know.
    constexpr std::pair<QLatin1StringView, QLatin1StringView> cameraTags[] = {
        {"com.apple.quicktime.location.iso6709"_L1, "location"_L1},
        {"com.apple.quicktime.creationdate"_L1, "creation_time"_L1},
        {"com.apple.quicktime.make"_L1, "make"_L1},
        {"com.apple.quicktime.model"_L1, "model"_L1}};
    for (const auto &[own, known] : cameraTags) {
        if (const QString text = source.tags.value(own); !text.isEmpty() && !source.tags.contains(known))
            arguments << u"-metadata"_s << known + u'=' + text;
    }
    return arguments;
}

QList<OutputExpectation::Track> expectedTracks(const TrackPlan &tracks)
{
    QList<OutputExpectation::Track> expected;
    if (tracks.video)
        expected.append({Kind::Video, tracks.video->codec});
    for (const SoundTrackPlan &sound : tracks.sounds)
        expected.append({Kind::Audio, sound.codec});
    for (const SubtitleTrackPlan &subtitle : tracks.subtitles)
        expected.append({Kind::Subtitle, subtitle.codec});
    for (const MediaTrack *file : tracks.attachments)
        expected.append({Kind::Attachment, file->codec});
    for (const MediaTrack *cover : tracks.covers)
        expected.append({Kind::Cover, cover->codec});
    return expected;
}

}  // namespace kestrel
