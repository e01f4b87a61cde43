#pragma once

#include "agenda/contracts/business_services.hpp"
#include "component/windows/variants.hpp"

#include <deque>
#include <vector>

namespace kova::component {

/// Arguments of ours on their way to an object of another maker, the last one first. A variable is handed
/// over by reference with its own type; one that takes every type, as a variant.
class PassedArguments {
public:
    explicit PassedArguments(std::span<Argument> arguments);

    VARIANT* First() { return passed_.empty() ? nullptr : passed_.data(); }
    UINT Count() const { return static_cast<UINT>(passed_.size()); }

    /// Writes our variables that the callee has written, and the elements of their arrays. Fails as
    /// Argument::Assign.
    void WriteBack();

private:
    std::span<Argument> arguments_;
    /// What is handed over, and what it refers to, which stays where it is.
    std::vector<VARIANT> passed_;
    std::deque<Variant> held_;
};

/// The arguments of another maker's call, the first one first. What came by reference is written where it
/// came from at once.
class ReceivedArguments {
public:
    explicit ReceivedArguments(const DISPPARAMS& parameters);

    std::span<Argument> All() { return arguments_; }
    /// The elements of arrays that came by reference.
    void WriteArraysBack();

private:
    std::vector<Argument> arguments_;
    /// Which argument came with an array by reference, and where that lies.
    struct Lent {
        std::size_t argument;
        ArrayRef array;
        SAFEARRAY** place;
    };
    std::vector<Lent> arrays_;
};

} // namespace kova::component
