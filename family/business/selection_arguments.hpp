#pragma once

#include "agenda/contracts/business_services.hpp"
#include "family/data/rows/rows.hpp"

#include <span>

namespace kova::family {

/// Rows in a page of a selection, by the two arguments with which every one begins: the mode, 1 paged or 2
/// whole, and the rows of a page. A whole selection is one page; a page has at least one row.
Long RowsOfPage(std::span<const Argument> arguments, Long foundRows);

/// A code that travels as a Double; -1, which no row has, where it is no whole number. Fails as
/// Value::ToDouble.
Key KeyOf(const Value& code);

/// For a member that takes the session's user and whose selections are the same for every user. Fails with
/// 13 where the value is no object.
void RequireUserObject(const Value& user);

} // namespace kova::family
