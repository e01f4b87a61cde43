// Runs a script once for each crossing of the module's borders, with a failure injected there. The module
// must neither crash nor hang, must report the failure once with a well-formed place, and must go on to the
// script's end. Built with the sanitizers, leaks and wild accesses end it too.

#include "host/components/component_library.hpp"
#include "tools/scenario/runner.hpp"

#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iterator>
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

class Sweep {
public:
    explicit Sweep(const Script& script) : script_(script) { }

    /// Injects into every crossing of one kind, one after the other.
    void Over(int RunOptions::*kind, const char* word, int last)
    {
        for (int at = 1; at <= last; ++at) {
            RunOptions options;
            options.*kind = at;
            const std::string fault = FaultOf(RunOnce(script_, options));
            ++injections_;
            if (!fault.empty()) {
                ++faults_;
                std::printf("%s crossing %d: %s\n", word, at, fault.c_str());
            }
        }
    }

    int Injections() const { return injections_; }
    int Faults() const { return faults_; }

private:
    const Script& script_;
    int injections_ = 0;
    int faults_ = 0;
};

} // namespace

int main(int count, char** words)
{
    if (count != 2) {
        std::fprintf(stderr, "usage: fault-sweep SCENARIO\n");
        return 2;
    }
    std::ifstream file(words[1], std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    const Script script = ParseScript(text);
    // Each run attaches itself to the module, which begins anew then. Loading it thousands of times would
    // take most of the time.
    const kova::host::LoadedLibrary module(MODULE_LIBRARY);
    const Outcome plain = RunOnce(script, {});
    if (plain.business == 0) {
        std::printf("the script crosses no border\n");
        return 1;
    }
    Sweep sweep(script);
    sweep.Over(&RunOptions::failAt, "business", plain.business);
    sweep.Over(&RunOptions::failWidgetsAt, "widget", plain.widgets);
    std::printf("%d injections, %d faults (%d business crossings, %d widget accesses)\n", sweep.Injections(),
                sweep.Faults(), plain.business, plain.widgets);
    return sweep.Faults() == 0 ? 0 : 1;
}
