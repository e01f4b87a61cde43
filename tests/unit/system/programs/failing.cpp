// A program that ends by a fault: FILE for its report, KIND of the fault.

#include "system/command_line.hpp"
#include "system/fatal_report.hpp"
#include "system/path_text.hpp"

#include <cstdlib>
#include <stdexcept>
#include <string>
#include <thread>

namespace {

void ThrowWords() { throw std::runtime_error("Maria da Silva"); }

void WriteThroughNothing()
{
    int* volatile nothing = nullptr;
    *nothing = 1;
}

int Fail(const std::string& kind)
{
    if (kind == "memory")
        WriteThroughNothing();
    if (kind == "thread")
        std::thread(WriteThroughNothing).join();
    if (kind == "division") {
        volatile int zero = 0;
        return 7 / zero;
    }
    if (kind == "abort")
        std::abort();
    if (kind == "exception")
        ThrowWords();
    if (kind == "exception in a thread")
        std::thread(ThrowWords).join();
    if (kind == "exception where none may be")
        []() noexcept { ThrowWords(); }();
    return 0;
}

} // namespace

int main(int count, char** words)
{
    const auto arguments = kova::system::Arguments(count, words);
    kova::system::WriteOnFatalFailure({kova::system::PathOf(arguments.at(0)), "kovaris 0.1.0\n"});
    return Fail(arguments.at(1));
}
