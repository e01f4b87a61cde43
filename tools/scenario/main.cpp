// agenda-scenario: runs one script against the module and prints what crossed its borders.

#include "host/components/component_error.hpp"
#include "system/command_line.hpp"
#include "system/process_apart.hpp"
#include "tools/scenario/language/script_file.hpp"
#include "tools/scenario/runner.hpp"

#include <cstdio>
#include <stdexcept>

namespace {

using namespace kova::scenario;

enum ExitStatus { Done = 0, ScriptWrong = 2, ModuleBroken = 3 };

void PrintLine(const std::string& line) { std::printf("%s\n", line.c_str()); }

int RunScript(const RunOptions& options, Script script)
{
    Runner runner(std::move(script), options, MakeScreen(options.toolkit), PrintLine);
    const bool kept = runner.Run();
    if (options.printsCount)
        runner.PrintCount();
    std::fflush(stdout);
    if (!kept)
        std::fprintf(stderr,
                     "O módulo deixou escapar uma falha de um tratador de evento, ou a tela reclamou.\n");
    return kept ? Done : ModuleBroken;
}

int RunScriptOrTell(const RunOptions& options, const Script& script)
{
    try {
        return RunScript(options, script);
    } catch (const std::invalid_argument& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return ScriptWrong;
    } catch (const std::exception& error) {
        std::fflush(stdout);
        std::fprintf(stderr, "%s\n", error.what());
        return ModuleBroken;
    }
}

/// Runs the script in a process of its own, so that a crash of the module becomes a status too.
int RunApart(const RunOptions& options, const Script& script)
{
    std::fflush(stdout);
    const kova::system::ProcessEnd end =
        kova::system::RunApart([&] { return RunScriptOrTell(options, script); });
    if (end.crashed)
        std::fprintf(stderr, "O módulo caiu com o sinal %d.\n", end.number);
    return !end.crashed && (end.number == Done || end.number == ScriptWrong) ? end.number : ModuleBroken;
}

} // namespace

int main(int count, char** words)
{
    try {
        kova::system::UseUtf8Streams();
        const RunOptions options = ParseOptions(kova::system::Arguments(count, words));
        if (options.answer) {
            std::fputs(options.answer->c_str(), stdout);
            return Done;
        }
        return RunApart(options, ReadScript(options.file));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return ScriptWrong;
    }
}
