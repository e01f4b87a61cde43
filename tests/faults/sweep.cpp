// Runs scripts once for each crossing of the module's borders, with a failure injected there. The module must
// neither crash nor hang, must report the failure once with a well-formed place, and must go on to the
// script's end. Built with the sanitizers, leaks and wild accesses end it too.
//   fault-sweep [--toolkit NAME] [--every N] SCENARIO...
// --every takes a sample: each N-th crossing, counted on from script to script, so that no place is left out
// in all of them.

#include "host/components/component_library.hpp"
#include "tools/scenario/language/script_file.hpp"
#include "tools/scenario/runner.hpp"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <regex>
#include <string>
#include <vector>

namespace {

using namespace kova::scenario;

/// A run that has not ended by then hangs.
constexpr unsigned SecondsOfARun = 60;

struct Outcome {
    std::vector<std::string> lines;
    bool ended = false;
    int business = 0;
    int widgets = 0;
};

Outcome RunOnce(const Script& script, const RunOptions& options)
{
    Outcome outcome;
    alarm(SecondsOfARun);
    Runner runner(script, options, MakeScreen(options.toolkit),
                  [&](const std::string& line) { outcome.lines.push_back(line); });
    // Behind a failure the script may ask for what is not there: such a statement is left out.
    runner.OnWrongStatement([](const ScriptError&) {});
    outcome.ended = runner.Run();
    outcome.business = runner.BusinessCrossings();
    outcome.widgets = runner.WidgetCrossings();
    alarm(0);
    return outcome;
}

bool IsOfErrorScreen(const std::string& line)
{
    return line.starts_with("create KOVA_A_MsgErro") || line.starts_with("call KOVA_A_MsgErro");
}

/// Whether the error screen itself failed, by the injection or by the script.
bool ErrorScreenFailed(const std::vector<std::string>& lines)
{
    for (std::size_t at = 1; at < lines.size(); ++at) {
        if (lines[at].starts_with("raise ") && IsOfErrorScreen(lines[at - 1]))
            return true;
    }
    return false;
}

/// What is wrong with a run; "" where nothing is.
std::string FaultOf(const Outcome& outcome)
{
    static const std::regex report(
        R"(call KOVA_A_MsgErro\.clsMensagem\.Exibir\(Long& 5, Text& "Falha injetada", )"
        R"(Text& "KOVA_A_Agenda, \w+, \w+, Ponto: \d+", Text& ".*"\) -> .*)");
    if (!outcome.ended)
        return "a failure came out of a handler";
    const auto told = std::count_if(outcome.lines.begin(), outcome.lines.end(), [](const std::string& line) {
        return line.starts_with("call KOVA_A_MsgErro") && line.find("Falha injetada") != std::string::npos;
    });
    // A report that the error screen could not take is lost, and nobody tells of it. Where the screen was
    // called from a procedure's own steps, its failure is that procedure's and is told once.
    const bool mayBeLost = ErrorScreenFailed(outcome.lines);
    if (told != 1 && !(mayBeLost && told == 0))
        return "it was reported " + std::to_string(told) + " times";
    for (const std::string& line : outcome.lines) {
        const bool isReport =
            line.starts_with("call KOVA_A_MsgErro") && line.find("Falha injetada") != std::string::npos;
        if (isReport && !std::regex_match(line, report))
            return "its report is not well formed: " + line;
    }
    return {};
}

struct Order {
    std::vector<std::string> scripts;
    std::string toolkit = "headless";
    int every = 1;
};

class Sweep {
public:
    explicit Sweep(const Order& order) : order_(order) { }

    void Over(const std::string& file)
    {
        const Script script = ReadScript(file);
        const Outcome plain = RunOnce(script, Usual());
        if (plain.business == 0 || !plain.ended) {
            ++faults_;
            std::printf("%s: %s\n", file.c_str(),
                        plain.ended ? "the script crosses no border" : "it fails by itself");
            return;
        }
        business_ += plain.business;
        widgets_ += plain.widgets;
        Inject(file, script, &RunOptions::failAt, "business", plain.business);
        Inject(file, script, &RunOptions::failWidgetsAt, "widget", plain.widgets);
    }

    void Tell() const
    {
        std::printf("%d injections, %d faults (%d business crossings, %d widget accesses)\n", injections_,
                    faults_, business_, widgets_);
    }
    bool IsClean() const { return faults_ == 0; }

private:
    RunOptions Usual() const
    {
        RunOptions options;
        options.toolkit = order_.toolkit;
        return options;
    }

    /// Into every crossing of one kind that the order takes, one after the other.
    void Inject(const std::string& file, const Script& script, int RunOptions::*kind, const char* word,
                int last)
    {
        for (int at = 1; at <= last; ++at) {
            if (++counted_ % order_.every != 0)
                continue;
            RunOptions options = Usual();
            options.*kind = at;
            const std::string fault = FaultOf(RunOnce(script, options));
            ++injections_;
            if (!fault.empty()) {
                ++faults_;
                std::printf("%s: %s crossing %d: %s\n", file.c_str(), word, at, fault.c_str());
            }
        }
    }

    const Order& order_;
    int counted_ = 0;
    int business_ = 0;
    int widgets_ = 0;
    int injections_ = 0;
    int faults_ = 0;
};

Order ReadOrder(const std::vector<std::string>& words)
{
    Order order;
    for (std::size_t at = 0; at < words.size(); ++at) {
        const bool hasValue = at + 1 < words.size();
        if (words[at] == "--toolkit" && hasValue)
            order.toolkit = words[++at];
        else if (words[at] == "--every" && hasValue)
            order.every = std::max(1, std::atoi(words[++at].c_str()));
        else
            order.scripts.push_back(words[at]);
    }
    return order;
}

/// Each run attaches itself to the module, which begins anew then: loading it thousands of times would take
/// most of the time.
int SweepOver(const Order& order)
{
    const kova::host::LoadedLibrary module(MODULE_LIBRARY);
    Sweep sweep(order);
    for (const std::string& file : order.scripts)
        sweep.Over(file);
    sweep.Tell();
    return sweep.IsClean() ? 0 : 1;
}

} // namespace

int main(int count, char** words)
{
    const Order order = ReadOrder({words + 1, words + count});
    if (order.scripts.empty()) {
        std::fprintf(stderr, "usage: fault-sweep [--toolkit NAME] [--every N] SCENARIO...\n");
        return 2;
    }
    try {
        return SweepOver(order);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
}
