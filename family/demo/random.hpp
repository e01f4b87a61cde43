#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace kova::family {

/// A small generator of numbers that are the same on every machine for the same seed.
class Random {
public:
    explicit Random(std::uint64_t seed) : state_(seed) { }

    /// From 0 to `limit` - 1.
    int Below(int limit) { return static_cast<int>(Next() % static_cast<std::uint64_t>(limit)); }
    /// From `least` to `most`, both included.
    int Between(int least, int most) { return least + Below(most - least + 1); }
    bool Chance(int percent) { return Below(100) < percent; }

    template <class T> const T& Pick(std::span<const T> choices)
    {
        return choices[static_cast<std::size_t>(Below(static_cast<int>(choices.size())))];
    }

private:
    std::uint64_t Next()
    {
        state_ += 0x9E3779B97F4A7C15U;
        std::uint64_t mixed = state_;
        mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
        mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
        return mixed ^ (mixed >> 31U);
    }

    std::uint64_t state_;
};

} // namespace kova::family
