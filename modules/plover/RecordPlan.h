#pragma once

#include <QJsonObject>
#include <QRect>
#include <QString>

#include <optional>

namespace kestrel {

class JKestrelSettingDispatcher;

/// What a user wants of one recording: values only, all of them sensible as they are. Stored with the job as JSON.
struct RecordPlan {
    enum class What {
        Screen,
        Window,
        Area,
        Camera,
        Portal,  ///< what the user chooses in a dialog of the desktop's
    };
    enum class Sound { None, System, Microphone, Both };
    enum class Quality { Small, Good, Best };  ///< as the settings number them
    enum class Container { Mov, Mp4 };

    What what = What::Screen;
    QString screen = {};  ///< the monitor's name; empty for the first
    quint32 window = 0;   ///< X11's number
    QRect area = {};      ///< in pixels of the whole desktop
    QString camera = {};  ///< a device of video4linux; empty for the first
    bool again = false;   ///< of Portal: the last choice once more, without a dialog where the desktop allows that

    /// The camera's picture within the screen's: its place and width as shares of the screen's picture; its height is
    /// the camera's own.
    struct Inset {
        double x = 0.73, y = 0.7, width = 0.25;
        bool operator==(const Inset &) const = default;
        Inset bounded() const;  ///< within the picture, and not too small to be seen
    };
    std::optional<Inset> inset = {};

    Sound sound = Sound::System;
    QString microphone = {};      ///< a source of the sound server; empty for its default
    bool separateTracks = false;  ///< of Sound::Both, which is mixed otherwise

    Quality quality = Quality::Good;
    double rate = 30;  ///< pictures a second
    Container container = Container::Mov;
    bool pointer = true;
    double seconds = 0;  ///< stops after so many that were recorded; 0 for never
    QString name = {};   ///< of the file, without its ending

    static constexpr double minimumRate = 1, maximumRate = 240;

    QString extension() const { return container == Container::Mp4 ? QStringLiteral("mp4") : QStringLiteral("mov"); }
    bool hasPicturesOfDisplay() const { return what != What::Camera && what != What::Portal; }

    QJsonObject toJson() const;
    /// Nothing where it is none or of a newer version; nonsense in a field reads as its default.
    static std::optional<RecordPlan> fromJson(const QJsonObject &json);
    bool operator==(const RecordPlan &) const = default;
};

/// What the settings ask of a recording.
RecordPlan recordPlan(const JKestrelSettingDispatcher &settings);
/// "Recording 2024-12-31 12.00.00": of this moment, in the language of the interface.
QString newRecordingName();

}  // namespace kestrel
