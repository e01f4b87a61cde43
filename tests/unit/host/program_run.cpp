#include "tests/unit/host/program_run.hpp"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace kova::host::test {

namespace {

void RedirectTo(const fs::path& file, int descriptor)
{
    const int opened = open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    dup2(opened, descriptor);
    close(opened);
}

[[noreturn]] void BecomeProgram(const fs::path& program, const std::vector<std::string>& arguments,
                                const fs::path& home)
{
    RedirectTo(home / "stdout.txt", STDOUT_FILENO);
    RedirectTo(home / "stderr.txt", STDERR_FILENO);
    setenv("HOME", home.c_str(), 1);
    for (const char* name :
         {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        unsetenv(name);
    std::vector<char*> words{const_cast<char*>(program.c_str())};
    for (const std::string& argument : arguments)
        words.push_back(const_cast<char*>(argument.c_str()));
    words.push_back(nullptr);
    execv(program.c_str(), words.data());
    _exit(127);
}

} // namespace

TemporaryFolder::TemporaryFolder()
{
    std::string name = (fs::temp_directory_path() / "joão-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr)
        throw std::runtime_error("no temporary folder");
    path_ = name;
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

ProgramResult RunProgram(const fs::path& program, const std::vector<std::string>& arguments,
                         const fs::path& home)
{
    const pid_t child = fork();
    if (child == 0)
        BecomeProgram(program, arguments, home);
    int status = 0;
    waitpid(child, &status, 0);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ContentOf(home / "stdout.txt"),
            ContentOf(home / "stderr.txt")};
}

ProgramResult RunKovaris(const std::vector<std::string>& arguments, const fs::path& home)
{
    return RunProgram(BuildFolder() / "kovaris", arguments, home);
}

fs::path BuildFolder()
{
    const char* folder = std::getenv("KOVARIS_BIN");
    if (folder == nullptr)
        throw std::runtime_error("KOVARIS_BIN names no folder");
    return folder;
}

fs::path CopyOfPrograms(const fs::path& home)
{
    const fs::path copy = home / "programas";
    fs::create_directory(copy);
    for (const char* file : {"kovaris", "agenda-data", "libKOVA_A_Agenda.so", "libKOVA_A_Familia.so",
                             "libKOVA_N_Familia.so", "libkovaris-postgresql.so"})
        fs::copy(BuildFolder() / file, copy);
    return copy;
}

std::string ContentOf(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream content;
    content << stream.rdbuf();
    return content.str();
}

void WriteFile(const fs::path& file, const std::string& content)
{
    std::ofstream(file, std::ios::binary) << content;
}

} // namespace kova::host::test
