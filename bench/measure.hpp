#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace kova::bench {

/// The middle value; of an even number of values the upper one of the two. Needs at least one.
double Median(std::vector<double> values);

/// What was measured beside its floor, both in the same unit.
struct Comparison {
    double measured = 0;
    double floor = 0;

    double Ratio() const { return measured / floor; }
};

/// Prints one line of the table for `bench/run`: what, measured, floor, unit, ratio and limit, separated
/// by tabs.
void PrintLine(const std::string& what, const Comparison& comparison, const std::string& unit, double limit);

/// The same where more is better, as with things done in a second: the ratio is then how many times as much
/// the floor does.
void PrintRates(const std::string& what, const Comparison& comparison, const std::string& unit, double limit);

/// The same where nothing is demanded: what was measured beside something that says how much it is.
void PrintTold(const std::string& what, const Comparison& comparison, const std::string& unit);

/// Prints a line of counts that stands below the table.
void PrintNote(const std::string& text);

/// Milliseconds that the action takes.
template <class Action> double Milliseconds(Action&& action)
{
    const auto start = std::chrono::steady_clock::now();
    action();
    const std::chrono::duration<double, std::milli> elapsed = std::chrono::steady_clock::now() - start;
    return elapsed.count();
}

/// Times both in turn, so that whatever slows the machine down slows both, and takes the medians. Each
/// runs once before, untimed.
template <class Measured, class Floor> Comparison Alternate(int rounds, Measured&& measured, Floor&& floor)
{
    measured();
    floor();
    std::vector<double> measuredTimes;
    std::vector<double> floorTimes;
    for (int round = 0; round < rounds; ++round) {
        measuredTimes.push_back(Milliseconds(measured));
        floorTimes.push_back(Milliseconds(floor));
    }
    return {Median(std::move(measuredTimes)), Median(std::move(floorTimes))};
}

} // namespace kova::bench
