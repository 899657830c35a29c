#pragma once

namespace kestrel {

/// What a run that could not save its settings leaves for the next one: a mark beside the log, which the settings
/// themselves cannot hold. Best effort; where that folder cannot be written either there is none.
class UnsavedEnd {
public:
    /// Leaves the mark, or takes it away.
    void note(bool isUnsaved) const;
    /// Whether the run before left it. It is gone then.
    bool take() const;
};

}  // namespace kestrel
