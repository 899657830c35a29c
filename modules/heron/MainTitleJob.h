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

private:
    void author(const disc::DiscTitle &wanted);
};

/// What the author program reads; the film comes on its standard input with the title's tracks numbered as in
/// `trackNumbers`, the colours stand in `paletteFile`.
QByteArray authorFile(const DiscPlan &plan, const disc::DiscTitle &title, const QString &paletteFile);
/// The streams of the title's tracks, and after each the number that its place in the list gives it: "0x82=0x80,…"
QString trackNumbers(const disc::DiscTitle &title);
/// Sixteen colours, one a line.
QByteArray paletteText(const disc::DiscTitle &title);

}  // namespace kestrel
