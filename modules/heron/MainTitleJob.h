#pragma once

#include "WholeDiscJob.h"

namespace kestrel {

/// Makes a disc of one title, without menus: its film with all tracks, chapters, languages and colours.
class MainTitleJob final : public WholeDiscJob {
    Q_OBJECT
public:
    using WholeDiscJob::WholeDiscJob;

protected:
    void carryOut() override;
    void copyIsGood() override;
};

/// What the author program reads; the film comes on its standard input, the colours stand in `paletteFile`.
QByteArray authorFile(const DiscPlan &plan, const disc::DiscTitle &title, const QString &paletteFile);
/// Sixteen colours, one a line.
QByteArray paletteText(const disc::DiscTitle &title);

}  // namespace kestrel
