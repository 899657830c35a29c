#include "CueTimes.h"

#include "SubtitleFile.h"

#include "foundation/LanguageTags.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kestrel {

namespace {

using Plan = TranscodePlan;
using Kind = MediaTrack::Kind;
using tarnwell::operator""_key;

constexpr const char *readableText =
    "subrip srt ass ssa mov_text webvtt text eia_608 microdvd sami realtext subviewer "
    "subviewer1 jacosub mpl2 pjs vplayer stl";

/// ffmpeg's name of the encoder; null where the container cannot hold such subtitles.
QString subtitleEncoder(const Container &container, const QString &codec, bool isBitmap)
{
    if (isBitmap)
        return tableWords(container.bitmaps).contains(codec) ? u"copy"_s : QString();
    if (tableWords(container.keptText).contains(codec))
        return u"copy"_s;
    return container.text && tableWords(readableText).contains(codec) ? QString::fromLatin1(container.text) : QString();
}

QString attachmentName(const MediaTrack &track)
{
    return track.fileName.isEmpty() ? u"#%1"_s.arg(track.index) : track.fileName;
}

QString subtitleCodec(const QString &encoder, const QString &source)
{
    return encoder == "copy"_L1 ? source : encoder == "srt"_L1 ? u"subrip"_s : encoder;
}

class Companions {
public:
    Companions(TrackPlan &tracks, const Plan &plan, const QList<MediaInformation> &sources,
               const TranscodeMachine &machine)
        : m_tracks(tracks),
          m_plan(plan),
          m_sources(sources),
          m_machine(machine)
    {
    }

    void plan()
    {
        for (const MediaTrack &track : m_sources.first().tracks) {
            if (track.kind == Kind::Subtitle) {
                planSubtitle(track);
                ++m_number;
            } else if (track.kind == Kind::Cover) {
                planCover(track);
            } else if (track.kind == Kind::Attachment) {
                planAttachment(track);
            }
        }
        for (int file = 0; file < m_plan.externalSubtitles.size(); ++file)
            planSubtitleFile(file);
        for (qsizetype number = 1; number < m_sources.size(); ++number)
            leaveOutOfLater(number);
        planChapters();
    }

private:
    QString containerName() const { return QString::fromLatin1(m_tracks.container->name); }
    void leaveOut(tarnwell::TextKey key, const QString &name)
    {
        m_tracks.leftOut.append({key, {name, containerName()}});
    }

    bool isAttached(const MediaTrack &track) const
    {
        const auto isSame = [&](const MediaTrack *file) { return file->fileName == track.fileName; };
        return std::ranges::any_of(m_tracks.attachments, isSame);
    }

    /// Of joined files only the first brings such along.
    void leaveOutOfLater(qsizetype number)
    {
        const QString file = m_plan.sources.at(number).section(u'/', -1);
        Plan unnamed = m_plan;
        unnamed.subtitles.clear();  // which stand for tracks of the first
        const bool keepsSubtitles = m_plan.preset.takesVideo() && m_tracks.video;
        for (const MediaTrack &track : m_sources.at(number).tracks) {
            if (track.kind == Kind::Subtitle && keepsSubtitles &&
                useOfSubtitle(unnamed, track) != Plan::SubtitleUse::Leave)
                m_tracks.leftOut.append({"Subtitles of %1: %2. Joining keeps none of later files."_key,
                                         {file, trackName(track, m_machine)}});
            else if (track.kind == Kind::Cover)
                m_tracks.leftOut.append({"The cover picture of %1. Joining keeps none of later files."_key, {file}});
            else if (track.kind == Kind::Attachment && !isAttached(track))
                m_tracks.leftOut.append({"The attached file %1 of %2. Joining keeps none of later files."_key,
                                         {attachmentName(track), file}});
        }
    }

    void planSubtitle(const MediaTrack &track)
    {
        const Plan::SubtitleUse use = useOfSubtitle(m_plan, track);
        if (use == Plan::SubtitleUse::Leave || !m_plan.preset.takesVideo() || !m_tracks.video)
            return;
        if (use == Plan::SubtitleUse::Burn) {
            if (!m_tracks.burned) {
                m_tracks.burnedNumber = m_number;
                m_tracks.burnedStart = m_sources.first().start;
            }
            burn({.source = &track, .file = -1, .made = -1, .encoder = {}, .codec = track.codec});
            return;
        }
        const QString name = trackName(track, m_machine);
        const QString encoder = subtitleEncoder(*m_tracks.container, track.codec, track.isBitmap);
        if (encoder.isNull()) {
            leaveOut(track.isBitmap
                         ? "Subtitles that are pictures: %1. %2 cannot hold them; burn them in, or choose MKV."_key
                         : "Subtitles: %1. %2 cannot hold them."_key,
                     name);
        } else if (!canFollow(m_plan, track.isBitmap)) {
            m_tracks.leftOut.append(
                {"Subtitles: %1. They cannot follow the changed times; burn them in to keep them."_key, {name}});
        } else {
            m_tracks.subtitles.append({.source = &track,
                                       .file = -1,
                                       .made = -1,
                                       .encoder = encoder,
                                       .codec = subtitleCodec(encoder, track.codec)});
        }
    }

