#include "bench/process_run.hpp"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <memory>
#include <stdexcept>

namespace kova::bench {

namespace {

using Clock = std::chrono::steady_clock;

[[noreturn]] void BecomeProgram(const std::vector<std::string>& words, int output)
{
    std::vector<char*> pointers;
    for (const std::string& word : words)
        pointers.push_back(const_cast<char*>(word.c_str()));
    pointers.push_back(nullptr);
    dup2(output, STDOUT_FILENO);
    execv(pointers[0], pointers.data());
    _exit(127);
}

/// Milliseconds from the start to the line; negative where it never came. Reads to the end of the output.
double WaitForLine(int input, const std::string& line, Clock::time_point start)
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> stream(fdopen(input, "r"), std::fclose);
    double time = -1;
    char buffer[1024];
    while (std::fgets(buffer, sizeof buffer, stream.get())) {
        if (time < 0 && buffer == line + "\n")
            time = std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    }
    return time;
}

} // namespace

ProcessRun RunUntilLine(const std::vector<std::string>& words, const std::string& line)
{
    int ends[2];
    if (pipe(ends) != 0)
        throw std::runtime_error("no pipe");
    const auto start = Clock::now();
    const pid_t child = fork();
    if (child < 0)
        throw std::runtime_error("no process");
    if (child == 0)
        BecomeProgram(words, ends[1]);
    close(ends[1]);
    const double time = WaitForLine(ends[0], line, start);
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
        throw std::runtime_error(words[0] + " failed");
    if (time < 0)
        throw std::runtime_error(words[0] + " did not print \"" + line + "\"");
    constexpr double kilobytesOfMegabyte = 1024;
    return {time, static_cast<double>(usage.ru_maxrss) / kilobytesOfMegabyte};
}

} // namespace kova::bench
