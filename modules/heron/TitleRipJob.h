#pragma once

#include "TitleFileJob.h"

#include "media/TranscodeJob.h"

namespace kestrel {

/// A title through the converter: first unchanged into a hidden file beside the output, then as any other film.
class TitleRipJob final : public TitleFileJob {
    Q_OBJECT
public:
    using TitleFileJob::TitleFileJob;
    ~TitleRipJob() override;

    void cancel() override;
    void setPaused(bool paused) override;

protected:
    bool takesVideo() const override;
    double shareOfFile() const override { return 0.15; }
    QString openTarget() override;
    void fileIsGood() override;

private:
    TranscodePlan transcodePlan() const;
    void convert();
    JobOutcome withOwnProblems(const JobOutcome &outcome) const;
    void converted(const JobOutcome &outcome);

    QString m_film;
    bool m_isPulledDown = false;                 ///< pictures of 24 a second, shown as 30
    std::unique_ptr<TranscodeJob> m_converting;  ///< once the film is there
};

}  // namespace kestrel
