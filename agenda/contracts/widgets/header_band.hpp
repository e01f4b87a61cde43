#pragma once

#include "agenda/contracts/widgets/widget.hpp"

namespace kova {

/// The band along the top of a form, 795 twips high.
class KVTheme : public Widget {
public:
    /// The form's title, drawn large at the left.
    virtual Text Caption() const = 0;
    virtual void Caption(const Text&) = 0;
    /// First small line: when the record was made; "" where none is open.
    virtual Text DataOfInclusion() const = 0;
    virtual void DataOfInclusion(const Text&) = 0;
    /// Second small line; "" for a record that was never altered.
    virtual Text DataOfAlteration() const = 0;
    virtual void DataOfAlteration(const Text&) = 0;
};

} // namespace kova
