#pragma once

#include "DiscJob.h"

#include "media/OutputCheck.h"
#include "media/ToolMessages.h"
#include "media/TranscodeProgress.h"

namespace kestrel {

/// A job that makes a file of a title's film: knows what tracks the film has, and looks at the file before it counts.
class TitleJob : public DiscJob {
    Q_OBJECT
public:
    using DiscJob::DiscJob;

protected:
    void carryOut() override;
    /// The film's tracks are known.
    virtual void makeFile(const QList<FilmStream> &streams) = 0;
    /// The file holds what was expected.
    virtual void fileIsGood() = 0;

    /// ffmpeg, whose own report is the step's progress; what it wrote is compared with what is there in `checkFile`.
    void runConverter(const QStringList &arguments, double share, double seconds, Continuation then);
    /// What the reader says that the disc did not give.
    void tellLosses();
    /// The sound that the film lacks, once it was read; places in the disc's list of what came, too late to be known.
    QList<int> tellLeftOut(const FilmPlan &film);
    /// Length, tracks, chapters, and pictures or sound at the begin, in the middle and at the end.
    void checkFile(const QString &path, const OutputExpectation &expected, const ToldOutput &told);
    ToldOutput told() const;

    qint64 lostSectors() const { return m_lostSectors; }

private:
    void compare(const QString &path, const OutputExpectation &expected, const ToldOutput &told,
                 const ToolEnding &ending);
    int decodedSeconds() const;
    void decodeAt(const QString &path, QList<double> places, bool hasVideo);

    ToolMessages m_messages;
    TranscodeProgress m_converterProgress;
    qint64 m_lostSectors = 0;
};

}  // namespace kestrel
