#pragma once

#include "family/data/engine/key.hpp"

#include <deque>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace kova::family {

/// The versions of the appointments that a session has read, by their numbers. What a screen still shows
/// counts before what was read later for another purpose: the user changes what stands on the screen.
class RowVersions {
public:
    /// Numbers with their versions, as one selection found them.
    using Selection = std::vector<std::pair<Key, Key>>;

    /// Takes a selection. It counts as shown as long as the caller keeps the answer, and is remembered for a
    /// good while after that.
    std::shared_ptr<const Selection> Keep(Selection selection);

    /// The oldest version that is shown; of a row that is not, the one that was read last. Nothing for a row
    /// that was never selected.
    std::optional<Key> Of(Key number) const;

    /// The session has written the row itself. Where it knew the row as it was before, it knows it now.
    void Follow(Key number, Key before, Key after);

private:
    void DropOldest();

    /// Oldest first.
    std::deque<std::shared_ptr<Selection>> selections_;
};

} // namespace kova::family
