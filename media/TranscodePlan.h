#pragma once

#include "Preset.h"

#include <QJsonObject>
#include <QRectF>
#include <QStringList>

#include <optional>

namespace kestrel {

/// What a user wants of one conversion: values only, all of them sensible as they are. Stored with the job as JSON.
struct TranscodePlan {
    enum class RateControl { Preset, Quality, BitRate, Size };
    enum class Deinterlace { Auto, Off, On, DoubleRate, Film };  ///< Film takes the doubled fields of 24 pictures out
    enum class HighDynamicRange { Auto, Keep, ToStandard };      ///< Keep also where a preset promises plain pictures
    enum class SoundMix { AsSource, Mono, Stereo, Surround51 };
    enum class Turn { None, Clockwise, CounterClockwise, UpsideDown };
    enum class SubtitleUse { Keep, Burn, Leave };

    struct Piece {
        double start = 0;  ///< seconds of the source
        double end = 0;
    };
    struct ExternalSubtitle {
        QString path;
        QString language;  ///< tag or code of any length; null where it is not known
        SubtitleUse use = SubtitleUse::Keep;
        bool isForced = false;
    };
    struct Watermark {
        QString text;       ///< or
        QString imagePath;  ///< a picture
        Qt::Alignment corner = Qt::AlignRight | Qt::AlignBottom;
        double opacity = 0.6;  ///< 0 to 1
        double size = 0.15;    ///< of the picture's width
    };

    static constexpr qsizetype mostPieces = 64;

    QStringList sources;  ///< absolute paths; several are joined in this order
    Preset preset;        ///< by value: editing a preset changes no job

    // Quality
    RateControl rateControl = RateControl::Preset;
    double quality = 0;       ///< constant, on the encoder's scale turned so that lower is better, for Quality
    qint64 videoBitRate = 0;  ///< bits a second, for BitRate
    qint64 maximumBytes = 0;  ///< of the whole file, for Size: two passes
    bool best = false;        ///< the slow, better settings of the preset (the settings' high-quality engine)
    int speed = 0;            ///< -2 (smaller, slower) to 2 (faster, larger)
    bool hardware = true;     ///< where it is and the preset's codec can
    bool copies = true;       ///< keeps tracks that fit as they are
    int threads = 0;          ///< 0 for as many as the processor has

    // Picture
    int maximumWidth = 0, maximumHeight = 0;  ///< never enlarged; 0 for as the source or the preset has it
    double frameRate = 0;                     ///< 0 for as the source
    Deinterlace deinterlace = Deinterlace::Auto;
    HighDynamicRange dynamicRange = HighDynamicRange::Auto;
    QRectF crop;  ///< of the upright picture, in fractions of its width and height from the top left; empty for none
    Turn turn = Turn::None;
    bool mirrored = false;
    double brightness = 0, contrast = 1, saturation = 1;  ///< -1 to 1, 0 to 2, 0 to 3
    std::optional<Watermark> watermark;

    // Time
    QList<Piece> pieces;             ///< kept, in this order; empty for everything
    bool exactCuts = true;           ///< else at keyframes, without encoding
    double speedFactor = 1;          ///< 0.25 to 4: 2 is twice as fast
    double fadeIn = 0, fadeOut = 0;  ///< seconds, picture and sound

    // Sound
    std::optional<QList<int>> audioTracks;  ///< indexes of the file; nothing for all
    QString soundLanguages;  ///< "en,ger": where a file has tracks in one of these, others stay behind; empty for all
    SoundMix mix = SoundMix::AsSource;
    bool normalizes = false;  ///< loudness evened out
    double volume = 0;        ///< decibels
    qint64 audioBitRate = 0;  ///< a track; 0 for the preset's

    // Subtitles
    QHash<int, SubtitleUse> subtitles;  ///< by index of the file; those not named are kept where the target can
    QString subtitleLanguages;          ///< of those not named only these are kept, "none" for none; empty for all
    QList<ExternalSubtitle> externalSubtitles;

    // Output
    bool safeMode = false;          ///< the whole output is decoded before it gets its name
    bool keepsDate = false;         ///< the source's modification time is given to the output
    QString namePattern;            ///< "{name} {preset}"; empty for the source's name
    bool besideSource = false;      ///< instead of the job's folder
    bool chapterPerSource = false;  ///< of a join: one chapter a file

    QJsonObject toJson() const;
    /// Nothing where it is none or of a newer version; nonsense in a field reads as its default.
    static std::optional<TranscodePlan> fromJson(const QJsonObject &json);
};

}  // namespace kestrel
