#pragma once

#include "helpers/heron/DiscContents.h"
#include "media/TranscodePlan.h"

namespace kestrel {

/// How a disc, or a title of it, is kept. What programs call it is lasting: "image", "folder" …
enum class DiscWay {
    Image,   ///< sector for sector
    Folder,  ///< VIDEO_TS with its menus
    Main,    ///< one title as a disc folder of its own
    Mkv,     ///< a title unchanged, with everything that belongs to it
    Mpeg,    ///< a title's film as it stands on the disc
    Sound,   ///< a title's sound unchanged
    Rip,     ///< a title through the converter
};

/// Whether it takes the disc as a whole; all else takes one title.
bool takesWholeDisc(DiscWay way);
QString discWayName(DiscWay way);
std::optional<DiscWay> discWayNamed(const QString &name);

/// What a user wants of a disc: values only, stored with the job as JSON. Tracks are counted from 1 as the disc has
/// them.
struct DiscPlan {
    QString source = {};  ///< absolute path of a drive, an image or a folder
    DiscWay way = DiscWay::Mkv;
    int title = 0;  ///< 0 for the main one
    int angle = 1;
    int firstChapter = 1, lastChapter = 0;          ///< 0 for the last
    std::optional<QList<int>> soundTracks = {};     ///< nothing for all
    std::optional<QList<int>> subtitleTracks = {};  ///< nothing for all
    int burnedSubtitle = 0;                         ///< drawn into the picture of a rip; 0 for none
    QString language = {};                          ///< whose sound comes first: "de"; empty for the disc's own order
    TranscodePlan transcode = {};                   ///< of a rip; its sources are not told

    // What the disc said when this was planned
    QString volume = {};
    qint64 bytes = 0;    ///< of what is read
    double seconds = 0;  ///< of the title

    bool takesAllChapters() const { return firstChapter <= 1 && lastChapter == 0; }

    QJsonObject toJson() const;
    /// Nothing where it is none or of a newer version; nonsense in a field reads as its default.
    static std::optional<DiscPlan> fromJson(const QJsonObject &json);
};

/// Takes over what the disc says of itself and of the plan's title. False where it has no such title.
bool describeDisc(const disc::DiscContents &contents, DiscPlan &plan);

/// The plan's title; null where the disc has none of that number.
const disc::DiscTitle *titleOf(const disc::DiscContents &contents, const DiscPlan &plan);

/// What is made, without its extension: "HOLIDAY_2026", or "HOLIDAY_2026 - Title 2" where titles become files.
QString discOutputName(const DiscPlan &plan, const disc::DiscContents &contents);

/// The wanted sound tracks of a title, as their places in its list: those in the plan's language come first.
QList<int> chosenSound(const DiscPlan &plan, const disc::DiscTitle &title);
QList<int> chosenSubtitles(const DiscPlan &plan, const disc::DiscTitle &title);

/// Seconds of the chosen chapters.
double chosenSeconds(const DiscPlan &plan, const disc::DiscTitle &title);
/// The same without the picture that stands at their end, which no film has.
double filmSeconds(const DiscPlan &plan, const disc::DiscTitle &title);
/// The title as far as they reach: its length, and about its bytes.
disc::DiscTitle chosenPart(const DiscPlan &plan, disc::DiscTitle title);
/// Their starts, from the first of them on.
QList<double> chosenChapters(const DiscPlan &plan, const disc::DiscTitle &title);

/// Bytes that the work takes in the output's folder while it goes on; 0 where nothing is known.
qint64 expectedBytesOf(const DiscPlan &plan);

}  // namespace kestrel
