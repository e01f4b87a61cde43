#pragma once

#include "family/data/audit/author.hpp"
#include "family/data/engine/database.hpp"
#include "tests/monkey/users.hpp"

#include <memory>
#include <string>

namespace kova::monkey {

/// A colleague who works on the same shop at another computer by a connection of their own. What is refused,
/// is not there or cannot be written now is left alone.
class OtherDesk {
public:
    /// `author` is the colleague's code, where the shop has users that of one.
    OtherDesk(std::string database, family::Key author)
        : path_(std::move(database)),
          author_{std::to_string(author), Colleague, "2026-11-20 09:30:00", "BALCAO-2"}
    {
    }

    /// "book", "status N", "remark" or "delete", with one of the appointments of 20/11/2026: `which` is its
    /// place among them in thousandths. Or "role N": whoever owns the shop gives Lia that role.
    void Does(const std::string& what, int which);

private:
    void Act(const std::string& what, family::Key appointment);
    void Book();
    void GiveRole(family::Key role);

    std::string path_;
    family::Author author_;
    std::shared_ptr<family::Database> database_;
};

} // namespace kova::monkey
