#pragma once

#include "family/registers/description/register.hpp"

namespace kova::family::registers {

/// What speaks against a row, each field once.
class Refusals {
public:
    explicit Refusals(const std::vector<FieldInfo>& fields) : fields_(fields) { }

    bool IsEmpty() const { return refused_.empty(); }
    bool Has(std::size_t field) const;
    /// Keeps the first thing that is said of a field.
    void Add(std::size_t field, std::string why);
    void Add(std::string_view label, std::string why) { Add(FieldNamed(fields_, label), std::move(why)); }

    /// In the order of the fields.
    std::vector<RefusedField> InOrder() const;

private:
    const std::vector<FieldInfo>& fields_;
    std::vector<RefusedField> refused_;
};

} // namespace kova::family::registers
