#pragma once

#include "agenda/contracts/widgets/widget.hpp"

#include <optional>
#include <vector>

namespace kova::toolkit {

struct GridCell {
    Long row = 0;
    Long col = 0;

    friend bool operator==(const GridCell&, const GridCell&) = default;
};

/// Sizes of rows or columns along one axis, in twips, and where they lie in a window that shows the
/// fixed ones and then those from the first scrolled one on. Arithmetic only.
class GridAxis {
public:
    explicit GridAxis(Long defaultSize) : defaultSize_(defaultSize) { }

    Long Count() const { return static_cast<Long>(sizes_.size()); }
    /// New ones have the default size.
    void Count(Long count);
    Long Fixed() const { return fixed_; }
    void Fixed(Long count);
    /// 0 is hidden.
    Long Size(Long index) const;
    /// -1 takes the default size, another negative one counts as 0.
    void Size(Long index, Long size);

    /// The first one behind the fixed ones that is on show.
    Long First() const { return first_; }
    /// Scrolls; cut so that the window of that length stays filled.
    void First(Long index, Long window);

    /// Distance from the start of the window; negative for one that is scrolled out before it.
    Long Start(Long index) const;
    /// The one at a distance from the start of the window; nothing before or behind all.
    std::optional<Long> At(Twips distance) const;
    /// How many fit whole behind the fixed ones from First on; at least 1.
    Long PageSize(Long window) const;
    /// Scrolls no further than needed to have that one whole in the window.
    void BringIntoView(Long index, Long window);

private:
    Long SizeOfFixed() const;
    Long LastFirst(Long window) const;

    Long defaultSize_;
    Long fixed_ = 0;
    Long first_ = 0;
    /// -1 is the default size.
    std::vector<Long> sizes_;
};

} // namespace kova::toolkit
