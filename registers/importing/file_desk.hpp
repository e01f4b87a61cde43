#pragma once

#include "family/data/audit/author.hpp"

#include <functional>
#include <string>

namespace kova::registers {

/// Where files go to and come from, and who writes at this moment.
struct FileDesk {
    /// The shop's file, or the address of its server: long work has a connection of its own.
    std::string source;
    std::function<family::Author()> author;
};

} // namespace kova::registers
