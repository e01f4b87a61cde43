#pragma once

#include "agenda/contracts/date_time.hpp"

#include <string_view>

namespace kova::reports {

/// What the codes of captions stand for.
struct Occasion {
    DateTime moment = {};
    Text title = {};
    Long page = 1;
    Long pages = 1;
};

/// A caption with its codes filled in: %d dd/mm/yyyy, %D date in words, %t hh:mm, %T hh:mm:ss, %p page,
/// %P pages, %i title. Any other "%" stays as it is.
Text FillIn(std::string_view caption, const Occasion& occasion);

} // namespace kova::reports
