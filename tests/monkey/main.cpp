// A receptionist that never tires: acts at random but plausibly in the application's real window, by mouse
// and keys, on a demonstration shop, until something breaks. What breaks is shortened to the fewest acts and
// written to a file and told.
//
//   monkey [--seed S] [--actions N] [--seconds T] [--keep FOLDER] [--shorten-seconds T]
//   monkey --replay FILE [--shorten]
//
// Without --seconds it is one session of N acts; with it, one session after the other with seeds from S on,
// until as many seconds have passed. The exit status is 0 where nothing was found.

#include "tests/monkey/session.hpp"
#include "tests/monkey/shorten.hpp"
#include "tests/monkey/trial.hpp"

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <map>

namespace {

using namespace kova::monkey;
using Clock = std::chrono::steady_clock;

/// Values of the options by their names; those without a value have "".
using Options = std::map<std::string, std::string>;

Options ReadOptions(int count, char** words)
{
    Options options;
    for (int i = 1; i < count; ++i) {
        const std::string name = words[i];
        if (!name.starts_with("--"))
            throw std::runtime_error("\"" + name + "\" is no option");
        const bool hasValue = i + 1 < count && !std::string(words[i + 1]).starts_with("--");
        options[name.substr(2)] = hasValue ? words[++i] : "";
    }
    return options;
}

int Number(const Options& options, const std::string& name, int otherwise)
{
    const auto found = options.find(name);
    return found == options.end() ? otherwise : std::stoi(found->second);
}

std::string Value(const Options& options, const std::string& name, const std::string& otherwise)
{
    const auto found = options.find(name);
    return found == options.end() ? otherwise : found->second;
}

std::function<bool()> Passed(int seconds)
{
    return [end = Clock::now() + std::chrono::seconds(seconds)] { return Clock::now() >= end; };
}

/// Fewest acts that lead to the same defect, within the time.
std::vector<Act> Shortened(Trials& trials, const Verdict& verdict, int seconds)
{
    const auto fails = [&](const std::vector<Act>& acts) { return trials.Of(acts).defect == verdict.defect; };
    return Shorten(verdict.acts, fails, Passed(seconds));
}

void Tell(const Verdict& verdict)
{
    constexpr std::size_t most = 12'000;
    std::cout << verdict.output.substr(0, most) << "\nFound: " << verdict.defect << std::endl;
}

int ShortenAndKeep(Trials& trials, const Verdict& verdict, const std::string& file, int seconds)
{
    Tell(verdict);
    const auto acts = Shortened(trials, verdict, seconds);
    WriteActs(file, verdict.defect, acts);
    std::cout << verdict.acts.size() << " acts shortened to " << acts.size() << ": " << file << std::endl;
    for (const Act& act : acts)
        std::cout << ToLine(act) << std::endl;
    return EXIT_FAILURE;
}

int RunAtRandom(Trials& trials, const Options& options)
{
    const int actions = Number(options, "actions", 250);
    const int secondsToShorten = Number(options, "shorten-seconds", 300);
    const auto isOver = Passed(Number(options, "seconds", 0));
    const int first = Number(options, "seed", 1);
    int seed = first;
    std::size_t acts = 0;
    do {
        const Verdict verdict = trials.Random(static_cast<std::uint64_t>(seed), actions);
        std::cout << "seed " << seed << ": " << verdict.acts.size() << " acts" << std::endl;
        const std::string file = Value(options, "keep", ".") + "/seed-" + std::to_string(seed) + ".actions";
        if (!verdict.defect.empty())
            return ShortenAndKeep(trials, verdict, file, secondsToShorten);
        acts += verdict.acts.size();
        ++seed;
    } while (!isOver());
    std::cout << "seeds " << first << " to " << seed - 1 << ": " << acts << " acts, nothing found"
              << std::endl;
    return EXIT_SUCCESS;
}

int RunReplay(Trials& trials, const Options& options)
{
    const std::string file = options.at("replay");
    const Verdict verdict = trials.Of(ReadActs(file));
    std::cout << file << ": " << verdict.acts.size() << " acts" << std::endl;
    if (verdict.defect.empty())
        return EXIT_SUCCESS;
    if (options.contains("shorten"))
        return ShortenAndKeep(trials, verdict, file + ".short", Number(options, "shorten-seconds", 300));
    Tell(verdict);
    return EXIT_FAILURE;
}

int RunInThisProcess(const Options& options)
{
    SessionPlan plan{.folder = options.at("folder"),
                     .seed = static_cast<std::uint64_t>(Number(options, "seed", 1)),
                     .acts = Number(options, "actions", 0),
                     .replay = std::nullopt};
    if (options.contains("replay"))
        plan.replay = ReadActs(options.at("replay"));
    return RunSession(plan);
}

} // namespace

int main(int count, char** words)
{
    try {
        const Options options = ReadOptions(count, words);
        if (options.contains("session"))
            return RunInThisProcess(options);
        Trials trials(std::filesystem::read_symlink("/proc/self/exe").string());
        return options.contains("replay") ? RunReplay(trials, options) : RunAtRandom(trials, options);
    } catch (const std::exception& failure) {
        std::cerr << "monkey: " << failure.what() << std::endl;
        return 2;
    }
}
