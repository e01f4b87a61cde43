#pragma once

#include "tests/monkey/act.hpp"

#include <cstdint>
#include <filesystem>
#include <string>

namespace kova::monkey {

/// How a session ended that ran in a process of its own.
struct Verdict {
    /// What was wrong, the same for the same defect; "" where nothing was.
    std::string defect;
    /// All that the process and the check of the database have said.
    std::string output;
    /// What was done, as far as it came.
    std::vector<Act> acts;
};

/// Runs sessions of this program in processes of their own, each on a fresh copy of one demonstration shop.
class Trials {
public:
    /// Makes the shop. `program` is this program.
    explicit Trials(std::string program);
    ~Trials();
    Trials(const Trials&) = delete;
    Trials& operator=(const Trials&) = delete;

    Verdict Random(std::uint64_t seed, int acts);
    Verdict Of(const std::vector<Act>& acts);

private:
    Verdict Run(const std::string& arguments);
    std::filesystem::path FreshFolder();

    std::string program_;
    std::filesystem::path folder_;
    int runs_ = 0;
};

} // namespace kova::monkey
