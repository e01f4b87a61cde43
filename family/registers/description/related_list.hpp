#pragma once

#include "family/registers/description/register.hpp"

namespace kova::family::registers {

/// What a related list can be narrowed to.
struct RelatedChoice {
    Key key = 0;
    std::string shown;
};

/// Rows of other tables that belong to a row of a register, to be looked at beside its form. Everything that
/// takes the Database fails with a DatabaseFailure.
class RelatedList : public RowSource {
public:
    /// "Atendimentos"
    virtual std::string_view Title() const = 0;
    /// What is said where there are none.
    virtual std::string_view None() const = 0;
    /// What one of its choices is: "Animal"; empty where it is not to be narrowed.
    virtual std::string_view ChoiceName() const { return {}; }
    virtual std::vector<RelatedChoice> Choices(Database&, Key) const { return {}; }
    /// The keys of what belongs to the row `of`, of one choice or, with 0, of all, in the order of the list.
    virtual std::vector<Key> Find(Database& database, Key of, Key choice) const = 0;
};

} // namespace kova::family::registers
