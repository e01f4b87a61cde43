#pragma once

#include "tests/monkey/chance.hpp"

#include <string>
#include <vector>

namespace kova::monkey {

/// What a user may type: names of the shop and beginnings of them, codes, dates, times, and what makes no
/// sense there.
class Words {
public:
    /// Names that the shop's database knows.
    explicit Words(std::vector<std::string> names) : names_(std::move(names)) { }

    std::string Any(Chance& chance) const;
    std::string Name(Chance& chance) const;
    /// Digits as they are typed over the mask of a date, mostly of a day near 20/11/2026.
    static std::string DateDigits(Chance& chance);
    static std::string TimeDigits(Chance& chance);
    /// Of a working day that has hardly an appointment yet, and of a time at which the shop is open.
    static std::string FreeDateDigits(Chance& chance);
    static std::string OpenTimeDigits(Chance& chance);

private:
    std::vector<std::string> names_;
};

/// The names of a demonstration shop.
std::vector<std::string> NamesIn(const std::string& database);

} // namespace kova::monkey
