#pragma once

#include "tests/monkey/act.hpp"

#include <cstdint>
#include <filesystem>
#include <optional>

namespace kova::monkey {

/// One session of the application in this process, on the shop in a folder of its own.
struct SessionPlan {
    /// Holds the database and everything that the session writes.
    std::filesystem::path folder;
    std::uint64_t seed = 1;
    int acts = 0;
    /// Instead of acts chosen at random.
    std::optional<std::vector<Act>> replay;
};

inline constexpr const char* DatabaseName = "loja.db";
inline constexpr const char* LogName = "acts.log";

/// Runs it to its end and answers the exit status. A finding ends the process.
int RunSession(const SessionPlan& plan);

} // namespace kova::monkey
