#pragma once

#include "family/data/stores/work_tables.hpp"

#include <array>
#include <optional>

namespace kova::family {

/// Which minutes of one day are free; none is at first.
class DayMinutes {
public:
    static constexpr int Count = 24 * 60;

    void Free(PartOfDay part) { Set(part, true); }
    void Take(PartOfDay part) { Set(part, false); }
    /// What is free here and there.
    void KeepThoseOf(const DayMinutes& other);
    /// What is free here and not there.
    void TakeThoseOf(const DayMinutes& other);

    bool AreFree(int from, int length) const;

private:
    void Set(PartOfDay part, bool free);

    std::array<bool, Count> free_{};
};

} // namespace kova::family
