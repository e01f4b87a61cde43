#include "tests/monkey/trial.hpp"

#include "tests/monkey/audited_rights.hpp"
#include "tests/monkey/finding.hpp"
#include "tests/monkey/session.hpp"

#include <sys/wait.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <regex>
#include <sstream>
#include <stdexcept>

namespace kova::monkey {

namespace fs = std::filesystem;

namespace {

std::string ContentOf(const fs::path& file)
{
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::string FirstMatch(const std::string& text, const std::string& pattern)
{
    std::smatch match;
    return std::regex_search(text, match, std::regex(pattern)) ? match[1].str() : "";
}

/// The function of this program's own code that a sanitizer's report names first.
std::string OwnFrame(const std::string& output)
{
    return FirstMatch(output, "#[0-9]+ 0x[0-9a-f]+ in (kova::[A-Za-z0-9_:~]+)");
}

std::string DefectOf(int status, const std::string& output)
{
    if (const std::string rule = FirstMatch(output, "finding: (.*?): "); !rule.empty())
        return rule;
    if (const std::string kind = FirstMatch(output, "SUMMARY: ([A-Za-z]+Sanitizer: [-A-Za-z]+)");
        !kind.empty())
        return kind + " in " + OwnFrame(output);
    if (output.find("runtime error: ") != std::string::npos)
        return FirstMatch(output, "([a-z_]+\\.[ch]pp:[0-9]+:[0-9]+: runtime error)");
    if (WIFSIGNALED(status))
        return "signal " + std::to_string(WTERMSIG(status));
    // A shell tells a signal so.
    if (WIFEXITED(status) && WEXITSTATUS(status) != 0)
        return "exit status " + std::to_string(WEXITSTATUS(status));
    return "";
}

} // namespace

Trials::Trials(std::string program) : program_(std::move(program))
{
    std::string pattern = (fs::temp_directory_path() / "monkey-XXXXXX").string();
    if (!mkdtemp(pattern.data()))
        throw std::runtime_error("no temporary folder can be made");
    folder_ = pattern;
    const std::string make =
        AGENDA_DATA " demo '" + (folder_ / DatabaseName).string() + "' --date 20/11/2026 >/dev/null";
    if (std::system(make.c_str()) != 0)
        throw std::runtime_error("the demonstration shop was not made");
}

Trials::~Trials()
{
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

fs::path Trials::FreshFolder()
{
    const fs::path folder = folder_ / "run";
    fs::remove_all(folder);
    fs::create_directories(folder);
    fs::copy_file(folder_ / DatabaseName, folder / DatabaseName);
    return folder;
}

Verdict Trials::Random(std::uint64_t seed, int acts)
{
    return Run("--session --seed " + std::to_string(seed) + " --actions " + std::to_string(acts));
}

Verdict Trials::Of(const std::vector<Act>& acts)
{
    const fs::path file = folder_ / "replay.actions";
    WriteActs(file.string(), "", acts);
    return Run("--session --replay '" + file.string() + "'");
}

Verdict Trials::Run(const std::string& arguments)
{
    const fs::path folder = FreshFolder();
    const fs::path said = folder / "said.log";
    const std::string command = "exec '" + program_ + "' " + arguments + " --folder '" + folder.string()
        + "' >'" + said.string() + "' 2>&1";
    const int status = std::system(command.c_str());
    Verdict verdict;
    verdict.output = ContentOf(said);
    verdict.defect = DefectOf(status, verdict.output);
    if (fs::exists(folder / LogName))
        verdict.acts = ReadActs((folder / LogName).string());
    if (!verdict.defect.empty())
        return verdict;
    const std::string check =
        AGENDA_DATA " check '" + (folder / DatabaseName).string() + "' >'" + said.string() + "' 2>&1";
    if (std::system(check.c_str()) != 0) {
        verdict.defect = "the database does not pass its check";
        verdict.output += ContentOf(said);
    } else if (const std::string found = WriteWithoutRight((folder / DatabaseName).string());
               !found.empty()) {
        verdict.defect = "a write without the right";
        verdict.output += found;
    }
    return verdict;
}

} // namespace kova::monkey
