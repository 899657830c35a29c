#pragma once

#include "TitleJob.h"

namespace kestrel {

/// A title's film as it stands on the disc, in an MPEG-2 file.
class TitleMpegJob final : public TitleJob {
    Q_OBJECT
public:
    using TitleJob::TitleJob;

protected:
    void makeFile(const QList<FilmStream> &streams) override;
    void fileIsGood() override;
};

}  // namespace kestrel
