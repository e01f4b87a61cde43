#pragma once

#include <functional>

namespace kova::system {

/// How a process has ended.
struct ProcessEnd {
    bool crashed = false;
    /// Its exit status, or where it crashed the signal or the system's number of the fault.
    int number = 0;
};

/// Runs `work` in a process of its own, which ends with its result as exit status, and waits for it; output
/// of this one that has not left it yet should be flushed before. A system that cannot divide a process
/// begins the program anew with the same command line: what it does before it comes here it does twice, and
/// there the call does not return. Throws std::system_error where no process can be had.
ProcessEnd RunApart(const std::function<int()>& work);

} // namespace kova::system
