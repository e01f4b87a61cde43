// Start of the application to its first painted day, and its peak memory, against the smallest program
// that shows the same day. Usage: bench_start APPLICATION FLOOR DATABASE dd/mm/yyyy

#include "agenda/contracts/date_time.hpp"
#include "bench/measure.hpp"
#include "bench/process_run.hpp"
#include "family/data/engine/iso_text.hpp"
#include "family/data/selections/day_selection.hpp"

#include <iostream>

namespace kova::bench {

namespace {

constexpr int Rounds = 15;
constexpr double TimeLimit = 1.4;
constexpr double MemoryLimit = 1.6;
constexpr const char* Painted = "desenhado";

struct Samples {
    std::vector<double> milliseconds;
    std::vector<double> megabytes;

    void Add(const ProcessRun& run)
    {
        milliseconds.push_back(run.milliseconds);
        megabytes.push_back(run.megabytes);
    }
};

int Run(const std::vector<std::string>& words)
{
    const std::optional<Date> day = words.size() == 4 ? ParseDate(words[3]) : std::nullopt;
    if (!day) {
        std::cerr << "usage: bench_start APPLICATION FLOOR DATABASE dd/mm/yyyy" << std::endl;
        return 2;
    }
    const std::vector<std::string> application{words[0], "--first-paint", "--database", words[2],
                                               "--date", words[3],        "--size",     "1366x768"};
    const std::vector<std::string> floor{words[1], words[2], family::DayStatement(), family::IsoDate(*day),
                                         "1366",   "768"};
    Samples measured;
    Samples least;
    // The first start registers the components and warms the caches.
    RunUntilLine(application, Painted);
    RunUntilLine(floor, Painted);
    for (int round = 0; round < Rounds; ++round) {
        measured.Add(RunUntilLine(application, Painted));
        least.Add(RunUntilLine(floor, Painted));
    }
    PrintLine("(d) start to first painted day", {Median(measured.milliseconds), Median(least.milliseconds)},
              "ms", TimeLimit);
    PrintLine("(e) peak memory", {Median(measured.megabytes), Median(least.megabytes)}, "MB", MemoryLimit);
    return 0;
}

} // namespace

} // namespace kova::bench

int main(int count, char** words)
{
    try {
        return kova::bench::Run(std::vector<std::string>(words + 1, words + count));
    } catch (const std::exception& failure) {
        std::cerr << "bench_start: " << failure.what() << std::endl;
        return 1;
    }
}
