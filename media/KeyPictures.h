#pragma once

#include "MediaInformation.h"

#include "jobs/ToolProcess.h"

namespace kestrel {

/// Where the pictures of a film stand that need no other to be seen: there it can be cut without encoding. One run of
/// ffprobe, which reads the film and decodes nothing; its lines are read here. All times are seconds of the film, whose
/// clock may begin anywhere.
class KeyPictures {
public:
    explicit KeyPictures(const MediaInformation &film = {});

    /// Of the whole film, or of half a minute before `seconds`. `argument` as ToolPath has it.
    static ToolCommand command(const QString &proberPath, const QString &argument, const MediaInformation &film,
                               std::optional<double> seconds = {});
    /// So many are kept; of films that have more, all pictures may be such.
    static constexpr qsizetype mostKept = 50'000;

    bool readLine(const QByteArray &line);  ///< whether it tells of one
    /// There is no more to come.
    void finish();

    /// As they stand in the file, which is their order but for damaged ones.
    const QList<double> &times() const { return m_times; }
    /// The last one at or before that time, the first one behind it. Nothing where there is none that is known.
    std::optional<double> atOrBefore(double seconds) const;
    std::optional<double> after(double seconds) const;

private:
    double m_start;
    QList<double> m_times;
    double m_reach = 0;  ///< what lies behind was not read
};

/// What ffmpeg has to be told as the start of tracks that it copies, so that they begin with the key picture of that
/// time: its seeks land a little before or behind, as the kind of file is.
double copyStart(const MediaInformation &film, double keyPicture);

}  // namespace kestrel
