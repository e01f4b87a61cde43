#pragma once

#include <cstdint>
#include <random>
#include <vector>

namespace kova::monkey {

/// Random choices that follow from the seed alone.
class Chance {
public:
    explicit Chance(std::uint64_t seed) : engine_(seed) { }

    /// From `from` to `to`, both included.
    int Between(int from, int to)
    {
        return from + static_cast<int>(engine_() % static_cast<std::uint64_t>(to - from + 1));
    }
    /// True `times` times in a hundred.
    bool InHundred(int times) { return Between(0, 99) < times; }

    template <class T> const T& OneOf(const std::vector<T>& choices)
    {
        return choices[static_cast<std::size_t>(Between(0, static_cast<int>(choices.size()) - 1))];
    }
    /// The place of one of the weights, as often as it weighs.
    std::size_t ByWeight(const std::vector<int>& weights)
    {
        int sum = 0;
        for (const int weight : weights)
            sum += weight;
        int rest = Between(1, sum);
        std::size_t place = 0;
        while (rest > weights[place])
            rest -= weights[place++];
        return place;
    }

private:
    std::mt19937_64 engine_;
};

} // namespace kova::monkey
