#pragma once

#include "family/data/engine/key.hpp"

#include <optional>
#include <string>
#include <unordered_map>

namespace kova::family::csv {

/// Where a value stands that may be there only once: in the database, or in a line of the file.
struct Place {
    /// 0 in the database.
    long long line = 0;
    /// Of the stored record.
    family::Key code = 0;

    bool IsStored() const { return line == 0; }
    std::string Told() const
    {
        return IsStored() ? "já existe no banco de dados" : "já está na linha " + std::to_string(line);
    }
};

/// The places of values that may be there only once.
template <class Value> class Occurrences {
public:
    void AddStored(const Value& value, family::Key code) { places_.try_emplace(value, Place{0, code}); }

    /// Adds a value of the file. Answers where it stands already, or nothing.
    std::optional<Place> Add(const Value& value, long long line)
    {
        const auto [at, isNew] = places_.try_emplace(value, Place{line, 0});
        return isNew ? std::nullopt : std::optional(at->second);
    }

private:
    std::unordered_map<Value, Place> places_;
};

} // namespace kova::family::csv
