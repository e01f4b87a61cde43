#pragma once

#include "family/data/audit/author.hpp"

#include <functional>
#include <memory>

namespace kova::family {
class Database;
}

namespace kova::history {

/// What the screen of the history works with: the shop's database, and who looks at it at this moment.
struct Desk {
    std::shared_ptr<family::Database> database;
    std::function<family::Author()> author;
};

} // namespace kova::history
