#pragma once

#include "family/data/engine/database.hpp"

#include <memory>
#include <string>

namespace kova::monkey {

/// A colleague who works on the same shop at another computer by a connection of their own. What is refused,
/// is not there or cannot be written now is left alone.
class OtherDesk {
public:
    explicit OtherDesk(std::string database) : path_(std::move(database)) { }

    /// "book", "status N", "remark" or "delete", with one of the appointments of 20/11/2026: `which` is its
    /// place among them in thousandths.
    void Does(const std::string& what, int which);

private:
    void Act(const std::string& what, family::Key appointment);
    void Book();

    std::string path_;
    std::shared_ptr<family::Database> database_;
};

} // namespace kova::monkey
