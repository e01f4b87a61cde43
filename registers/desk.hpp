#pragma once

#include "family/data/audit/author.hpp"
#include "screens/draft_folder.hpp"

#include <functional>
#include <memory>

namespace kova::family {
class Database;
}

namespace kova::registers {

/// What the screens of the registers work with: the shop's database, and who writes at this moment.
struct Desk {
    std::shared_ptr<family::Database> database;
    std::function<family::Author()> author;
    /// Where what is typed and not saved is kept; may be missing.
    std::shared_ptr<screens::DraftFolder> drafts{};
};

} // namespace kova::registers
