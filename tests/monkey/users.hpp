#pragma once

#include "family/data/engine/key.hpp"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace kova::monkey {

/// Somebody who signs in at the shop's desks.
struct Person {
    const char* name;
    family::Key role;
    const char *password, *pin;
};

/// One of each role that a shop begins with, and one whose role may do nothing.
std::span<const Person> People();
/// A colleague at another desk, who asks for nothing that he has no right to.
inline constexpr const char* Colleague = "Marcos";

/// A name as it stands there now, with the password.
struct Entry {
    std::string name, password;
};

/// The users of one shop.
class Users {
public:
    /// Makes them in a shop that has none.
    explicit Users(std::string database);

    /// Those of People who can still enter.
    std::vector<Entry> WhoEnter() const;
    family::Key CodeOfColleague() const { return codes_.back(); }

private:
    std::string path_;
    /// Of the people, in their order, and of the colleague.
    std::vector<family::Key> codes_;
};

} // namespace kova::monkey
