#pragma once

#include "family/data/engine/key.hpp"

#include <span>

namespace kova::family {

/// A service that most shops have, with what it usually takes and costs.
struct UsualService {
    Key type = 0;
    /// Of the type, as new shops have it.
    const char* typeName = "";
    const char* name = "";
    int minutes = 0;
    long long cents = 0;
    /// Of a package; 0 of a single service.
    int sessions = 0;
};

/// What a new shop may begin with, by type.
std::span<const UsualService> UsualServices();

} // namespace kova::family
