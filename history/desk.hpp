#pragma once

#include "family/data/audit/author.hpp"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace kova::family {
class Database;
}

namespace kova::history {

/// What the screen of the history works with: the shop's database, and who looks at it at this moment.
struct Desk {
    std::shared_ptr<family::Database> database;
    std::function<family::Author()> author;
    /// Opens the archive of the shop's audit, ready to be searched: where the shop says that it is, or that
    /// file. Null where it is not to be found. Fails with a DatabaseFailure where the file is not the shop's
    /// archive.
    std::function<std::shared_ptr<family::Database>(const std::optional<std::string>& file)> archive;
};

} // namespace kova::history