    void planSubtitleFile(int index)
    {
        const Plan::ExternalSubtitle &file = m_plan.externalSubtitles.at(index);
        if (file.use == Plan::SubtitleUse::Leave || !m_tracks.video)
            return;
        const SubtitleKind &kind = subtitleKindOf(file.path);
        const QString codec = QString::fromLatin1(kind.codec);
        const QString name = file.path.section(u'/', -1);
        if (file.use == Plan::SubtitleUse::Burn) {
            burn({.source = nullptr, .file = index, .made = -1, .encoder = {}, .codec = codec});
            if (m_sources.size() > 1 && m_tracks.burned->file == index)
                m_tracks.leftOut.append(
                    {"Subtitles: %1. They are burnt into the first of the joined files only."_key, {name}});
            return;
        }
        const QString encoder = subtitleEncoder(*m_tracks.container, codec, kind.isBitmap);
        if (encoder.isNull())
            leaveOut("Subtitles: %1. %2 cannot hold them."_key, name);
        else if (!canFollow(m_plan, kind.isBitmap))
            m_tracks.leftOut.append(
                {"Subtitles: %1. They cannot follow the changed times; burn them in to keep them."_key, {name}});
        else
            m_tracks.subtitles.append({.source = nullptr,
                                       .file = index,
                                       .made = -1,
                                       .encoder = encoder,
                                       .codec = subtitleCodec(encoder, codec)});
    }

    void burn(const SubtitleTrackPlan &subtitle)
    {
        if (!m_tracks.burned)
            m_tracks.burned = subtitle;
        else
            m_tracks.leftOut.append(
                tarnwell::Sentence("Only one track of subtitles can be burnt in; another one stays behind."_key));
    }

    void planCover(const MediaTrack &track)
    {
        const Container &container = *m_tracks.container;
        const bool isKnown = track.codec == "mjpeg"_L1 || track.codec == "png"_L1;
        // One picture is what players show.
        if (!m_tracks.covers.isEmpty())
            return;
        if (isKnown && container.has(Container::AnyCovers))
            m_tracks.covers.append(&track);
        else
            m_tracks.leftOut.append({"The cover picture. %1 cannot hold it."_key, {containerName()}});
    }

    void planAttachment(const MediaTrack &track)
    {
        const bool isHeld = m_tracks.container->has(Container::Attachments);
        if (isHeld && !track.mimeType.isEmpty() && !track.fileName.isEmpty())
            m_tracks.attachments.append(&track);
        else
            leaveOut("The attached file %1. %2 cannot hold it."_key, attachmentName(track));
    }

    void planChapters()
    {
        const auto hasChapters = [](const MediaInformation &source) { return !source.chapters.isEmpty(); };
        const bool hasSome =
            std::ranges::any_of(m_sources, hasChapters) || (m_plan.chapterPerSource && m_plan.sources.size() > 1);
        m_tracks.keepsChapters = hasSome && m_tracks.container->has(Container::Chapters);
        if (hasSome && !m_tracks.keepsChapters)
            m_tracks.leftOut.append({"The chapters. %1 cannot hold them."_key, {containerName()}});
        // Chapters of some containers are a data track as well.
        const auto hasData = [&](const MediaInformation &source) {
            return source.tracksOf(Kind::Data).size() > (hasChapters(source) ? 1 : 0);
        };
        if (std::ranges::any_of(m_sources, hasData) && m_plan.preset.takesVideo())
            m_tracks.leftOut.append(tarnwell::Sentence("Data of the camera, such as time code."_key));
    }

    TrackPlan &m_tracks;
    const Plan &m_plan;
    const QList<MediaInformation> &m_sources;
    const TranscodeMachine &m_machine;
    int m_number = 0;  ///< of the next track of subtitles
};

}  // namespace

void planCompanions(TrackPlan &tracks, const Plan &plan, const QList<MediaInformation> &sources,
                    const TranscodeMachine &machine)
{
    Companions(tracks, plan, sources, machine).plan();
}

Plan::SubtitleUse useOfSubtitle(const Plan &plan, const MediaTrack &track)
{
    const bool isWanted = plan.subtitleLanguages.isEmpty() || isInLanguages(track, plan.subtitleLanguages);
    return plan.subtitles.value(track.index, isWanted ? Plan::SubtitleUse::Keep : Plan::SubtitleUse::Leave);
}

bool isInLanguages(const MediaTrack &track, const QString &languages)
{
    const auto name = [](const QString &code) { return foundation::languageDisplayName(code.trimmed(), u"en"_s); };
    const QStringList codes = languages.split(u',', Qt::SkipEmptyParts);
    return !track.language.isEmpty() && std::ranges::any_of(codes, [&](const QString &code) {
        return name(code).compare(name(track.language), Qt::CaseInsensitive) == 0;
    });
}

QString trackName(const MediaTrack &track, const TranscodeMachine &machine)
{
    if (!track.language.isEmpty())
        return foundation::languageDisplayName(track.language, machine.language);
    return track.title.isEmpty() ? u"#%1"_s.arg(track.index) : track.title;
}

}  // namespace kestrel
