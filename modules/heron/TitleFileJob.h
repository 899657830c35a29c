#pragma once

#include "TitleJob.h"

namespace kestrel {

/// A title with its sound, subtitles in their colours, chapters and languages, unchanged in a Matroska file; or its
/// sound alone.
class TitleFileJob : public TitleJob {
    Q_OBJECT
public:
    using TitleJob::TitleJob;

protected:
    void makeFile(const QList<FilmStream> &streams) override;
    void fileIsGood() override;

    virtual bool takesVideo() const;
    /// How much of the whole work the making of this file is.
    virtual double shareOfFile() const { return 1; }
    /// Where the file is written; null, and the job has failed, where it cannot be.
    virtual QString openTarget();

    const FilmPlan &film() const { return m_film; }
    const FilmSubtitles &subtitles() const { return m_subtitles; }

private:
    void addCompanions();

    FilmPlan m_film;
    FilmSubtitles m_subtitles;
    FilmPaths m_paths;
};

}  // namespace kestrel
