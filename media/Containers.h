#pragma once

#include "Preset.h"

#include <span>

namespace kestrel {

/// One kind of file: a row of plain data. Lists are separated by blanks; a null list is empty. What stands in the
/// lists of codecs was written and read back under the same name with its pictures or samples.
struct Container {
    enum Trait : unsigned {
        VariableRate = 1,  ///< a picture has a time of its own
        Upright = 2,       ///< tells by how much the picture is to be turned
        Chapters = 4,
        Covers = 8,           ///< as a picture among the tracks
        AttachedCovers = 16,  ///< as a file that is attached
        Attachments = 32,
        ManySounds = 64,
        TrackNames = 128,    ///< languages and titles of tracks
        HandlerNames = 256,  ///< titles of tracks stand in the names of their handlers
        StereoOnly = 1024,   ///< neither more nor fewer channels
        TellsLength = 512,   ///< in its header, so that a file that was cut off shows
        TagCovers = 2048,    ///< covers as a tag of the first track
        AnyCovers = Covers | AttachedCovers | TagCovers,
    };

    const char *id;    ///< first part of a preset's id
    const char *name;  ///< as people write it: "MP4"
    const char *muxer;
    const char *extension;
    unsigned traits = 0;
    const char *video = {};      ///< codecs that are made for it, the usual one first
    const char *sound = {};      ///< the usual one first
    const char *keptVideo = {};  ///< codecs that it takes as they are besides
    const char *keptSound = {};
    const char *text = {};      ///< the codec of subtitles of text; null where it takes none
    const char *keptText = {};  ///< codecs of such that it takes as they are
    const char *bitmaps = {};   ///< codecs of subtitles of pictures that it takes as they are
    const char *arguments = {};
    const char *rates = {};     ///< the only pictures a second that it takes; smallest first
    const char *lostTags = {};  ///< of the file, that it has no place for: "title", "date", "place"
    int sampleRate = 0;         ///< the only one that it takes; 0 for any
    int channels = 0;           ///< at most; 0 for any

    bool has(Trait trait) const { return traits & trait; }
    bool holdsVideo(const QString &codec) const;
    bool holdsSound(const QString &codec) const;
};

std::span<const Container> containers();
/// Null where no row has that muxer and ending.
const Container *containerOf(const QString &muxer, const QString &extension);
const Container *containerOf(const Preset &preset);

}  // namespace kestrel
