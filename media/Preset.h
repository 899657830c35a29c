#pragma once

#include "foundation/Result.h"
#include "tarnwell/TextKey.h"

#include <QJsonObject>
#include <QList>
#include <QString>

#include <span>

namespace kestrel {

/// A named form of output. Codecs are ffprobe's names ("h264"); "copy" keeps tracks as they are, a null one takes none.
struct Preset {
    QString id;    ///< "mkv-h264"; unique
    QString name;  ///< as the user reads it; built-in ones localised when they are made
    QString
        group;  ///< id of a group: "everywhere", "small", "archive", "web", "editing", "devices", "sound", "all", "own"
    QString extension;  ///< without the dot
    QString container;  ///< ffmpeg's muxer
    QString videoCodec;
    QString audioCodec;
    int maximumWidth = 0, maximumHeight = 0;  ///< 0 for none
    double maximumFrameRate = 0;
    int audioChannels = 0;                ///< at most; 0 for as the source
    bool plainVideo = false;              ///< promises 8 bits, 4:2:0 and standard range
    double quality = 0, bestQuality = 0;  ///< constant, on the encoder's own scale; 0 for its usual

    bool takesVideo() const { return !videoCodec.isNull(); }
    bool takesAudio() const { return !audioCodec.isNull(); }

    QJsonObject toJson() const;
    /// From a stored job or a file from outside, which is untrusted: nothing but known codecs and containers, bounded
    /// texts.
    static foundation::Result<Preset, tarnwell::Sentence> fromJson(const QJsonObject &json);
};

/// The presets that people ask for by name, in the order in which they are shown.
const QList<Preset> &builtInPresets();
/// Those and every further pair that this ffmpeg writes and reads back.
const QList<Preset> &allPresets();
/// Null where there is none of that id.
const Preset *presetOfId(const QString &id);
QString presetGroupName(const QString &group);  ///< localised

}  // namespace kestrel
