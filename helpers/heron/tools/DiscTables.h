#pragma once

#include "DiscSource.h"
#include "helpers/heron/DiscContents.h"
#include "helpers/heron/TitleLayout.h"

namespace kestrel::disc {

/// What the tables of a disc tell, checked: nothing in it points outside of anything.
struct DiscTables {
    DiscContents contents;  ///< without protection and truncation, which only the film shows
    QList<TitleLayout> layouts;

    /// Null where there is no such title.
    const TitleLayout *layoutOf(int title) const;
    const DiscTitle *title(int number) const;
};

/// Titles whose tables are nonsense are left out; Damaged where none is left.
foundation::Result<DiscTables, DiscError> readTables(const DiscSource &source);

}  // namespace kestrel::disc
